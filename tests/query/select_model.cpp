// What becomes of the model of a query after its creation.
#include <algorithm>

#include "query/model_text.h"

namespace qvr::tests {
namespace {

// The parts that a text stands for.
const SelectParts& kept_as(const ModelThread& thread, TextView text) {
  return thread.kept[static_cast<std::size_t>(std::stoi(std::string(text.begin(), text.end()))) - 1];
}

Text replaced(Text text, const Text& what, const Text& by) {
  for (std::size_t at = lower(text).find(lower(what)); at != Text::npos;
       at = lower(text).find(lower(what), at + by.size())) {
    text.replace(at, what.size(), by);
  }
  return text;
}

Text clause(bool alone, TextView keyword, const Text& rest) {
  return alone || rest.empty() ? rest : Text(keyword) + rest;
}

}  // namespace

Text SelectModel::shown(TextView procedure, int error) const {
  const bool english = thread_->language == 1, french = thread_->language == 3;
  const Text object = english ? u"Object" : french ? u"Objet" : u"Objeto";
  const Text method = english ? u"Method" : french ? u"M\u00e9thode" : u"M\u00e9todo";
  const Text word = french ? u"Erreur" : u"Error";
  const Text cause = error == 5   ? u"5: Invalid procedure call or argument"
                     : error == 9 ? u"9: Subscript out of range"
                                  : u"13: Type mismatch";
  const Text where = object + u": cSQL20\r\n" + method + u": " + Text(procedure);
  thread_->boxes.push_back(where + u"\r\n" + word + u" " + cause);
  return {};
}

bool SelectModel::extend(Text& added, TextView condition, TextView criterion) {
  const Text piece = u"(" + Text(condition) + u")";
  if (blank(Text(condition)) || lower(added).find(lower(piece)) != Text::npos) return false;
  added = blank(added) ? piece : added + u" and " + piece;
  if (criterion.empty()) return true;
  const Text word = thread_->language == 1 ? u" and " : thread_->language == 3 ? u" et " : u" y ";
  parts_.criterion = parts_.criterion.empty() ? Text(criterion) : parts_.criterion + word + Text(criterion);
  return true;
}

bool SelectModel::AmpliarCondicionWhere(TextView condition, TextView criterion) {
  return extend(parts_.added_where, condition, criterion);
}

bool SelectModel::AmpliarCondicionHaving(TextView condition, TextView criterion) {
  return extend(parts_.added_having, condition, criterion);
}

bool SelectModel::AmpliarOrden(std::int16_t column) {
  SelectParts& p = parts_;
  if (column < 1 || column > static_cast<int>(p.columns.size())) return shown(u"AmpliarOrden", 9), false;
  const Text type = p.columns[static_cast<std::size_t>(column - 1)].type;
  if (type == u"M") return false;
  if (!p.clicks.empty() && p.clicks.back().first == column) {
    p.clicks.back().second = !p.clicks.back().second;
  } else {
    p.clicks.emplace_back(column, type != u"F");
  }
  return false;
}

void SelectModel::CambiaCondicion(TextView where, TextView having) {
  parts_.where = where;
  parts_.having = having;
  parts_.added_where = parts_.added_having = parts_.criterion = u"";
}

void SelectModel::CambiaOrden(TextView order) {
  parts_.order = order;
  parts_.clicks.clear();
}

void SelectModel::RestauraOriginal(bool conditions, bool order) {
  if (conditions) parts_.added_where = parts_.added_having = parts_.criterion = u"";
  if (order) parts_.clicks.clear();
}

void SelectModel::AdoptaComoOriginal(bool where, bool having, bool order) {
  if (where) parts_.where = ParteWhere(true), parts_.added_where = u"";
  if (having) parts_.having = ParteHaving(true), parts_.added_having = u"";
  if (order) parts_.order = ParteOrder(true), parts_.clicks.clear();
}

Text SelectModel::ParteWhere(bool alone) const {
  const SelectParts& p = parts_;
  const bool limited = p.engine == Engine::Oracle && p.top > 0;
  const Text limit = limited ? u" (RowNum<=" + number(p.top) + u") " : Text();
  const Text further = limited ? u" And (RowNum<=" + number(p.top) + u") " : Text();
  if (!blank(p.where)) {
    return clause(alone, u"WHERE ", p.where + (blank(p.added_where) ? Text() : u" And " + p.added_where) + further);
  }
  if (!blank(p.added_where)) return clause(alone, u"WHERE ", p.added_where + further);
  return clause(alone, u"WHERE ", limit);
}

Text SelectModel::ParteHaving(bool alone) const {
  const SelectParts& p = parts_;
  if (blank(p.having)) return clause(alone, u"HAVING ", blank(p.added_having) ? Text() : p.added_having);
  return clause(alone, u"HAVING ", blank(p.added_having) ? p.having : p.having + u" and " + p.added_having);
}

// Each click from the last to the first, but for columns that have been written.
Text SelectModel::ParteOrder(bool alone) const {
  Text list;
  std::vector<int> written;
  for (auto click = parts_.clicks.rbegin(); click != parts_.clicks.rend(); ++click) {
    if (std::ranges::find(written, click->first) != written.end()) continue;
    written.push_back(click->first);
    list += number(click->first) + (click->second ? u"," : u" DESC,");
  }
  if (!list.empty()) list.pop_back();
  if (list.empty() && !blank(parts_.order)) list = parts_.order;
  return clause(alone, u"ORDER BY ", list);
}

Text SelectModel::SQLSinOrden() const {
  return parts_.select + u" " + parts_.from + u" " + ParteWhere(false) + u" " + parts_.group_by + u" " +
         ParteHaving(false);
}

Text SelectModel::SQL() const { return SQLSinOrden() + u" " + ParteOrder(false); }

Text SelectModel::SQLOriginalSinOrden() const {
  return parts_.select + u" " + parts_.from + u" " + clause(false, u"WHERE ", parts_.where) + u" " + parts_.group_by +
         u" " + clause(false, u"HAVING ", parts_.having);
}

Text SelectModel::SQLOriginal() const {
  return SQLOriginalSinOrden() + u" " + clause(false, u"ORDER BY ", parts_.order);
}

int SelectModel::NumColumna(TextView field) const {
  for (std::size_t i = 0; i < parts_.columns.size(); ++i) {
    if (lower(parts_.columns[i].field) == lower(Text(field))) return static_cast<int>(i) + 1;
  }
  return 0;
}

int SelectModel::NumColumnas() const { return parts_.created ? static_cast<int>(parts_.columns.size()) : 0; }

Text SelectModel::TipoCampo(TextView field) const {
  if (!parts_.created) return {};
  const int at = NumColumna(field);
  const Text type = at > 0 ? parts_.columns[static_cast<std::size_t>(at - 1)].type : Text();
  return type.empty() ? shown(u"TipoCampo(" + Text(field) + u")", 5) : type;
}

Text SelectModel::ExpresionOriginal(TextView field) const {
  if (!parts_.created) return {};
  const int at = NumColumna(field);
  return at > 0 ? parts_.columns[static_cast<std::size_t>(at - 1)].expression : shown(u"ExpresionOriginal", 5);
}

void SelectModel::TOP(std::int32_t top) {
  SelectParts& p = parts_;
  if (!p.created || top < 0) return;
  const Text before = u" TOP " + number(p.top) + u" ", after = u" TOP " + number(top) + u" ";
  if (top > 0 && p.top > 0) {
    for (Text* text : {&p.select, &p.list}) *text = replaced(*text, before, after);
    p.where = replaced(p.where, u" ROWNUM<=" + number(p.top) + u" ", u" ROWNUM<=" + number(top) + u" ");
    p.top = top;
  } else if (top == 0 && p.top > 0) {
    for (Text* text : {&p.select, &p.list}) *text = replace_all(*text, before, u" ");  // only in these letters
    p.top = top;
  } else if (top > 0 && p.top == 0) {
    p.select.insert(p.distinct ? 16 : 7, top_mark(p.engine, top));
    p.top = top;
  }
}

Text SelectModel::TextoDefinicion() const {
  if (!parts_.created) return {};
  thread_->kept.push_back(parts_);
  return number(static_cast<std::int64_t>(thread_->kept.size()));
}

// The columns anew, each with its alias, behind what the statement began with.
bool SelectModel::CrearDesdeTextoDefinicion(TextView text) {
  SelectParts p;
  if (text.empty()) {
    shown(u"CreareDesdeTextoDefinicion", 13);
  } else {
    p = kept_as(*thread_, text);
    p.select.resize(p.select.size() - p.list.size());
    p.list.clear();
    for (const SelectParts::Column& column : p.columns) {
      p.list += (p.list.empty() ? u"" : u", ") + column.expression + alias(p.engine, column.field);
    }
    p.select += p.list;
  }
  p.tag = parts_.tag;
  p.language = parts_.language;
  parts_ = p;
  return p.created;
}

Text SelectModel::CriterioActualCompleto() const {
  thread_->kept.push_back(parts_);
  return number(static_cast<std::int64_t>(thread_->kept.size()));
}

void SelectModel::CriterioActualCompleto(TextView text) {
  if (text.empty()) return RestauraOriginal(true, true);
  const SelectParts& kept = kept_as(*thread_, text);
  for (const auto& click : kept.clicks) {
    if (click.first > static_cast<int>(parts_.columns.size())) return;
  }
  parts_.added_where = kept.added_where;
  parts_.added_having = kept.added_having;
  parts_.criterion = kept.criterion;
  parts_.clicks = kept.clicks;
}

}  // namespace qvr::tests
