// The current and the original statement and its clauses.
#include "base/failure.h"
#include "dialect/clauses.h"
#include "query/csql20.h"
#include "session/message_box.h"

namespace qvr {
namespace {

// Upper bound of keywords, joiners, blanks and the limit of rows.
constexpr std::size_t kAroundClauses = 64;

}  // namespace

void cSQL20::append_where(Text& statement, bool condition_only) const {
  const TextView original = fields_.where, added = fields_.added_where.text();
  const bool any_original = !is_blank(original), any_added = !is_blank(added);
  const bool limited = fields_.top > 0;
  const Text limit = limited ? dialect::CondicionRowNum(fields_.engine, fields_.top, any_original || any_added)
                             : Text();
  if (!any_original && !any_added && limit.empty()) return;
  if (!condition_only) statement += u"WHERE ";
  if (any_original) statement += original;
  if (any_original && any_added) statement += u" And ";
  if (any_added) statement += added;
  statement += limit;
}

// "and" here and "And" in the WHERE: both spellings are part of the contract.
void cSQL20::append_having(Text& statement, bool condition_only) const {
  const TextView original = fields_.having, added = fields_.added_having.text();
  const bool any_original = !is_blank(original), any_added = !is_blank(added);
  if (!any_original && !any_added) return;
  if (!condition_only) statement += u"HAVING ";
  if (any_original) statement += original;
  if (any_original && any_added) statement += u" and ";
  if (any_added) statement += added;
}

void cSQL20::append_order(Text& statement, bool list_only) const {
  const Text order = fields_.added_order.empty() ? fields_.order : fields_.added_order.list();
  if (is_blank(order)) return;
  if (!list_only) statement += u"ORDER BY ";
  statement += order;
}

// One blank between all parts, also where a part is empty: the contract.
void cSQL20::append_statement(Text& statement) const {
  (statement += fields_.select) += u' ';
  (statement += fields_.from) += u' ';
  append_where(statement, false);
  statement += u' ';
  (statement += fields_.group_by) += u' ';
  append_having(statement, false);
}

std::size_t cSQL20::longest_statement() const {
  const Fields& f = fields_;
  return f.select.size() + f.from.size() + f.where.size() + f.added_where.text().size() + f.group_by.size() +
         f.having.size() + f.added_having.text().size() + f.order.size() + kAroundClauses;
}

Text cSQL20::ParteWhere(bool SoloCondicion) const noexcept {
  return or_shown(kClass, u"ParteWhere", [&] { return current_where(SoloCondicion); });
}

Text cSQL20::ParteHaving(bool SoloCondicion) const noexcept {
  return or_shown(kClass, u"ParteHaving", [&] { return current_having(SoloCondicion); });
}

Text cSQL20::ParteOrder(bool SinClausula) const noexcept {
  return or_shown(kClass, u"ParteOrder", [&] { return current_order(SinClausula); });
}

Text cSQL20::SQL() const noexcept {
  return or_default(kClass, Text(), [&] {
    Text statement;
    statement.reserve(longest_statement());
    append_statement(statement);
    statement += u' ';
    append_order(statement, false);
    return statement;
  });
}

Text cSQL20::SQLSinOrden() const noexcept {
  return or_default(kClass, Text(), [&] { return current_statement(); });
}

Text cSQL20::current_statement() const {
  Text statement;
  statement.reserve(longest_statement());
  append_statement(statement);
  return statement;
}

Text cSQL20::current_where(bool condition_only) const {
  Text text;
  text.reserve(fields_.where.size() + fields_.added_where.text().size() + kAroundClauses);
  append_where(text, condition_only);
  return text;
}

Text cSQL20::current_having(bool condition_only) const {
  Text text;
  text.reserve(fields_.having.size() + fields_.added_having.text().size() + kAroundClauses);
  append_having(text, condition_only);
  return text;
}

Text cSQL20::current_order(bool list_only) const {
  Text text;
  append_order(text, list_only);
  return text;
}

Text cSQL20::SQLOriginal() const noexcept {
  return or_default(kClass, Text(), [&] {
    const Fields& f = fields_;
    return join({f.select, u" ", f.from, u" ", f.where.empty() ? u"" : u"WHERE ", f.where, u" ", f.group_by, u" ",
                 f.having.empty() ? u"" : u"HAVING ", f.having, u" ", f.order.empty() ? u"" : u"ORDER BY ", f.order});
  });
}

Text cSQL20::SQLOriginalSinOrden() const noexcept {
  return or_default(kClass, Text(), [&] { return original_statement(); });
}

Text cSQL20::original_statement() const {
  const Fields& f = fields_;
  return join({f.select, u" ", f.from, u" ", f.where.empty() ? u"" : u"WHERE ", f.where, u" ", f.group_by, u" ",
               f.having.empty() ? u"" : u"HAVING ", f.having});
}

}  // namespace qvr
