#include "query/search/numbers.h"

#include <algorithm>
#include <utility>

#include "query/search/keyword_form.h"
#include "session/thread_state.h"

namespace qvr::query {
namespace {

constexpr std::size_t kMostDigits = 28;  // the precision that all engines support
constexpr TextView kCurrencies[] = {u"\u20ac", u"$", u"\u00a3", u"\u00a5", u"EUR", u"USD", u"GBP", u"CHF", u"MXN"};

Locale& locale() { return thread_state().platform().locale; }

// Removes the currency at the beginning or at the end; false when there is none.
bool drop_currency(TextView& text, TextView currency) {
  if (currency.empty()) return false;
  if (const std::size_t length = phrase_length(text, currency)) {
    text.remove_prefix(length);
  } else if (text.size() > currency.size() && is_phrase(text.substr(text.size() - currency.size()), currency)) {
    text.remove_suffix(currency.size());
  } else {
    return false;
  }
  text = trimmed(text);
  return true;
}

bool drop_currency(TextView& text) {
  if (!text.empty() && is_digit(text.front()) && is_digit(text.back())) return false;
  return drop_currency(text, locale().currency_symbol()) ||
         std::ranges::any_of(kCurrencies, [&](TextView currency) { return drop_currency(text, currency); });
}

// Removes the sign; 0 when there is none.
char16_t drop_sign(TextView& text) {
  if (!text.starts_with(u'-') && !text.starts_with(u'+')) return 0;
  const char16_t sign = text[0];
  text = trimmed(text.substr(1));
  return sign;
}

bool is_apostrophe(char16_t unit) { return unit == u'\'' || unit == u'\u2019'; }

// Blanks are one in every locale; those of the user's are blanks in a search.
bool separates_thousands(char16_t unit) {
  const char16_t separator = locale().thousands_separator();
  return unit == u' ' || unit == separator || (is_apostrophe(unit) && is_apostrophe(separator));
}

bool only_zeros(TextView digits) { return digits.find_first_not_of(u'0') == TextView::npos; }

// The position of the decimal separator; the size of the text when there is none.
std::size_t decimal_separator(TextView text) {
  const std::size_t given = text.find(locale().decimal_separator());
  if (given != TextView::npos) return given;
  const std::size_t mark = text.find_first_of(u".,");
  if (mark == TextView::npos || text.find_last_of(u".,") != mark) return text.size();
  const bool thousands = separates_thousands(text[mark]) && mark + 4 == text.size() &&
                         !only_zeros(text.substr(0, mark));
  return thousands ? text.size() : mark;
}

// The digits of a whole number, with or without separators of thousands, all of one kind.
std::optional<Text> whole_digits(TextView text) {
  if (all_digits(text) || text.empty()) return Text(text);
  const auto mark = std::ranges::find_if_not(text, is_digit);
  const auto first = static_cast<std::size_t>(mark - text.begin());
  Text digits(text.substr(0, first));
  if (only_zeros(digits) || first > 3 || !separates_thousands(*mark)) return std::nullopt;
  for (text.remove_prefix(first); !text.empty(); text.remove_prefix(4)) {
    if (text.size() < 4 || text[0] != *mark || !all_digits(text.substr(1, 3))) return std::nullopt;
    digits += text.substr(1, 3);
  }
  return digits;
}

}  // namespace

std::optional<Text> number_digits(TextView typed) {
  TextView text = trimmed(typed);
  char16_t sign = drop_sign(text);
  if (drop_currency(text) && sign == 0) sign = drop_sign(text);
  const bool negative = sign == u'-';
  const std::size_t mark = decimal_separator(text);
  auto whole = whole_digits(text.substr(0, mark));
  Text decimals(text.substr(std::min(mark + 1, text.size())));
  if (!whole || !(decimals.empty() || all_digits(decimals)) || (whole->empty() && decimals.empty()))
    return std::nullopt;
  whole->erase(0, std::min(whole->find_first_not_of(u'0'), whole->size()));
  decimals.erase(decimals.find_last_not_of(u'0') + 1);
  if (whole->size() + decimals.size() > kMostDigits) return std::nullopt;
  if (whole->empty() && decimals.empty()) return Text(u"0");
  return join(
      {negative ? u"-" : u"", whole->empty() ? u"0" : TextView(*whole), decimals.empty() ? u"" : u".", decimals});
}

Text shown_number(TextView digits) {
  const char16_t decimal = locale().decimal_separator();
  return replace_all(digits, u".", TextView(&decimal, 1));
}

// Compares normalised numbers (`number_digits`) without converting them: 28 digits exceed a double.
bool is_greater_number(TextView digits, TextView than) {
  const bool negative = digits.starts_with(u'-'), other_negative = than.starts_with(u'-');
  if (negative != other_negative) return other_negative;
  if (negative) return is_greater_number(than.substr(1), digits.substr(1));
  const std::size_t whole = std::min(digits.find(u'.'), digits.size()), other = std::min(than.find(u'.'), than.size());
  return whole != other ? whole > other : digits > than;
}

}  // namespace qvr::query
