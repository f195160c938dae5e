#include "query/search/keywords.h"

#include <algorithm>
#include <iterator>

#include "query/search/operand.h"
#include "session/thread_state.h"

namespace qvr::query {
namespace {

constexpr TextView kOr[] = {u"o", u"u", u"or", u"ou"};
constexpr TextView kAnd[] = {u"y", u"e", u"and", u"et"};
constexpr TextView kNot[] = {u"no", u"not", u"non"};
constexpr TextView kBetween[] = {u"entre", u"between"};
constexpr TextView kToOfDe[] = {u"a", u"\u00e0"}, kToOfDesde[] = {u"hasta"}, kToOfFrom[] = {u"to"}, kToOfDu[] = {u"au"};
constexpr RangeWords kRanges[] = {{u"de", kToOfDe}, {u"desde", kToOfDesde}, {u"from", kToOfFrom}, {u"du", kToOfDu}};
constexpr TextView kNullPhrases[] = {u"es nulo", u"is null", u"est nul"};
constexpr TextView kLikePhrases[] = {u"es como", u"is like", u"est comme"};
constexpr TextView kNullWords[] = {u"nulo", u"null", u"nul", u"vac\u00edo", u"empty", u"vide"};
constexpr TextView kTrue[] = {u"s\u00ed",   u"si",   u"s",    u"yes", u"y",  u"oui",
                              u"verdadero", u"true", u"vrai", u"1",   u"-1", u"x"};
constexpr TextView kFalse[] = {u"no", u"n", u"non", u"falso", u"false", u"faux", u"0"};

constexpr struct {
  TextView word;
  int days;
} kDays[] = {{u"hoy", 0},      {u"ayer", -1},       {u"ma\u00f1ana", 1},      {u"today", 0}, {u"yesterday", -1},
             {u"tomorrow", 1}, {u"aujourd'hui", 0}, {u"aujourd\u2019hui", 0}, {u"hier", -1}, {u"demain", 1}};

bool any_equal(std::span<const TextView> words, TextView text) {
  return std::ranges::any_of(words, [&](TextView word) { return equal_no_case(word, text); });
}

// A blank in a phrase matches any number of blanks.
std::size_t phrase_at(TextView text, TextView phrase) {
  const std::size_t gap = phrase.find(u' ');
  const TextView first = phrase.substr(0, gap), second = phrase.substr(gap + 1);
  if (!word_at(text, 0, first)) return 0;
  const std::size_t next = text.find_first_not_of(u' ', first.size());
  if (next == TextView::npos || !starts_with_no_case(text.substr(next), second)) return 0;
  const std::size_t end = next + second.size();
  const bool whole = end == text.size() || is_single_quote(text[end]) || is_double_quote(text[end]) ||
                     word_at(text, next, second);
  return whole ? end : 0;
}

std::size_t first_phrase(std::span<const TextView> phrases, TextView text) {
  for (const TextView phrase : phrases) {
    if (const std::size_t length = phrase_at(text, phrase)) return length;
  }
  return 0;
}

}  // namespace

std::optional<SearchType> search_type(char16_t letter) {
  switch (fold(letter)) {
    case u'T': return SearchType::Text;
    case u'M': return SearchType::Memo;
    case u'N': return SearchType::Number;
    case u'F': return SearchType::Date;
    case u'L': return SearchType::Logical;
    default: return std::nullopt;
  }
}

std::span<const TextView> or_words() { return kOr; }
std::span<const TextView> and_words() { return kAnd; }
std::span<const TextView> not_words() { return kNot; }
std::span<const TextView> between_words() { return kBetween; }
std::span<const RangeWords> range_words() { return kRanges; }

std::size_t null_phrase(TextView text) { return first_phrase(kNullPhrases, text); }
std::size_t like_phrase(TextView text) { return first_phrase(kLikePhrases, text); }
bool is_null_word(TextView text) { return any_equal(kNullWords, text); }

std::optional<bool> truth_in(TextView text) {
  if (any_equal(kTrue, text)) return true;
  if (any_equal(kFalse, text)) return false;
  return std::nullopt;
}

std::optional<DayWord> day_word(TextView text) {
  for (const auto& [word, days] : kDays) {
    if (starts_with_no_case(text, word)) return DayWord{word.size(), days};
  }
  return std::nullopt;
}

TextView truth_word(bool truth) {
  switch (thread_state().idioma.Idioma()) {
    case language::kEnglish: return truth ? u"yes" : u"no";
    case language::kFrench: return truth ? u"oui" : u"non";
    default: return truth ? u"s\u00ed" : u"no";
  }
}

}  // namespace qvr::query
