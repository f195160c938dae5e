// Dates and numbers as text: what is read, written and read again is the same.
#include "connection/typed_text.h"

#include <cmath>

#include "base/date_text.h"
#include "base/failure.h"
#include "base/number_text.h"
#include "connection/qvrcfp.h"
#include "fuzz/fuzz_input.h"
#include "fuzz/fuzz_thread.h"

namespace qvr::tests {
namespace {

Text moment_of(Date date) { return formatted_date(date, u"yyyy-mm-dd hh:nn:ss"); }

// A date as this locale writes it.
void check_date(Locale& locale, Date date) {
  const Text text = locale.date_text(date);
  const auto again = locale.parse_date(text);
  require(again && moment_of(*again) == moment_of(date), "a date is read as it was written", {text, moment_of(date)});
}

void check_typed(TextView code, const Value& value) {
  const QVRcfp cfp;
  const Text written = cfp.ValorATexto(code, value);
  const Value again = cfp.TextoAValor(code, written);
  require(cfp.ValorATexto(code, again) == written, "a value is read as it was written", {code, written});
}

void check_text(TextView text) {
  const QVRcfp cfp;
  const Value number = cfp.TextoAValor(u"N", text), date = cfp.TextoAValor(u"F", text);
  const Value truth = cfp.TextoAValor(u"L", text), same = cfp.TextoAValor(u"T", text);
  require(same.as<Text>() != nullptr && *same.as<Text>() == text, "a text is itself", {text});
  if (const double* held = number.as<double>()) {
    require(std::isfinite(*held) && number_prefix(shortest_number(*held)) == *held, "a number reads back", {text});
    require(truth.is<bool>() && *truth.as<bool>() == (*held != 0), "true is what is not 0", {text});
    check_typed(u"N", number);
    check_typed(u"L", truth);
  } else {
    require(number.is<Empty>() && truth.is<Empty>(), "what is no number is nothing", {text});
  }
  if (const Date* held = date.as<Date>()) {
    require(has_calendar_time(*held), "a date is in the calendar", {text});
    check_date(thread_state().platform().locale, *held);
  } else {
    require(date.is<Empty>(), "what is no date is nothing", {text});
  }
}

// Where the day comes first in some and last in others.
void check_any_date(Locale& locale, TextView text) {
  const auto date = locale.parse_date(text);
  if (!date) return;
  require(has_calendar_time(*date), "a date is in the calendar", {text});
  check_date(locale, *date);
}

void check_value(const Value& value) {
  const QVRcfp cfp;
  for (const TextView code : {u"T", u"N", u"F", u"L", u"Z"}) static_cast<void>(cfp.ValorATexto(code, value));
  if (const auto* number = value.as<double>(); number && std::isfinite(*number)) {
    require(number_prefix(shortest_number(*number)) == *number, "a Double reads back", {shortest_number(*number)});
  }
  if (const auto* number = value.as<float>(); number && std::isfinite(*number)) {
    const Text text = shortest_number(*number);
    require(static_cast<float>(number_prefix(text)) == *number, "a Single reads back", {text});
  }
  if (const auto* amount = value.as<Currency>()) {
    const double read = number_prefix(shortest_number(*amount)), held = number_of(*amount);
    require(std::fabs(read - held) <= 1e-15 * std::fabs(held), "an amount reads back, to the last bit or two");
  }
  if (const auto* date = value.as<Date>(); date && has_calendar_time(*date)) {
    check_date(system_platform().locale, *date);
    const auto parts = date_from(calendar_time(*date));
    require(parts && moment_of(*parts) == moment_of(*date), "a date is its parts", {moment_of(*date)});
  }
}

}  // namespace

// The user's language, a text, then values.
void fuzz(FuzzInput& input) {
  fuzz_thread().speak(input.choice(FuzzThread::kLanguages));
  const Text text = input.text();
  check_text(text);
  check_any_date(system_platform().locale, text);
  static_cast<void>(QVRcfp().TextoAValor(input.text(), text));
  while (input.more()) check_value(input.value());
  require(fuzz_thread().take_boxes().empty(), "nothing is shown", {text});
}

}  // namespace qvr::tests
