#include "dialect/lists.h"

#include "frame/failure.h"
#include "frame/number_text.h"
#include "frame/value_convert.h"

namespace qvr::dialect {

const Array& list_in(const Value& value) {
  const Array* list = value.as<Array>();
  if (list == nullptr) throw RuntimeFailure(failure_number::kTypeMismatch);
  if (list->dimensions != 1) throw CallerFailure(failure_number::kSubscript);
  return *list;
}

const Value& element_at(const Array& list, std::int64_t index) {
  const std::int64_t position = index - list.lower;
  if (position < 0 || position >= static_cast<std::int64_t>(list.items.size())) {
    throw CallerFailure(failure_number::kSubscript);
  }
  return list.items[static_cast<std::size_t>(position)];
}

Text sql_piece(const Value& element) {
  constexpr int kDigitsOfSingle = 7, kDigitsOfDouble = 15;
  if (const auto* held = element.as<double>()) return rounded_number(*held, kDigitsOfDouble);
  if (const auto* held = element.as<float>()) return rounded_number(*held, kDigitsOfSingle);
  if (const auto* held = element.as<Currency>()) return shortest_number(*held);
  if (const auto* held = element.as<Decimal>()) return shortest_number(*held);
  return to_text(element);
}

TextView sql_piece_view(const Value& element, Text& converted) {
  if (const Text* held = element.as<Text>()) return *held;
  return converted = sql_piece(element);
}

}  // namespace qvr::dialect
