#include "query/search/keyword_form.h"

namespace qvr::query {
namespace {

// The letters of Latin-1 from U+00C0 on, without their accents; a blank where there is no such letter.
constexpr TextView kWithoutAccents = u"AAAAAA CEEEEIIII NOOOOO  UUUUY";

bool is_combining_mark(char16_t unit) { return unit >= 0x0300 && unit <= 0x036F; }

char16_t keyword_unit(char16_t unit) {
  const char16_t folded = fold(unit);
  if (folded == u'\u2019' || folded == u'\u2018') return u'\'';
  const std::size_t at = static_cast<std::size_t>(folded) - 0xC0;
  const bool accented = folded >= 0xC0 && at < kWithoutAccents.size() && kWithoutAccents[at] != u' ';
  return accented ? kWithoutAccents[at] : folded;
}

// The position behind the combining marks that follow, and behind further blanks if a blank was before.
std::size_t behind_marks(TextView text, std::size_t at, bool blank) {
  while (at < text.size() && (is_combining_mark(text[at]) || (blank && text[at] == u' '))) ++at;
  return at;
}

}  // namespace

Text keyword_form(TextView typed) {
  Text form;
  form.reserve(typed.size());
  for (std::size_t at = 0; at < typed.size(); at = behind_marks(typed, at + 1, typed[at] == u' ')) {
    form += keyword_unit(typed[at]);
  }
  return form;
}

std::size_t phrase_length(TextView text, TextView phrase) {
  std::size_t at = 0;
  for (const char16_t unit : phrase) {
    if (at == text.size() || keyword_unit(text[at]) != keyword_unit(unit)) return 0;
    at = behind_marks(text, at + 1, unit == u' ');
  }
  return at;
}

}  // namespace qvr::query
