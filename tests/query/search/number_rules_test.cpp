// Which texts are numbers: marks of thousands and decimals, blanks, currencies.
#include <regex>

#include "base/utf8.h"
#include "query/search/search_fixture.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

struct NumberRow {
  const char* name;
  UserLanguage language;
  TextView typed, literal;  // no literal: no number
};
constexpr NumberRow kNumberRows[] = {
    {"two marks of decimals", kSpanish, u"1,23,456", u""},
    {"two marks of decimals before three digits", kSpanish, u"12,5,000", u""},
    {"thousands of two digits", kSpanish, u"1.23.456", u""},
    {"thousands before too many digits", kSpanish, u"12.34.567", u""},
    {"thousands behind decimals", kSpanish, u"1,234.5", u""},
    {"thousands of three digits behind decimals", kSpanish, u"1,5.000", u""},
    {"thousands at the end", kSpanish, u"1.234.", u""},
    {"thousands", kSpanish, u"1.234", u" 1234"},
    {"thousands and decimals", kSpanish, u"1.234,50", u" 1234.5"},
    {"millions", kSpanish, u"12.345.678", u" 12345678"},
    {"a point before four digits", kSpanish, u"1.2345", u" 1.2345"},
    {"a point before two digits", kSpanish, u"1.25", u" 1.25"},
    {"a zero before a point", kSpanish, u"0.123", u" 0.123"},
    {"a zero before a point, negative", kSpanish, u"-0.500", u"-0.5"},
    {"a zero before two points", kSpanish, u"0.123.456", u""},
    {"a blank before three digits", kSpanish, u"1 000", u" 1000"},
    {"blanks before three digits and decimals", kSpanish, u"1 000 000,5", u" 1000000.5"},
    {"a no-break blank before three digits", kSpanish, u"1\u00a0000", u" 1000"},
    {"a narrow blank before three digits", kSpanish, u"1\u202f000", u" 1000"},
    {"a blank before two digits", kSpanish, u"10 20", u""},
    {"pasted cells", kSpanish, u"100 200 30", u""},
    {"a blank before one digit", kSpanish, u"1 2", u""},
    {"a blank before four digits", kSpanish, u"1 2345", u""},
    {"a blank behind a mark of decimals", kSpanish, u"5, 6", u""},
    {"a blank before a mark of decimals", kSpanish, u"5 ,6", u""},
    {"a blank behind decimals", kSpanish, u"1,5 000", u""},
    {"a blank behind thousands", kSpanish, u"1. 000", u""},
    {"a currency sign behind", kSpanish, u"5 \u20ac", u" 5"},
    {"a currency sign behind without a blank", kSpanish, u"5\u20ac", u" 5"},
    {"a currency sign before", kSpanish, u"\u20ac5", u" 5"},
    {"another currency sign", kSpanish, u"$ 1.234,5", u" 1234.5"},
    {"a currency code behind", kSpanish, u"5 EUR", u" 5"},
    {"a currency code before", kSpanish, u"EUR 5", u" 5"},
    {"a currency sign at both ends", kSpanish, u"\u20ac5\u20ac", u""},
    {"a currency sign and a code", kSpanish, u"\u20ac 5 EUR", u""},
    {"a currency sign twice", kSpanish, u"5 \u20ac\u20ac", u""},
    {"a currency sign within", kSpanish, u"5\u20ac50", u""},
    {"a currency code within", kSpanish, u"5 EUR 50", u""},
    {"a currency sign alone", kSpanish, u"\u20ac", u""},
    {"a currency code alone", kSpanish, u"EUR", u""},
    {"a unit", kSpanish, u"5 kg", u""},
    {"percent", kSpanish, u"5 %", u""},
    {"a minus behind", kSpanish, u"5-", u""},
    {"two minuses", kSpanish, u"--5", u""},
    {"a minus within", kSpanish, u"1-000", u""},
    {"a mark alone", kSpanish, u",", u""},
    {"a sign alone", kSpanish, u"-", u""},
    {"more digits than engines keep", kSpanish, u"99999999999999999999999999999", u""},
    {"English thousands", kEnglish, u"1,234,567.5", u" 1234567.5"},
    {"English thousands of two digits", kEnglish, u"1,23,456", u""},
    {"English thousands behind decimals", kEnglish, u"12.5,000", u""},
    {"English, Spanish marks", kEnglish, u"1.234,5", u""},
    {"English, two marks of decimals", kEnglish, u"1.23.456", u""},
    {"English, a zero before a comma", kEnglish, u"0,123", u" 0.123"},
    {"English, a comma before two digits", kEnglish, u"1,25", u" 1.25"},
    {"English, a blank before three digits", kEnglish, u"1 000.5", u" 1000.5"},
    {"English, a blank before two digits", kEnglish, u"10 20", u""},
    {"French thousands", kFrench, u"1 234 567,5", u" 1234567.5"},
    {"French thousands of two digits", kFrench, u"1 23 456", u""},
    {"French thousands behind decimals", kFrench, u"12,5 000", u""},
    {"French, two marks of decimals", kFrench, u"1,23,456", u""},
    {"French, a currency code", kFrench, u"1 234,5 EUR", u" 1234.5"},
};

using SearchedNumber = Rows<SpanishSearch, NumberRow>;

TEST_P(SearchedNumber, IsReadStrictly) {
  const auto& [name, language, typed, literal] = GetParam();
  speak(thread, language);
  for (const TextView before : {u"", u"=", u">= ", u"<>", u"!", u"1 o ", u"7..", u"entre 7 y ", u"hasta "}) {
    const Text all = join({before, typed}), found = interpreted(kPrecio, Engine::SqlServer, all);
    EXPECT_EQ(found == u"no search", literal.empty()) << to_utf8(all) << "\n" << to_utf8(found);
  }
  if (literal.empty()) return;
  const auto found = query::interpret_search(Engine::SqlServer, kPrecio, typed, u"Precio");
  ASSERT_TRUE(found);
  EXPECT_EQ(found->condition, join({u"P.Precio=", literal}));
}

INSTANTIATE_TEST_SUITE_P(, SearchedNumber, ::testing::ValuesIn(kNumberRows), row_name);

// The value of a text of digits, "." for thousands, "," for decimals and blanks, as people write them; nothing for what
// is none, and "?" for what this reader would rather not judge.
std::optional<std::string> written(const std::string& text) {
  static const std::regex kUnclear(
      "[., ].*|.*[., ]|.*(  |\\.\\.).*|\\d{4,}([. ]\\d{3})+(,\\d+)?|"
      "(?=.*\\.)(?=.* )\\d{1,3}([. ]\\d{3})+(,\\d+)?|0+\\d.*|0 .*");
  static const std::regex kPlain("\\d+(,\\d+)?"), kGroups("[1-9]\\d{0,2}((\\.\\d{3})+|( \\d{3})+)(,\\d+)?");
  static const std::regex kPoint("0\\.\\d+|(\\d+|[1-9]\\d{0,2}( \\d{3})+)\\.(\\d{1,2}|\\d{4,})");
  std::string digits;
  if (std::regex_match(text, kUnclear)) return "?";
  if (std::regex_match(text, kPoint)) return std::regex_replace(text, std::regex(" "), "");
  if (!std::regex_match(text, kPlain) && !std::regex_match(text, kGroups)) return std::nullopt;
  for (const char unit : text) {
    if (unit != '.' && unit != ' ') digits += unit == ',' ? '.' : unit;
  }
  return digits;
}

// All texts of up to seven such characters.
TEST_F(SpanishSearch, NumbersWithMarksInWrongPlacesAreNeverOtherNumbers) {
  constexpr std::string_view kUnits = "10., ";
  int numbers = 0, none = 0;
  for (std::size_t size = 1; size <= 7; ++size) {
    std::string text(size, '1');
    std::size_t all = 1;
    for (std::size_t i = 0; i < size; ++i) all *= kUnits.size();
    for (std::size_t number = 0; number < all; ++number) {
      std::size_t rest = number;
      for (char& unit : text) unit = kUnits[rest % kUnits.size()], rest /= kUnits.size();
      if (text.find_first_of(".,") == std::string::npos && text.find(' ') == std::string::npos) continue;
      const auto expected = written(text);
      if (expected == "?") continue;
      const auto found = query::interpret_search(Engine::Jet, {u"X", u'N'}, from_utf8(text).value(), u"X");
      ASSERT_EQ(found.has_value(), expected.has_value()) << text;
      ++(expected ? numbers : none);
      if (expected) {
        const std::string condition = to_utf8(found->condition);
        ASSERT_EQ(std::stod(condition.substr(2)), std::stod(*expected)) << text << "\n" << condition;
      }
    }
  }
  EXPECT_GT(numbers, 700);
  EXPECT_GT(none, 1000);
}

}  // namespace
}  // namespace qvr::tests
