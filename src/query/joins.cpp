#include "query/joins.h"

#include "dialect/lists.h"
#include "session/value_convert.h"

namespace qvr::query {
namespace {

bool adds_equality(TextView letter) { return equal_no_case(letter, u"A"); }

// "Clientes C" for "C".
bool has_alias(TextView item, TextView alias) {
  return item.size() > alias.size() + 1 && item[item.size() - alias.size() - 1] == u' ' &&
         equal_no_case(item.substr(item.size() - alias.size()), alias);
}

}  // namespace

TextView PalabraJoin(TextView letter) {
  if (equal_no_case(letter, u"I")) return u" INNER JOIN ";
  if (equal_no_case(letter, u"L")) return u" LEFT JOIN ";
  if (equal_no_case(letter, u"R")) return u" RIGHT JOIN ";
  return {};
}

TextView TablaDeCampo(TextView TablasFROM, TextView field) {
  const std::size_t dot = field.rfind(u'.');
  if (dot == TextView::npos || dot == 0) return {};
  const TextView qualifier = trimmed(field.substr(0, dot));
  TextView aliased;
  for (std::size_t from = 0; from <= TablasFROM.size();) {
    const std::size_t comma = std::min(TablasFROM.find(u',', from), TablasFROM.size());
    const TextView item = trimmed(TablasFROM.substr(from, comma - from));
    if (equal_no_case(item, qualifier)) return qualifier;  // a table's own name wins over an alias of an earlier item
    if (aliased.empty() && has_alias(item, qualifier)) aliased = item;
    from = comma + 1;
  }
  return aliased.empty() ? qualifier : aliased;
}

Text ConstruirJoins(TextView TablasFROM, const Value& RelacionTablas) {
  const Array& triples = dialect::list_in(RelacionTablas);
  Text joins;
  std::size_t wrapped = 0;  // all opening parentheses are at the very beginning
  const std::int64_t end = triples.lower + static_cast<std::int64_t>(triples.items.size());
  for (std::int64_t i = triples.lower; i < end; i += 3) {
    Text texts[3];
    const auto item = [&](std::int64_t at) { return to_text_view(dialect::element_at(triples, i + at), texts[at]); };
    const TextView first = item(0), second = item(1), letter = item(2);
    if (adds_equality(letter)) {
      joins.append(u" AND ").append(first).append(u"=").append(second);
      continue;
    }
    if (joins.empty()) {
      joins = TablaDeCampo(TablasFROM, first);
    } else {
      joins += u")";
      ++wrapped;
    }
    joins.append(PalabraJoin(letter)).append(TablaDeCampo(TablasFROM, second));
    joins.append(u" ON ").append(first).append(u"=").append(second);
  }
  return joins.insert(0, wrapped, u'(');
}

}  // namespace qvr::query
