// The members that add to a query, remove what was added or make it part of the original.
#include <utility>

#include "base/failure.h"
#include "dialect/clauses.h"
#include "query/csql20.h"
#include "query/search/search.h"
#include "session/global.h"
#include "session/message_box.h"

namespace qvr {
namespace {

constexpr std::size_t kAfterSelect = 7, kAfterDistinct = 16;

Text top_mark(std::int32_t top) { return join({u" TOP ", decimal(top), u" "}); }

}  // namespace

bool cSQL20::extend(query::ConditionChain& chain, TextView condition, TextView criterion) {
  Text longer = fields_.criterion;
  if (!criterion.empty()) {
    if (!longer.empty()) longer += join({u" ", message(MsgY), u" "});
    longer += criterion;
  }
  if (!chain.add(condition)) return false;
  fields_.criterion = std::move(longer);
  return true;
}

bool cSQL20::AmpliarCondicionWhere(TextView Condicion, TextView Criterio) noexcept {
  return or_shown(kClass, u"AmpliarCondicionWhere", [&] { return extend(fields_.added_where, Condicion, Criterio); });
}

bool cSQL20::AmpliarCondicionHaving(TextView Condicion, TextView Criterio) noexcept {
  return or_shown(kClass, u"AmpliarCondicionHaving", [&] { return extend(fields_.added_having, Condicion, Criterio); });
}

bool cSQL20::InterpretarBusqueda(TextView NombreCampoRS, TextView TextoBusqueda, TextView Criterio) noexcept {
  return or_default(kClass, false, [&] {
    const Text type = TipoCampo(NombreCampoRS);  // shows the box for an unknown column
    if (type.empty()) return false;
    const std::size_t position = fields_.columns.position_of(NombreCampoRS);
    const query::Column column = fields_.columns.at(static_cast<std::int64_t>(position));
    const TextView label = Criterio.empty() ? column.field : Criterio;
    const auto found = query::interpret_search(fields_.engine, {column.expression, type[0]}, TextoBusqueda, label);
    if (!found) return false;
    // Columns behind the grouped ones are aggregates, which only HAVING can compare.
    const bool total = fields_.grouped > 0 && position > static_cast<std::size_t>(fields_.grouped);
    return total ? AmpliarCondicionHaving(found->condition, found->criterion)
                 : AmpliarCondicionWhere(found->condition, found->criterion);
  });
}

void cSQL20::CambiaCondicion(TextView NuevaCondicionWhere, TextView NuevaCondicionHaving) noexcept {
  or_default(kClass, false, [&] {
    fields_.where = NuevaCondicionWhere;
    fields_.having = NuevaCondicionHaving;
    RestauraOriginal(true, false);
    return true;
  });
}

void cSQL20::CambiaOrden(TextView NuevoOrden) noexcept {
  or_default(kClass, false, [&] {
    fields_.order = NuevoOrden;
    fields_.added_order.clear();
    return true;
  });
}

void cSQL20::RestauraOriginal(bool RestaurarWhereYHaving, bool RestaurarOrder) noexcept {
  if (RestaurarWhereYHaving) {
    fields_.added_where.clear();
    fields_.added_having.clear();
    fields_.criterion.clear();
  }
  if (RestaurarOrder) fields_.added_order.clear();
}

// The criterion stays, as it still describes the query.
void cSQL20::AdoptaComoOriginal(bool AdoptarWhere, bool AdoptarHaving, bool AdoptarOrder) noexcept {
  or_default(kClass, false, [&] {
    if (AdoptarWhere) {
      fields_.where = current_where(true);
      fields_.added_where.clear();
    }
    if (AdoptarHaving) {
      fields_.having = current_having(true);
      fields_.added_having.clear();
    }
    if (AdoptarOrder) {
      fields_.order = current_order(true);
      fields_.added_order.clear();
    }
    return true;
  });
}

bool cSQL20::AmpliarOrden(std::int16_t NuevaColumna) noexcept {
  return or_shown(kClass, u"AmpliarOrden", [&] {
    const TextView type = fields_.columns.at(NuevaColumna).type;
    // The first click on a date sorts descending; memos cannot be sorted.
    if (!equal_no_case(type, u"M")) fields_.added_order.click(NuevaColumna, !equal_no_case(type, u"F"));
    return false;
  });
}

void cSQL20::TOP(std::int32_t value) noexcept {
  or_default(kClass, false, [&] {
    if (!fields_.created || value < 0) return false;
    if (fields_.top > 0) {
      value > 0 ? replace_top(value) : remove_top();
    } else if (value > 0 && fields_.top == 0) {
      insert_top(value);
    }
    return true;
  });
}

// Without regard to case, and with a ROWNUM limit inside the WHERE; neither holds for `remove_top`. All that is the
// contract.
void cSQL20::replace_top(std::int32_t value) {
  const Text old_limit = join({u" ROWNUM<=", decimal(fields_.top), u" "});
  fields_.where = replace_all_no_case(fields_.where, old_limit, join({u" ROWNUM<=", decimal(value), u" "}));
  fields_.select = replace_all_no_case(fields_.select, top_mark(fields_.top), top_mark(value), &fields_.columns_at);
  fields_.top = value;
}

void cSQL20::remove_top() {
  fields_.select = replace_all(fields_.select, top_mark(fields_.top), u" ", &fields_.columns_at);
  fields_.top = 0;
}

void cSQL20::insert_top(std::int32_t value) {
  const Text limit = dialect::ClausulaTop(fields_.engine, value);
  const std::size_t at = std::min(fields_.distinct ? kAfterDistinct : kAfterSelect, fields_.select.size());
  fields_.select.insert(at, limit);
  fields_.columns_at += limit.size();
  fields_.top = value;
}

}  // namespace qvr
