#include "session/value_convert.h"

#include <cmath>

#include "base/date_text.h"
#include "base/failure.h"
#include "base/number_text.h"
#include "platform/platform.h"
#include "session/thread_state.h"

namespace qvr {
namespace {

[[noreturn]] void mismatch() { throw RuntimeFailure(failure_number::kTypeMismatch); }

Locale& locale() { return thread_state().platform().locale; }

template <class T, class... Kinds>
inline constexpr bool is_one_of = (std::is_same_v<T, Kinds> || ...);

template <class T>
inline constexpr bool is_whole = is_one_of<T, std::uint8_t, std::int16_t, std::int32_t, std::int64_t>;

// Missing, objects and arrays have no conversion.
template <class T>
[[noreturn]] void refuse() {
  if constexpr (std::is_same_v<T, Null>) throw RuntimeFailure(failure_number::kInvalidNull);
  mismatch();
}

struct AsText {
  Decimals decimals;

  Text written(Text number) const {
    const std::size_t point = decimals == Decimals::OfLocale ? number.find(u'.') : Text::npos;
    if (point != Text::npos) number[point] = locale().decimal_separator();
    return number;
  }

  template <class T>
  Text operator()(const T& held) const {
    if constexpr (std::is_same_v<T, Empty>) return {};
    else if constexpr (std::is_same_v<T, Text>) return held;
    else if constexpr (std::is_same_v<T, bool>) return held ? u"True" : u"False";
    else if constexpr (is_whole<T>) return decimal(held);
    else if constexpr (std::is_same_v<T, float>) return written(rounded_number(held, 7));
    else if constexpr (std::is_same_v<T, double>) return written(rounded_number(held, 15));
    else if constexpr (is_one_of<T, Currency, Decimal, std::uint64_t>) return written(shortest_number(held));
    else if constexpr (std::is_same_v<T, Date>) return locale().date_text(held);
    else if constexpr (std::is_same_v<T, ErrorValue>) return join({u"Error ", decimal(held.code & 0xFFFF)});
    else refuse<T>();
  }
};

double number_from(TextView text) {
  const auto number = locale().parse_number(text);
  if (!number) mismatch();
  return *number;
}

struct AsNumber {
  template <class T>
  double operator()(const T& held) const {
    if constexpr (std::is_same_v<T, Empty>) return 0;
    else if constexpr (std::is_same_v<T, Text>) return number_from(held);
    else if constexpr (std::is_same_v<T, bool>) return held ? -1 : 0;
    else if constexpr (is_whole<T> || is_one_of<T, std::uint64_t, float, double>) return static_cast<double>(held);
    else if constexpr (is_one_of<T, Currency, Decimal>) return number_of(held);
    else if constexpr (std::is_same_v<T, Date>) return held.days;
    else refuse<T>();
  }
};

}  // namespace

Text to_text(const Value& value, Decimals decimals) { return std::visit(AsText{decimals}, value.storage()); }

TextView to_text_view(const Value& value, Text& converted, Decimals decimals) {
  if (const Text* held = value.as<Text>()) return *held;
  return converted = to_text(value, decimals);
}

double to_number(const Value& value) { return std::visit(AsNumber{}, value.storage()); }

bool to_truth(const Value& value) {
  if (const Text* text = value.as<Text>()) {
    if (equal_no_case(*text, u"True")) return true;
    if (equal_no_case(*text, u"False")) return false;
  }
  return to_number(value) != 0;
}

std::int32_t to_long(const Value& value) {
  const double rounded = std::nearbyint(to_number(value));
  if (!(rounded >= INT32_MIN && rounded <= INT32_MAX)) throw RuntimeFailure(failure_number::kOverflow);
  return static_cast<std::int32_t>(rounded);
}

bool is_numeric(const Value& value) {
  return std::visit(
      [](const auto& held) {
        using T = std::remove_cvref_t<decltype(held)>;
        if constexpr (std::is_same_v<T, Text>) return locale().parse_number(held).has_value();
        else return is_whole<T> || is_one_of<T, Empty, bool, std::uint64_t, float, double, Currency, Decimal>;
      },
      value.storage());
}

Date to_date(const Value& value) {
  Date date;
  if (const Date* held = value.as<Date>()) {
    date = *held;
  } else if (const Text* text = value.as<Text>()) {
    const auto parsed = locale().parse_date(*text);
    if (!parsed) mismatch();
    date = *parsed;
  } else {
    date = Date{to_number(value)};
  }
  static_cast<void>(calendar_time(date));  // throws for a number outside the range of dates
  return date;
}

}  // namespace qvr
