// SQL injection: whatever is typed, a condition consists of tests of its column against literals.
#include "base/utf8.h"
#include "query/search/condition_evaluator.h"
#include "query/search/search_fixture.h"

#include <random>

namespace qvr::tests {
namespace {

constexpr char16_t kHalf = 0xd800;  // of a pair
constexpr TextView kFragments[] = {u"'",
                                   u"''",
                                   u"\"",
                                   u"\"\"",
                                   u"\u201c",
                                   u"\u2019",
                                   u";",
                                   u"--",
                                   u"/*",
                                   u"*/",
                                   u"%",
                                   u"_",
                                   u"[",
                                   u"]",
                                   u"*",
                                   u"?",
                                   u"(",
                                   u")",
                                   u"=",
                                   u"<",
                                   u">",
                                   u"<>",
                                   u">=",
                                   u"!",
                                   u"&",
                                   u"|",
                                   u" ",
                                   u" ",
                                   u" ",
                                   u"..",
                                   u".",
                                   u",",
                                   u"-",
                                   u"+",
                                   u" and ",
                                   u" or ",
                                   u" y ",
                                   u" o ",
                                   u"like ",
                                   u"LIKE ",
                                   u"es como ",
                                   u"es nulo",
                                   u"is null",
                                   u"entre ",
                                   u" a ",
                                   u"de ",
                                   u"no ",
                                   u"s\u00ed",
                                   u"ESCAPE '",
                                   u"UPPER(",
                                   u"N'",
                                   u"Null",
                                   u"{ d '",
                                   u"'}",
                                   u"#",
                                   u"TO_DATE('",
                                   u"X",
                                   u"ana",
                                   u"1",
                                   u"10",
                                   u"1.5",
                                   u"2011",
                                   u"05/01/2011",
                                   u"14:07",
                                   u"hoy",
                                   u"esta semana",
                                   u"mes pasado",
                                   u"next year",
                                   u"T1",
                                   u"enero",
                                   u"5 de enero de 2011",
                                   u"Jan ",
                                   u"1er janvier",
                                   u"\u00faltimos 7 d\u00edas",
                                   u"last ",
                                   u" derniers jours",
                                   u"desde ",
                                   u" hasta ",
                                   u"a partir de ",
                                   u"until ",
                                   u"jusqu'\u00e0 ",
                                   u"no es nulo",
                                   u"is not null",
                                   u"NOT LIKE ",
                                   u"vacio",
                                   u"EUR",
                                   u" 000",
                                   u"9999",
                                   u"1011",
                                   u"31/12/9999",
                                   u"!=",
                                   u"\u00f1",
                                   u"\\",
                                   u"$",
                                   u"/",
                                   u"\r\n",
                                   u"\t",
                                   u"\u00a0",
                                   u"\U0001f600",
                                   TextView(&kHalf, 1),
                                   TextView(u"\0", 1)};

class SearchShape : public ::testing::TestWithParam<char16_t> {
 protected:
  Text typed() {
    Text text;
    for (std::size_t more = 1 + below(10); more > 0; --more) text += kFragments[below(std::size(kFragments))];
    return text;
  }

  TestThread thread;

 private:
  std::size_t below(std::size_t limit) { return static_cast<std::size_t>(random_() % limit); }

  std::mt19937_64 random_{GetParam()};
};

TEST_P(SearchShape, DoesNotDependOnWhatIsTyped) {
  speak(thread, kSpanish);
  int searches = 0;
  for (int round = 0; round < QVR_TESTS_RANDOM_SEARCHES; ++round) {
    const Text text = typed();
    const Engine engine = static_cast<Engine>(1 + round % 3);
    const auto found = query::interpret_search(engine, {u"X", GetParam()}, text, u"X");
    if (!found) continue;
    ++searches;
    ASSERT_TRUE(is_condition(engine, found->condition)) << to_utf8(text) << "\n" << to_utf8(found->condition);
    ASSERT_LE(joints(engine, found->condition), kMostJoints) << to_utf8(text) << "\n" << to_utf8(found->condition);
    if (round % 4 != 0) continue;
    const auto again = query::interpret_search(engine, {u"X", GetParam()}, TextView(found->criterion).substr(2), u"X");
    ASSERT_TRUE(again) << to_utf8(text) << "\n" << to_utf8(found->criterion);
    ASSERT_EQ(again->condition, found->condition) << to_utf8(text) << "\n" << to_utf8(found->criterion);
  }
  EXPECT_GT(searches, QVR_TESTS_RANDOM_SEARCHES / 100);
}

INSTANTIATE_TEST_SUITE_P(Types, SearchShape, ::testing::Values(u'T', u'M', u'N', u'F', u'L'),
                         [](const auto& each) { return std::string(1, static_cast<char>(each.param)); });

}  // namespace
}  // namespace qvr::tests
