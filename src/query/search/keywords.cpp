#include "query/search/keywords.h"

#include <algorithm>

#include "query/search/keyword_form.h"
#include "session/thread_state.h"

namespace qvr::query {
namespace {

using Words = std::span<const TextView>;

constexpr TextView kOr[] = {u"o", u"u", u"or", u"ou"};
constexpr TextView kAnd[] = {u"y", u"e", u"and", u"et"};
constexpr TextView kNot[] = {u"no", u"not", u"non"};
constexpr TextView kNullWords[] = {u"nulo", u"null", u"nul", u"vac\u00edo", u"empty", u"vide"};
constexpr TextView kTrue[] = {u"s\u00ed", u"s",    u"yes", u"y",  u"oui", u"verdadero",
                              u"true",    u"vrai", u"1",   u"-1", u"x"};
constexpr TextView kFalse[] = {u"no", u"n", u"non", u"falso", u"false", u"faux", u"0"};

struct Phrase {
  TextView words;
  bool negated;
};
constexpr Phrase kNullPhrases[] = {{u"es nulo", false},   {u"is null", false},    {u"est nul", false},
                                   {u"no es nulo", true}, {u"is not null", true}, {u"n'est pas nul", true}};
constexpr Phrase kLikePhrases[] = {{u"es como", false},   {u"is like", false},    {u"est comme", false},
                                   {u"no es como", true}, {u"is not like", true}, {u"n'est pas comme", true},
                                   {u"like", false},      {u"not like", true}};

constexpr TextView kSpanishEnds[] = {u"a", u"al", u"hasta"};
constexpr TextView kEnglishEnds[] = {u"to", u"up to", u"until", u"till"};
constexpr TextView kFrenchEnds[] = {u"au", u"jusqu'\u00e0", u"jusqu'au", u"jusqu'en"};
constexpr TextView kUpTo[] = {u"hasta", u"up to", u"until", u"till", u"jusqu'\u00e0", u"jusqu'au", u"jusqu'en"};
// "de" and "a partir de" are Spanish and French.
constexpr RangeWords kRanges[] = {{u"entre", false, kAnd},
                                  {u"between", false, kAnd},
                                  {u"de", false, kSpanishEnds},
                                  {u"del", false, kSpanishEnds},
                                  {u"desde", true, kSpanishEnds},
                                  {u"a partir de", true, kUpTo},
                                  {u"a partir del", true, kSpanishEnds},
                                  {u"\u00e0 partir d'", true, kFrenchEnds},
                                  {u"from", true, kEnglishEnds},
                                  {u"since", true, kEnglishEnds},
                                  {u"du", false, kFrenchEnds},
                                  {u"depuis", true, kFrenchEnds},
                                  {u"\u00e0 partir du", true, kFrenchEnds}};

bool any_equal(Words words, TextView text) {
  return std::ranges::any_of(words, [&](TextView word) { return is_phrase(text, word); });
}

bool ends_word(TextView text, std::size_t at) {
  return at == text.size() || TextView(u" ;&|").find(text[at]) != TextView::npos;
}

// French words may end in an apostrophe, the next one without a blank behind it.
std::size_t word_length(TextView text, TextView word) {
  const std::size_t length = phrase_length(text, word);
  return word.ends_with(u'\'') || ends_word(text, length) ? length : 0;
}

std::size_t any_word(Words words, TextView text) {
  for (const TextView word : words) {
    if (const std::size_t length = word_length(text, word)) return length;
  }
  return 0;
}

// A quote may follow a phrase without a blank.
FoundPhrase any_phrase(std::span<const Phrase> phrases, TextView text) {
  for (const auto& [words, negated] : phrases) {
    const std::size_t length = phrase_length(text, words);
    if (length == 0) continue;
    const bool whole = ends_word(text, length) || is_single_quote(text[length]) || is_double_quote(text[length]);
    if (whole) return {length, negated};
  }
  return {};
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

bool is_double_quote(char16_t unit) { return unit == u'"' || unit == u'\u201c' || unit == u'\u201d'; }
bool is_single_quote(char16_t unit) { return unit == u'\'' || unit == u'\u2018' || unit == u'\u2019'; }

TextView sign_of(Comparison comparison) {
  switch (comparison) {
    case Comparison::Equal: return u"=";
    case Comparison::Different: return u"<>";
    case Comparison::Less: return u"<";
    case Comparison::LessOrEqual: return u"<=";
    case Comparison::Greater: return u">";
    default: return u">=";
  }
}

FoundComparison comparison_in(TextView text) {
  using enum Comparison;
  constexpr struct {
    TextView sign;
    Comparison comparison;
  } kSigns[] = {{u">=", GreaterOrEqual}, {u"<=", LessOrEqual}, {u"<>", Different}, {u"!=", Different},
                {u"=", Equal},           {u">", Greater},      {u"<", Less}};
  for (const auto& [sign, comparison] : kSigns) {
    if (text.starts_with(sign)) return {sign.size(), comparison};
  }
  return {0, Equal};
}

std::size_t or_word(TextView text) { return any_word(kOr, text); }
std::size_t and_word(TextView text) { return any_word(kAnd, text); }
std::size_t not_word(TextView text) { return any_word(kNot, text); }

FoundPhrase null_phrase(TextView text) { return any_phrase(kNullPhrases, text); }
FoundPhrase like_phrase(TextView text) { return any_phrase(kLikePhrases, text); }

bool is_null_word(TextView text) { return any_equal(kNullWords, text); }

std::optional<bool> truth_in(TextView text) {
  if (any_equal(kTrue, text)) return true;
  if (any_equal(kFalse, text)) return false;
  return std::nullopt;
}

TextView truth_word(bool truth) {
  switch (thread_state().idioma.Idioma()) {
    case language::kEnglish: return truth ? u"yes" : u"no";
    case language::kFrench: return truth ? u"oui" : u"non";
    default: return truth ? u"s\u00ed" : u"no";
  }
}

FoundRange range_word(TextView text) {
  for (const RangeWords& words : kRanges) {
    if (const std::size_t length = word_length(text, words.from)) return {length, &words};
  }
  return {};
}

std::size_t last_end_word(TextView text, const RangeWords& words) { return any_word(words.to, text); }
std::size_t up_to_word(TextView text) { return any_word(kUpTo, text); }

}  // namespace qvr::query
