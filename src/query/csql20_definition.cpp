// Serialisation of a query, whole or only what was added.
#include <utility>

#include "base/failure.h"
#include "query/csql20.h"
#include "query/definition_text.h"
#include "session/message_box.h"

namespace qvr {
namespace {

constexpr TextView kVersion = u"cSQL20 1";
constexpr TextView kCriterionMark = u"<*cSQL_CRI*>";

constexpr TextView kEngine = u"MotorBD", kName = u"NombreObjeto", kDistinct = u"UsarDistinct", kTop = u"TOP",
                   kHead = u"Cabecera", kExpression = u"Columna", kType = u"Tipo", kField = u"Campo", kFrom = u"FROM",
                   kWhere = u"WHERE", kGrouped = u"NumColumnasGROUPBY", kHaving = u"HAVING", kOrder = u"ORDERBY",
                   kAddedWhere = u"WHERE+", kAddedHaving = u"HAVING+", kAddedOrder = u"ORDERBY+",
                   kCriterion = u"Criterio";

[[noreturn]] void refuse(SourcePlace place = SourcePlace::here()) {
  throw RuntimeFailure(failure_number::kTypeMismatch, {}, Text(kOwnSource), place);
}

query::AddedOrder order_from(TextView clicks, const query::ColumnList& columns) {
  auto order = query::AddedOrder::from_clicks(clicks, columns.size());
  if (!order) refuse();
  return std::move(*order);
}

}  // namespace

Text cSQL20::TextoDefinicion() const noexcept {
  return or_default(kClass, Text(), [&] { return definition(); });
}

Text cSQL20::definition() const {
  const Fields& f = fields_;
  if (!f.created) return Text();
  query::DefinitionWriter writer(kVersion);
  writer.add_number(kEngine, number_of(f.engine));
  writer.add_text(kName, f.name);
  writer.add_truth(kDistinct, f.distinct);
  writer.add_number(kTop, f.top);
  writer.add_text(kHead, TextView(f.select).substr(0, f.columns_at));
  for (std::size_t i = 0; i < f.columns.size(); ++i) {
    const query::Column column = f.columns[i];
    writer.add_text(kExpression, column.expression);
    writer.add_text(kType, column.type);
    writer.add_text(kField, column.field);
  }
  writer.add_text(kFrom, f.from);
  writer.add_text(kWhere, f.where);
  writer.add_number(kGrouped, f.grouped);
  writer.add_text(kHaving, f.having);
  writer.add_text(kOrder, f.order);
  writer.add_text(kAddedWhere, f.added_where.text());
  writer.add_text(kAddedHaving, f.added_having.text());
  writer.add_text(kAddedOrder, f.added_order.clicks());
  writer.add_text(kCriterion, f.criterion);
  return writer.finished();
}

cSQL20::Fields cSQL20::read_definition(TextView text) const {
  query::DefinitionReader reader(text, kVersion);
  Fields f;
  f.engine = Engine{reader.number(kEngine)};
  f.name = reader.text(kName);
  f.distinct = reader.truth(kDistinct);
  f.top = reader.number(kTop);
  f.select = reader.text(kHead);
  f.columns_at = f.select.size();
  while (reader.next_is(kExpression)) {
    const Text expression = reader.text(kExpression), type = reader.text(kType), field = reader.text(kField);
    f.columns.add({expression, type, field, true});
  }
  f.columns.append_select_list(f.select, f.engine);
  f.from = reader.text(kFrom);
  f.where = reader.text(kWhere);
  const std::int32_t grouped = reader.number(kGrouped);
  if (grouped < 0 || grouped > INT16_MAX) refuse();
  f.grouped = static_cast<std::int16_t>(grouped);
  if (grouped > 0) f.group_by = join({u"GROUP BY ", f.columns.group_list(static_cast<std::size_t>(grouped))});
  f.having = reader.text(kHaving);
  f.order = reader.text(kOrder);
  f.added_where.assign(reader.text(kAddedWhere));
  f.added_having.assign(reader.text(kAddedHaving));
  f.added_order = order_from(reader.text(kAddedOrder), f.columns);
  f.criterion = reader.text(kCriterion);
  reader.expect_end();
  f.created = true;
  return f;
}

void cSQL20::clear_definition() noexcept {
  Fields cleared;
  cleared.tag = std::move(fields_.tag);
  cleared.language = fields_.language;
  fields_ = std::move(cleared);
}

bool cSQL20::CrearDesdeTextoDefinicion(TextView TextoDefinicion) noexcept {
  clear_definition();
  // The spelling of the member's name in the box is part of the contract.
  return or_shown(kClass, u"CreareDesdeTextoDefinicion", [&] {
    Fields read = read_definition(TextoDefinicion);
    read.tag = std::move(fields_.tag);
    read.language = fields_.language;
    fields_ = std::move(read);
    return true;
  });
}

Text cSQL20::CriterioActualCompleto() const noexcept {
  return or_default(kClass, Text(), [&] { return complete_criterion(); });
}

// A further mark keeps white space at the end apart from what a fixed-width column adds.
Text cSQL20::complete_criterion() const {
  const Fields& f = fields_;
  const bool open_end = without_white_end(f.criterion).size() < f.criterion.size();
  return join({query::escaped_marks(f.added_where.text()), kCriterionMark, query::escaped_marks(f.added_having.text()),
               kCriterionMark, f.added_order.clicks(), kCriterionMark, query::escaped_marks(f.criterion),
               open_end ? kCriterionMark : TextView()});
}

void cSQL20::CriterioActualCompleto(TextView value) noexcept {
  value = without_white_end(value);
  if (value.empty()) return RestauraOriginal(true, true);
  or_default(kClass, false, [&] {
    auto pieces = split(value, kCriterionMark);
    if (pieces.size() == 5 && pieces.back().empty()) pieces.pop_back();
    if (pieces.size() != 4) refuse();
    auto where = query::without_escapes(pieces[0]), having = query::without_escapes(pieces[1]),
         criterion = query::without_escapes(pieces[3]);
    auto order = query::AddedOrder::from_clicks(pieces[2], fields_.columns.size());
    if (!where || !having || !criterion || !order) refuse();
    fields_.added_where.assign(std::move(*where));
    fields_.added_having.assign(std::move(*having));
    fields_.added_order = std::move(*order);
    fields_.criterion = std::move(*criterion);
    return true;
  });
}

}  // namespace qvr
