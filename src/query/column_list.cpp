#include "query/column_list.h"

#include <algorithm>

#include "dialect/clauses.h"
#include "dialect/lists.h"
#include "frame/failure.h"
#include "frame/value_convert.h"

namespace qvr::query {
namespace {

constexpr TextView kSeparator = u", ";

Column column_from(TextView expression, TextView descriptor) {
  Column column;
  column.type = descriptor.substr(0, 1);
  const char16_t form = descriptor.size() > 1 ? descriptor[1] : u'\0';
  if (form == u'>') {
    column.field = descriptor.substr(2);
    column.named = true;
  } else {
    const std::size_t dot = form == u'+' ? expression.rfind(u'.') : Text::npos;
    column.field = dot == Text::npos ? expression : expression.substr(dot + 1);
  }
  column.expression = expression;
  return column;
}

}  // namespace

ColumnList ColumnList::from_pairs(const Value& pairs) {
  const Array& list = dialect::list_in(pairs);
  ColumnList columns;
  columns.columns_.reserve(list.items.size() / 2);
  for (std::size_t i = 0; i < list.items.size(); i += 2) {
    const Value& descriptor = dialect::element_at(list, list.lower + static_cast<std::int64_t>(i) + 1);
    Text expression_text, descriptor_text;
    columns.add(column_from(to_text_view(list.items[i], expression_text), to_text_view(descriptor, descriptor_text)));
  }
  return columns;
}

const Column& ColumnList::at(std::int64_t position) const {
  if (position < 1 || position > static_cast<std::int64_t>(columns_.size())) {
    throw RuntimeFailure(failure_number::kSubscript);
  }
  return columns_[static_cast<std::size_t>(position - 1)];
}

std::size_t ColumnList::position_of(TextView field) const {
  const auto found = std::ranges::find_if(columns_, [&](const Column& c) { return equal_no_case(c.field, field); });
  return found == columns_.end() ? 0 : static_cast<std::size_t>(found - columns_.begin()) + 1;
}

void ColumnList::append_select_list(Text& list, const dialect::Engine& engine) const {
  constexpr std::size_t kAround = 8;  // at most, of separator and alias
  std::size_t size = list.size();
  for (const Column& column : columns_) size += column.expression.size() + (column.named ? column.field.size() : 0) + kAround;
  list.reserve(size);
  for (const Column& column : columns_) {
    if (&column != columns_.data()) list += kSeparator;
    list += column.expression;
    if (column.named) dialect::append_alias(list, engine, column.field);
  }
}

Text ColumnList::group_list(std::size_t count) const {
  Text list;
  for (std::size_t position = 1; position <= count; ++position) {
    if (position > 1) list += kSeparator;
    list += at(static_cast<std::int64_t>(position)).expression;
  }
  return list;
}

}  // namespace qvr::query
