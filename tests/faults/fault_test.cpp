// Every case, with a failure at each of its allocations.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>

#include "faults/fault_case.h"

namespace qvr::tests {
namespace {

constexpr std::size_t kMostAllocations = 5000;

std::vector<FaultCase> all_cases() {
  std::vector<FaultCase> all;
  for (auto* cases : {first_object_cases, frame_cases, qvrcfp_cases, qvrcfp_sql_cases, csql20_cases,
                      csql20_search_cases, usql20_cases, qvrscr_cases, qvrprp_cases}) {
    std::ranges::move(cases(), std::back_inserter(all));
  }
  return all;
}

// What a call leads to.
struct Course {
  std::string result, state;
  Lines log;
};

Course course_of(Stage& stage) {
  stage.call();
  Lines log = stage.log();
  return {stage.result(), stage.state(), std::move(log)};
}

class FaultTest : public ::testing::TestWithParam<FaultCase> {
 protected:
  FaultTest() {
    const auto stage = row.make();
    before = stage->state();
    good = course_of(*stage);
    again = course_of(*stage);
  }

  // Whether the n-th allocation was there to fail.
  bool try_with_failure(std::size_t nth, Shortage shortage) {
    const auto stage = row.make();
    bool failed = false;
    {
      FailingAllocations failing(nth, shortage);
      stage->call();
      failed = failing.failed();
    }
    const Lines log = stage->log();
    const Course course{stage->result(), stage->state(), log};
    if (failed) {
      check_failed(course, shortage);
    } else {
      check_good(course);
    }
    if (!::testing::Test::HasFailure()) check_next(*stage, course);
    return failed;
  }

  void check_good(const Course& course) const {
    EXPECT_EQ(course.result, row.expected);
    EXPECT_EQ(course.state, good.state);
    check_log(course, std::nullopt);
  }

  // A failure may be survived, but the result and the state must tell the same.
  void check_failed(const Course& course, Shortage shortage) const {
    const bool result_of_failure = std::ranges::find(row.failures, course.result) != row.failures.end();
    EXPECT_TRUE(result_of_failure || course.result == row.expected) << course.result;
    EXPECT_TRUE((is_left(course.state) && result_of_failure) ||
                (course.state == good.state && course.result == row.expected))
        << "result: " << course.result << "\nstate: " << course.state << "\nbefore: " << before
        << "\nafter a success: " << good.state;
    check_log(course, shortage);
  }

  bool is_left(const std::string& state) const {
    if (row.leaves != Failed::LineByLine) return state == (row.leaves == Failed::Emptied ? row.emptied : before);
    std::istringstream lines(state), lines_before(before), lines_after(good.state);
    for (std::string line, line_before, line_after; std::getline(lines, line);) {
      std::getline(lines_before, line_before);
      std::getline(lines_after, line_after);
      if (line != line_before && line != line_after) return false;
    }
    return std::ranges::count(state, '\n') == std::ranges::count(before, '\n');
  }

  void check_log(const Course& course, std::optional<Shortage> shortage) const {
    if (row.check_log) return row.check_log(course.log, course.result, shortage);
    if (course.log == row.log) return;
    EXPECT_TRUE(shortage) << ::testing::PrintToString(course.log);
    EXPECT_TRUE(course.log.empty() ||
                (course.log.size() == 1 && std::ranges::find(row.boxes, course.log[0]) != row.boxes.end()))
        << ::testing::PrintToString(course.log);
  }

  // Memory is there again. What had failed now succeeds; what had succeeded is done a second time.
  void check_next(Stage& stage, const Course& course) const {
    const bool was_done = course.result == row.expected && course.state == good.state;
    const bool was_not = course.state == before || row.leaves == Failed::Emptied;
    const Course next = course_of(stage);
    if (row.leaves == Failed::LineByLine) {
      EXPECT_EQ(next.state, good.state);
      return;
    }
    const auto equals = [&next](const Course& other) {
      return next.result == other.result && next.state == other.state && next.log == other.log;
    };
    EXPECT_TRUE((was_done && equals(again)) || (was_not && equals(good)))
        << "result: " << next.result << "\nstate: " << next.state << "\nlog: " << ::testing::PrintToString(next.log)
        << "\nfirst success: " << good.state;
  }

  const FaultCase& row = GetParam();
  std::string before;
  Course good, again;
};

TEST_P(FaultTest, LeavesNothingHalfDone) {
  check_good(good);
  ASSERT_FALSE(HasFailure());
  std::size_t points = 0;
  for (const Shortage shortage : {Shortage::Once, Shortage::Lasting}) {
    bool failed = true;
    for (std::size_t nth = 1; failed; ++nth) {
      SCOPED_TRACE(::testing::Message() << "allocation " << nth << (shortage == Shortage::Once ? "" : " and further"));
      ASSERT_LT(nth, kMostAllocations);
      const std::size_t live = live_allocations();
      failed = try_with_failure(nth, shortage);
      ASSERT_FALSE(HasFailure());
      EXPECT_EQ(live_allocations(), live) << "not given back";
      points += failed;
    }
  }
  EXPECT_EQ(points > 0, row.allocates) << points << " points";
  RecordProperty("points", static_cast<int>(points));
}

std::string test_name(const ::testing::TestParamInfo<FaultCase>& info) {
  std::string name;
  for (const char c : info.param.name) name += std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
  return name + "_" + std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(Members, FaultTest, ::testing::ValuesIn(all_cases()), test_name);

// "QVRcfp.Crear" for each member of the library's classes; "cSQL20.Tag=" for a property that is written.
std::set<std::string> members_of_the_type_library() {
  std::ifstream file(QVR_TESTS_TYPE_LIBRARY);
  std::set<std::string> members;
  std::string owner;
  for (std::string line; std::getline(file, line);) {
    constexpr std::string_view kInterface = "dual interface _";
    if (line.starts_with(kInterface))
      owner = line.substr(kInterface.size(), line.find(' ', kInterface.size()) - kInterface.size());
    if (!line.starts_with(' ')) {
      if (!line.starts_with(kInterface)) owner.clear();
      continue;
    }
    const auto slot = line.find(" slot "), end = line.find('(');
    if (owner.empty() || owner == "iSQL20" || slot == std::string::npos) continue;
    std::string name = line.substr(line.find(' ', slot + 6) + 1, end - line.find(' ', slot + 6) - 1);
    const bool put = name.starts_with("put ");
    if (put || name.starts_with("get ")) name.erase(0, 4);
    if (name.starts_with("iSQL20_")) name.erase(0, 7);
    members.insert(owner + "." + name + (put ? "=" : ""));
  }
  return members;
}

TEST(FaultCases, CoverEveryMember) {
  std::set<std::string> covered;
  for (const FaultCase& row : all_cases()) covered.insert(row.name.substr(0, row.name.find(',')));
  const std::set<std::string> members = members_of_the_type_library();
  EXPECT_GT(members.size(), 100u);
  for (const std::string& member : members) EXPECT_TRUE(covered.contains(member)) << member;
}

}  // namespace
}  // namespace qvr::tests
