#include "connection/typed_text.h"

#include "base/date_text.h"
#include "base/failure.h"
#include "base/number_text.h"
#include "session/value_convert.h"

namespace qvr {
namespace {

// A number is written in the precision of its type; everything else converts to Double first.
Text number_text(const Value& value) {
  if (const auto* held = value.as<float>()) return shortest_number(*held);
  if (const auto* held = value.as<Currency>()) return shortest_number(*held);
  if (const auto* held = value.as<Decimal>()) return shortest_number(*held);
  if (const auto* held = value.as<std::int64_t>()) return decimal(*held);
  if (const auto* held = value.as<std::uint64_t>()) return shortest_number(*held);
  return shortest_number(to_number(value));
}

}  // namespace

Value value_from_typed_text(TextView code, TextView text) {
  if (equal_no_case(code, u"T")) return Text(text);
  if (equal_no_case(code, u"N")) return number_prefix(text);
  if (equal_no_case(code, u"F")) return to_date(Text(text));
  if (equal_no_case(code, u"L")) return number_prefix(text) != 0;
  return {};
}

Text typed_text_from_value(TextView code, const Value& value) {
  if (equal_no_case(code, u"T")) return to_text(value);
  if (equal_no_case(code, u"N")) return number_text(value);
  if (equal_no_case(code, u"F")) return formatted_date(to_date(value), u"yyyy/mm/dd");
  if (equal_no_case(code, u"L")) return to_truth(value) ? u"1" : u"0";
  return {};
}

}  // namespace qvr
