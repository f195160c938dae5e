#include "query/added_order.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <iterator>

namespace qvr::query {
namespace {

std::optional<std::int16_t> small_number(TextView text) {
  char digits[8];
  std::int16_t number = 0;
  if (text.size() > std::size(digits) || !std::ranges::all_of(text, [](char16_t unit) { return unit < 0x80; })) {
    return std::nullopt;
  }
  std::ranges::transform(text, digits, [](char16_t unit) { return static_cast<char>(unit); });
  const char* end = digits + text.size();
  const auto read = std::from_chars(digits, end, number);
  return read.ec == std::errc() && read.ptr == end ? std::optional(number) : std::nullopt;
}

}  // namespace

void AddedOrder::click(std::int16_t column, bool ascending_at_first) {
  const bool again = !clicks_.empty() && clicks_.back().column == column;
  const Click last{column, again ? !clicks_.back().ascending : ascending_at_first};
  std::erase_if(clicks_, [column](const Click& click) { return click.column == column; });
  clicks_.push_back(last);
}

Text AddedOrder::list() const {
  Text list;
  for (auto click = clicks_.rbegin(); click != clicks_.rend(); ++click) {
    if (!list.empty()) list += u',';
    list += decimal(click->column);
    if (!click->ascending) list += u" DESC";
  }
  return list;
}

Text AddedOrder::clicks() const {
  Text text;
  for (const Click& click : clicks_) {
    if (!text.empty()) text += u',';
    text += decimal(click.ascending ? click.column : -click.column);
  }
  return text;
}

std::optional<AddedOrder> AddedOrder::from_clicks(TextView text, std::size_t columns) {
  AddedOrder order;
  if (text.empty()) return order;
  std::vector<bool> seen(columns + 1);
  for (const TextView piece : split(text, u",")) {
    const auto number = small_number(piece);
    const std::size_t column = number ? static_cast<std::size_t>(std::abs(int{*number})) : 0;
    if (column == 0 || column > columns || column > INT16_MAX || seen[column]) return std::nullopt;
    seen[column] = true;
    order.clicks_.push_back({static_cast<std::int16_t>(column), *number > 0});
  }
  return order;
}

}  // namespace qvr::query
