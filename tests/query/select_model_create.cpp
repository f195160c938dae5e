// How the model of a query is created.
#include <algorithm>

#include "query/model_text.h"

namespace qvr::tests {
namespace {

using Texts = std::vector<Text>;

Texts texts_of(const Value& list) {
  Texts texts;
  for (const Value& item : list.as<Array>()->items) texts.push_back(*item.as<Text>());
  return texts;
}

SelectParts::Column column_of(const Text& expression, const Text& descriptor) {
  Text field = expression;
  if (descriptor.size() > 1 && descriptor[1] == u'+') field = expression.substr(expression.rfind(u'.') + 1);
  if (descriptor.size() > 1 && descriptor[1] == u'>') field = descriptor.substr(2);
  return {expression, descriptor.substr(0, 1), field};
}

// The tables of the tests are "Name x" with an alias of one letter, and fields begin with it.
Text table_of(const Text& tables, const Text& field) {
  for (std::size_t at = 0; at < tables.size(); ++at) {
    const std::size_t end = std::min(tables.find(u',', at), tables.size());
    if (lower(tables)[end - 1] == lower(field)[0]) return tables.substr(at, end - at);
    at = end;
  }
  return field.substr(0, 1);
}

Text joins_of(const Text& tables, const Texts& r) {
  Text text;
  for (std::size_t i = 0; i < r.size(); i += 3) {
    if (r[i + 2] == u"A") {
      text += u" AND " + r[i] + u"=" + r[i + 1];
      continue;
    }
    const Text word = r[i + 2] == u"I" ? u" INNER JOIN " : r[i + 2] == u"L" ? u" LEFT JOIN " : u" RIGHT JOIN ";
    text = text.empty() ? table_of(tables, r[i]) : u"(" + text + u")";
    text += word + table_of(tables, r[i + 1]) + u" ON " + r[i] + u"=" + r[i + 1];
  }
  return text;
}

Text conditions_of(const Texts& r) {
  Text text;
  for (std::size_t i = 0; i < r.size(); i += 3) {
    text += (i > 0 ? u" And " : u" (") + r[i] + (r[i + 2] == u"R" ? u"(+)=" : u"=") + r[i + 1];
    if (r[i + 2] == u"L") text += u"(+)";
  }
  return text + u") ";
}

}  // namespace

bool SelectModel::Crear(const QueryRequest& r) {
  parts_ = {};
  SelectParts& p = parts_;
  p.engine = r.MotorBD;
  p.language = r.Idioma;
  p.distinct = r.UsarDistinct;
  p.top = r.TOP;
  if (!r.ColumnasSELECT.is<Array>()) return false;
  const Texts pairs = texts_of(r.ColumnasSELECT);
  for (std::size_t i = 0; i < pairs.size(); i += 2) {
    p.columns.push_back(column_of(pairs[i], pairs[i + 1]));
    const bool named = pairs[i + 1].size() > 1 && pairs[i + 1][1] == u'>';
    p.list += (i > 0 ? u", " : u"") + pairs[i] + (named ? alias(p.engine, p.columns.back().field) : Text());
  }
  p.select = Text(u"SELECT ") + (p.distinct ? u"DISTINCT " : u"") + top_mark(p.engine, p.top) + p.list;
  const bool related = r.RelacionTablas.is<Array>(),
             joins = related && (p.engine == Engine::Jet || p.engine == Engine::SqlServer);
  p.from = u" FROM " + (joins ? joins_of(r.TablasFROM, texts_of(r.RelacionTablas)) : r.TablasFROM) + u" ";
  p.where = r.CondicionWHEREInicial;
  if (related && !joins) {
    p.where = (p.engine == Engine::Oracle ? conditions_of(texts_of(r.RelacionTablas)) : Text()) +
              (p.where.empty() ? Text() : u" And (" + p.where + u")");
  }
  for (int i = 0; i < r.NumColumnasGROUPBY; ++i) {
    p.group_by += (i > 0 ? u", " : u"GROUP BY ") + p.columns[static_cast<std::size_t>(i)].expression;
  }
  p.having = r.CondicionHAVINGInicial;
  p.order = r.TextoORDERBYInicial;
  return p.created = true;
}

}  // namespace qvr::tests
