// Conditions select the rows that the user meant, by each engine's own rules; criteria can be typed again.
#include <algorithm>

#include "base/utf8.h"
#include "query/condition_chain.h"
#include "query/search/random_searches.h"
#include "query/search/search_fixture.h"

namespace qvr::tests {
namespace {

constexpr int kRounds = std::min(1500, QVR_TESTS_RANDOM_SEARCHES / 20);

struct Column {
  char16_t letter;
  Engine engine;
};

std::string name_of(const ::testing::TestParamInfo<Column>& info) {
  constexpr const char* kEngines[] = {"Jet", "SqlServer", "Oracle"};
  return std::string(1, static_cast<char>(info.param.letter)) + kEngines[number_of(info.param.engine) - 1];
}

class SearchMeaning : public ::testing::TestWithParam<Column> {
 protected:
  std::optional<query::Interpretation> interpret(TextView typed) const {
    return query::interpret_search(GetParam().engine, {u"X", GetParam().letter}, typed, u"X");
  }
  RandomSearches searches(std::uint64_t seed) const { return {seed, thread.locale, GetParam().engine}; }
  // The next search, on one day after the other.
  MeantSearch next(RandomSearches& random, int round) {
    const std::chrono::sys_days today =
        RandomSearches::kTodays[static_cast<std::size_t>(round) % std::size(RandomSearches::kTodays)];
    constexpr int kFirstOf1970 = 25569;  // as a Date
    thread.system.moment = Date{static_cast<double>(kFirstOf1970 + today.time_since_epoch().count()) + 0.75};
    random.today_is(today);
    return random.next(GetParam().letter);
  }

  TestThread thread;
};

TEST_P(SearchMeaning, IsWhatTheConditionSelects) {
  speak(thread, kSpanish);
  const std::vector<Cell> rows = RandomSearches::rows(GetParam().letter, GetParam().engine);
  const std::size_t step = 1 + rows.size() / 80;  // the rows in turn where there are many
  RandomSearches random = searches(1);
  for (int round = 0; round < kRounds; ++round) {
    const MeantSearch search = next(random, round);
    const auto found = interpret(search.typed);
    ASSERT_TRUE(found) << to_utf8(search.typed);
    for (std::size_t row = static_cast<std::size_t>(round) % step; row < rows.size(); row += step) {
      const auto selected = selects(GetParam().engine, found->condition, rows[row]);
      ASSERT_TRUE(selected) << to_utf8(search.typed) << "\n" << to_utf8(found->condition);
      ASSERT_EQ(*selected, search.meant(rows[row])) << to_utf8(search.typed) << "\n"
                                                    << to_utf8(found->condition) << "\nrow " << row;
    }
  }
}

TEST_P(SearchMeaning, CanBeTypedAgainAsShown) {
  for (const UserLanguage language : {kSpanish, kEnglish, kFrench}) {
    speak(thread, language);
    RandomSearches random = searches(2);
    for (int round = 0; round < kRounds; ++round) {
      const MeantSearch search = next(random, round);
      const auto found = interpret(search.typed);
      ASSERT_TRUE(found) << to_utf8(search.typed);
      const auto again = interpret(TextView(found->criterion).substr(2));  // without the label
      ASSERT_TRUE(again) << to_utf8(search.typed) << "\n" << to_utf8(found->criterion);
      ASSERT_EQ(again->condition, found->condition) << to_utf8(search.typed) << "\n" << to_utf8(found->criterion);
      ASSERT_EQ(again->criterion, found->criterion) << to_utf8(search.typed);
    }
  }
}

// A condition is taken for one that is there already only when it is.
TEST_P(SearchMeaning, IsNeverLostBehindAnotherSearch) {
  speak(thread, kSpanish);
  RandomSearches random = searches(3);
  for (int round = 0; round < kRounds; ++round) {
    const auto first = interpret(next(random, round).typed), second = interpret(next(random, round).typed);
    ASSERT_TRUE(first && second);
    query::ConditionChain chain;
    ASSERT_TRUE(chain.add(first->condition));
    ASSERT_EQ(chain.add(second->condition), !equal_no_case(first->condition, second->condition))
        << to_utf8(first->condition) << "\n"
        << to_utf8(second->condition);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Columns, SearchMeaning,
    ::testing::Values(Column{u'T', Engine::Jet}, Column{u'T', Engine::SqlServer}, Column{u'T', Engine::Oracle},
                      Column{u'M', Engine::Jet}, Column{u'M', Engine::SqlServer}, Column{u'M', Engine::Oracle},
                      Column{u'N', Engine::Jet}, Column{u'N', Engine::SqlServer}, Column{u'N', Engine::Oracle},
                      Column{u'F', Engine::Jet}, Column{u'F', Engine::SqlServer}, Column{u'F', Engine::Oracle},
                      Column{u'L', Engine::Jet}, Column{u'L', Engine::SqlServer}, Column{u'L', Engine::Oracle}),
    name_of);

}  // namespace
}  // namespace qvr::tests
