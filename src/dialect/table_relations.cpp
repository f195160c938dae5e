#include "dialect/table_relations.h"

#include <algorithm>

#include "base/failure.h"
#include "dialect/lists.h"
#include "session/message_box.h"
#include "session/value_convert.h"

namespace qvr::dialect {
namespace {

struct Relation {
  TextView code;
  TextView sql_server;  // join operator between the columns; empty for a code that SQL Server does not have
  TextView oracle, oracle_at_the_end;
};

constexpr Relation kRelations[] = {
    {u"I", u"=", u"=", u""},
    {u"A", u"", u"=", u""},
    {u"L", u"*=", u"=", u"(+)"},
    {u"R", u"=*", u"(+)=", u""},
};

const Relation* relation_of(Engine engine, TextView code) {
  const auto* found = std::ranges::find_if(kRelations,
                                           [&](const Relation& row) { return equal_no_case(row.code, code); });
  const bool known = found != std::end(kRelations) && (engine == Engine::Oracle || !found->sql_server.empty());
  return known ? found : nullptr;
}

Text wrong_relation(TextView code) {
  Text upper(code);
  std::ranges::transform(upper, upper.begin(), fold);
  tell(join({u"Relaci\u00f3n incorrecta en CondicionWhereRelacionTablas: ", upper}));
  return {};
}

Text conditions(Engine engine, const Array& triples) {
  if (triples.items.empty()) throw CallerFailure(failure_number::kInvalidArgument);
  Text text = u" (";
  const std::int64_t first = triples.lower, end = first + static_cast<std::int64_t>(triples.items.size());
  for (std::int64_t i = first; i < end; i += 3) {
    if (i > first) text += u" And ";
    text += to_text(element_at(triples, i), Decimals::Point);
    const Text code = to_text(element_at(triples, i + 2));
    const Relation* relation = relation_of(engine, code);
    if (relation == nullptr) return wrong_relation(code);
    text += engine == Engine::Oracle ? relation->oracle : relation->sql_server;
    text += to_text(element_at(triples, i + 1), Decimals::Point);
    if (engine == Engine::Oracle) text += relation->oracle_at_the_end;
  }
  return text += u") ";
}

}  // namespace

Text CondicionWhereRelacionTablas(Engine engine, const Value& triples) {
  if (!triples.is<Array>()) return {};
  switch (engine) {
    case Engine::Jet: return tell(u"La funci\u00f3n CondicionWhereRelacionTablas no soporta Motor Jet"), Text();
    case Engine::SqlServer:
    case Engine::Oracle: return conditions(engine, list_in(triples));
    default: return {};
  }
}

}  // namespace qvr::dialect
