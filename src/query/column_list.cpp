#include "query/column_list.h"

#include "base/failure.h"
#include "dialect/clauses.h"
#include "dialect/lists.h"
#include "session/value_convert.h"

namespace qvr::query {
namespace {

constexpr TextView kSeparator = u", ";

Column column_from(TextView expression, TextView descriptor) {
  const char16_t form = descriptor.size() > 1 ? descriptor[1] : u'\0';
  const TextView type = descriptor.substr(0, 1);
  if (form == u'>') return {expression, type, descriptor.substr(2), true};
  const std::size_t dot = form == u'+' ? expression.rfind(u'.') : TextView::npos;
  return {expression, type, dot == TextView::npos ? expression : expression.substr(dot + 1)};
}

std::size_t length_of_texts(const Array& list) {
  std::size_t length = 0;
  for (const Value& item : list.items) {
    const Text* text = item.as<Text>();
    length += text != nullptr ? text->size() : 0;
  }
  return length;
}

}  // namespace

ColumnList ColumnList::from_pairs(const Value& pairs) {
  const Array& list = dialect::list_in(pairs);
  ColumnList columns;
  columns.columns_.reserve(list.items.size() / 2);
  columns.texts_.reserve(length_of_texts(list));
  Text expression_text, descriptor_text;
  for (std::size_t i = 0; i < list.items.size(); i += 2) {
    const Value& descriptor = dialect::element_at(list, list.lower + static_cast<std::int64_t>(i) + 1);
    columns.add(column_from(to_text_view(list.items[i], expression_text, Decimals::Point),
                            to_text_view(descriptor, descriptor_text)));
  }
  return columns;
}

void ColumnList::add(const Column& column) {
  Place place{texts_.size(), 0, 0, 0, column.named};
  place.type = texts_.append(column.expression).size();
  place.field = texts_.append(column.type).size();
  place.end = texts_.append(column.field).size();
  columns_.push_back(place);
}

Column ColumnList::operator[](std::size_t index) const {
  const Place& place = columns_[index];
  return {between(place.expression, place.type), between(place.type, place.field), between(place.field, place.end),
          place.named};
}

Column ColumnList::at(std::int64_t position) const {
  if (position < 1 || position > static_cast<std::int64_t>(columns_.size())) {
    throw RuntimeFailure(failure_number::kSubscript);
  }
  return (*this)[static_cast<std::size_t>(position - 1)];
}

std::size_t ColumnList::position_of(TextView field) const {
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    if (equal_no_case((*this)[i].field, field)) return i + 1;
  }
  return 0;
}

void ColumnList::append_select_list(Text& list, Engine engine) const {
  const dialect::AliasQuotes quotes = dialect::alias_quotes(engine);
  const std::size_t around = kSeparator.size() + quotes.opener.size() + quotes.closer.size();
  list.reserve(list.size() + texts_.size() + columns_.size() * around);
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const Column column = (*this)[i];
    if (i > 0) list += kSeparator;
    list += column.expression;
    if (column.named && quotes.known()) list.append(quotes.opener).append(column.field).append(quotes.closer);
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
