// Limits of the length of searches, and linear run time.
#include "base/utf8.h"
#include "query/search/condition_evaluator.h"
#include "query/search/search_fixture.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

class SearchLengths : public SpanishSearch {
 protected:
  static void expect_none(const query::SearchColumn& column, TextView typed) {
    EXPECT_EQ(interpreted(column, Engine::Jet, typed), u"no search");
  }
  // A search, which is the same when it is typed as it is shown.
  static void expect_search(TextView typed) {
    const auto found = query::interpret_search(Engine::Jet, kNombre, typed, u"X");
    ASSERT_TRUE(found) << to_utf8(typed);
    const auto again = query::interpret_search(Engine::Jet, kNombre, TextView(found->criterion).substr(2), u"X");
    ASSERT_TRUE(again) << to_utf8(found->criterion);
    EXPECT_EQ(again->condition, found->condition);
  }

  const Text longest_ = Text(1000, u'a'), longer_ = Text(1001, u'a');
};

struct PlaceRow {
  const char* name;
  TextView before, behind;
};
constexpr PlaceRow kPlaces[] = {
    {"alone", u"", u""},
    {"between asterisks", u"*", u"*"},
    {"negated", u"!", u""},
    {"behind equals", u"=", u""},
    {"behind not equals, before an asterisk", u"<>", u"*"},
    {"behind LIKE", u"LIKE ", u""},
    {"behind a negated LIKE", u"<> LIKE ", u""},
    {"behind less", u"< ", u""},
    {"behind at most, before an asterisk", u"<=", u"*"},
    {"behind LIKE, between quoted asterisks", u"LIKE '*", u"*'"},
    {"behind LIKE in words, in quotes", u"es como '", u"'"},
    {"behind LIKE, in quotes before an asterisk", u"LIKE \"", u"\"*"},
    {"behind equals, in quotes", u"=\"", u"\""},
    {"last end of a range", u"a..", u""},
    {"first end of a range", u"", u"..b"},
    {"first end of a range in quotes", u"'", u"'..b"},
    {"last end of a range in quotes", u"0..\"", u"\""},
};

using OperandPlace = Rows<SearchLengths, PlaceRow>;

TEST_P(OperandPlace, HoldsNoMoreThanPeopleType) {
  const auto& [name, before, behind] = GetParam();
  expect_search(join({before, longest_, behind}));
  expect_none(kNombre, join({before, longer_, behind}));
}

INSTANTIATE_TEST_SUITE_P(, OperandPlace, ::testing::ValuesIn(kPlaces), row_name);

TEST_F(SearchLengths, AFileIsNoOperand) { expect_none(kNombre, Text(4 << 20, u'a')); }

TEST_F(SearchLengths, NumbersAndDatesAreNoLongerEither) {
  expect_none(kPrecio, Text(29, u'1'));
  const Text blanks(1000, u' '), fewer(900, u' ');
  expect(kPrecio, Engine::Jet,
         {{join({u"\u20ac", fewer, u"12..15"}), u"P.Precio>= 12 And P.Precio<= 15", u"Precio >= 12 y <= 15"},
          {join({u"\u20ac", blanks, u"12..15"}), u""}});
  expect(kAlta, Engine::Jet,
         {{join({u"hoy", fewer, u"-1..hoy"}), u"C.Alta>=#2011-01-04# And C.Alta<#2011-01-06#",
           u"Alta >= 04/01/2011 y <= 05/01/2011"},
          {join({u"hoy", blanks, u"-1..hoy"}), u""}});
}

// Quotes that a value needs where it is shown leave it as long as it is.
TEST_F(SearchLengths, ShownQuotesDoNotCount) {
  for (const TextView begin : {u"&", u"a  <", u"a' b"}) {
    const Text value = join({begin, TextView(longest_).substr(begin.size())});
    expect_search(join({u"=", value}));
    expect_search(join({u"LIKE ", value}));
  }
}

// Each end may be as long as one, and a quote of a value is two where it is shown.
TEST_F(SearchLengths, PiecesMayHoldTwoOperandsOrDoubledQuotes) {
  expect_search(join({longest_, u"..", Text(1000, u'b')}));
  const Text quotes(999, u'"');  // never closed: they are text
  for (const TextView before : {u"", u"!", u"=", u"<>", u"LIKE ", u"<> LIKE ", u"<="}) {
    expect_search(join({before, quotes}));
  }
  expect_search(join({u"=\"", quotes, quotes, u"\"\"\""}));
  expect_none(kNombre, join({u"=\"", quotes, quotes, u"\"\"\"\"\""}));
}

// What engines are sure to take, counted to the last.
class ConditionSize : public SearchLengths {
 protected:
  // So many pieces, "#" in each of them standing for its number.
  static Text pieces(TextView piece, TextView joint, int count) {
    Text all;
    for (int i = 1; i <= count; ++i) all += join({i == 1 ? TextView() : joint, replace_all(piece, u"#", decimal(i))});
    return all;
  }
  static void expect_at_most(int count, const query::SearchColumn& column, TextView piece, TextView joint) {
    for (const Engine engine : {Engine::Jet, Engine::SqlServer, Engine::Oracle}) {
      const Text most = pieces(piece, joint, count), more = pieces(piece, joint, count + 1);
      const auto found = query::interpret_search(engine, column, most, u"X");
      ASSERT_TRUE(found) << to_utf8(most);
      EXPECT_LE(joints(engine, found->condition), kMostJoints);
      const auto again = query::interpret_search(engine, column, TextView(found->criterion).substr(2), u"X");
      ASSERT_TRUE(again) << to_utf8(found->criterion);
      EXPECT_EQ(again->condition, found->condition);
      EXPECT_EQ(interpreted(column, engine, more), u"no search") << to_utf8(more);
    }
  }
};

TEST_F(ConditionSize, IsAtMostNinetyJoints) {
  expect_at_most(91, kPrecio, u">=#", u"; ");
  expect_at_most(91, kPrecio, u">=#", u" y ");
  expect_at_most(45, kPrecio, u"<>#", u" y ");     // each with "Or ... Is Null"
  expect_at_most(45, kPrecio, u"#..1000", u"; ");  // each with two ends
  expect_at_most(45, kPrecio, u"<>#", u" o ");
  expect_at_most(30, kPrecio, u"no entre # y 1000", u" y ");  // each with two ends and null
  expect_at_most(30, kAlta, u"<> hoy-#..hoy", u" & ");
  expect_at_most(30, kAlta, u"no hoy-#", u" o ");
  expect_at_most(45, kAlta, u"hoy+#", u"; ");
  expect_at_most(91, kNombre, u"a#", u" ");
  expect_at_most(91, kNombre, u"a#", u"; ");
  expect_at_most(45, kNombre, u"<>a#", u" & ");
  expect_at_most(45, kNombre, u"!a#", u"; ");
}

TEST_F(ConditionSize, HoldsNinetyOneNumbers) {
  for (const Engine engine : {Engine::Jet, Engine::SqlServer, Engine::Oracle}) {
    const auto found = query::interpret_search(engine, kPrecio, pieces(u"#", u"; ", 91), u"X");
    ASSERT_TRUE(found);
    EXPECT_LE(joints(engine, found->condition), kMostJoints);
  }
}

// Of each part of what is joined, not of what may be there by another name.
TEST_F(ConditionSize, DoesNotCountWordsThatAreSearched) {
  EXPECT_NE(interpreted(kNombre, Engine::Jet, join({u"\"", pieces(u"And Or", u" ", 100), u"\""})), u"no search");
}

TEST_F(ConditionSize, IsAtMostThirtyThousandCharacters) {
  for (const Engine engine : {Engine::Jet, Engine::SqlServer, Engine::Oracle}) {
    const auto search_of = [](std::size_t last) {  // alternatives of 900 characters, and one of so many
      Text all;
      for (int i = 0; i < 29; ++i) all += Text(900, u'a') + u";";
      return all + Text(last, u'b');
    };
    const auto shorter = query::interpret_search(engine, kNombre, search_of(1), u"X");
    ASSERT_TRUE(shorter);
    Text typed = search_of(1);
    std::size_t missing = kMostCharacters - shorter->condition.size();
    for (; missing > 450; missing -= 450) {
      const auto longer = query::interpret_search(engine, kNombre, typed + u";" + Text(100, u'c'), u"X");
      ASSERT_TRUE(longer);
      const std::size_t one_more = longer->condition.size() - (kMostCharacters - missing) - 100;
      typed += u";" + Text(450 - one_more, u'c');
    }
    typed += Text(missing, u'd');
    const auto longest = query::interpret_search(engine, kNombre, typed, u"X");
    ASSERT_TRUE(longest);
    EXPECT_EQ(longest->condition.size(), kMostCharacters);
    EXPECT_EQ(interpreted(kNombre, engine, typed + u"d"), u"no search");
  }
}

// With quadratic run time for blanks or for the search for ";" these would not terminate in time.
TEST_F(SearchLengths, VeryLongTextsAreRead) {
  constexpr std::size_t kLength = std::size_t{QVR_TESTS_LARGE_TEXT_MIB} * 10000;
  constexpr TextView kEither = u"C.Nombre LIKE '%a%' Or C.Nombre LIKE '%b%'";
  const Text blanks(kLength, u' ');
  expect(kNombre, Engine::Jet,
         {{join({u"a;", blanks, u"b"}), kEither, u"Nombre es como '*a*'; es como '*b*'"},
          {join({u"a", blanks, u";b"}), kEither, u"Nombre es como '*a*'; es como '*b*'"},
          {join({u"a", blanks, u"b"}), u""}});
  expect(kPrecio, Engine::Jet, {{join({u"1 o ", blanks, u"2"}), u"P.Precio= 1 Or P.Precio= 2", u"Precio = 1; = 2"}});
  Text signs;
  for (std::size_t i = 0; i < kLength / 8; ++i) signs += u"& ";
  expect(kNombre, Engine::Jet, {{join({signs, u"a"}), u""}, {join({u"a ", signs, u"; b"}), u""}});
  Text semicolons(kLength / 2, u';');
  expect(kPrecio, Engine::Jet, {{join({u"1", semicolons, u"2"}), u"P.Precio= 1 Or P.Precio= 2", u"Precio = 1; = 2"}});
  Text numbers;
  for (std::size_t i = 0; i < kLength / 2; ++i) numbers += u"1;";
  expect(kPrecio, Engine::Jet, {{numbers, u""}});
  Text likes;
  for (std::size_t i = 0; i < kLength / 8; ++i) likes += u"like a o ";
  expect(kNombre, Engine::Jet, {{likes, u""}});
}

}  // namespace
}  // namespace qvr::tests
