// Runs every case with a failure at each of its allocations.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>

#include "faults/failing_allocations.h"
#include "faults/fault_case.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

const FaultCases& all_cases() {
  static const FaultCases kAll = [] {
    FaultCases all;
    for (auto* cases : {session_cases, qvrcfp_cases, query_cases, qvrscr_cases, qvrprp_cases}) {
      std::ranges::move(cases(), std::back_inserter(all));
    }
    return all;
  }();
  return kAll;
}

// The outcome of a call.
struct Course {
  std::string result;
  Lines texts, log;
};

Course course_of(Stage& stage) {
  stage.call();
  Lines log = stage.log();
  return {stage.result(), stage.texts(), std::move(log)};
}

bool shows_something(const std::string& line) { return line.starts_with("Box") || line.starts_with("Report"); }

// A box or report of the failure itself, whole.
bool tells_out_of_memory(const std::string& line) {
  return line.starts_with("Report: 7|Out of memory|QVRlib21|") ||
         line.starts_with(
             "Box OK: Error indeterminado\r\n\r\nError 7: Out of memory (QVRlib21)\r\n\r\nM\u00e9todo: ") ||
         (line.starts_with("Box OK: Obj") && line.ends_with(" 7: Out of memory") &&
          std::ranges::count(line, '\n') == 2);
}

bool asks(const std::string& line) { return line == "Box Yes/No: \u00bfDesea que se ejecuten los restantes comandos?"; }

void expect_each_in(const Lines& lines, const Lines& some, const Lines& others) {
  for (const std::string& line : lines) {
    EXPECT_TRUE(line.empty() || std::ranges::count(some, line) > 0 || std::ranges::count(others, line) > 0) << line;
  }
}

class OutOfMemory : public ::testing::TestWithParam<FaultCase> {
 protected:
  OutOfMemory() { expect_any_traces(); }

  // Whether the n-th allocation was there to fail.
  bool try_with_failure(std::size_t nth, Shortage shortage) {
    const std::size_t live = live_allocations();
    bool failed = false;
    {
      const auto stage = row.make();
      {
        FailingAllocations failing(nth, shortage);
        stage->call();
        failed = failing.failed();
      }
      if (failed) check_failed(*stage);
      check_next(*stage);
    }
    if (HasFailure()) return false;  // what was told of it stays
    EXPECT_EQ(live_allocations(), live) << "not given back";
    return failed;
  }

  void check_failed(Stage& stage) const {
    const Lines log = stage.log();
    const std::string result = stage.result();
    EXPECT_TRUE(result == row.failed || (row.may_succeed && result == once.result)) << result;
    expect_each_in(stage.texts(), before, once.texts);
    for (const std::string& line : log) {
      EXPECT_TRUE(!shows_something(line) || tells_out_of_memory(line) || asks(line) ||
                  std::ranges::count(once.log, line) > 0)
          << line;
    }
    EXPECT_LE(std::ranges::count_if(log, tells_out_of_memory), 1);
    if (row.check_log) row.check_log(log, result);
  }

  // With memory available again the same call succeeds.
  void check_next(Stage& stage) const {
    const Course next = course_of(stage);
    EXPECT_TRUE(next.result == once.result || next.result == twice.result) << next.result;
    expect_each_in(next.texts, once.texts, twice.texts);
    expect_each_in(next.log, once.log, twice.log);
  }

  void try_each_allocation(Shortage shortage) {
    bool failed = true;
    for (std::size_t nth = 1; failed && !HasFailure(); ++nth) {
      SCOPED_TRACE(::testing::Message() << "allocation " << nth << (shortage == Shortage::Once ? "" : " and further"));
      failed = try_with_failure(nth, shortage);
    }
  }

  const FaultCase& row = GetParam();
  const std::unique_ptr<Stage> undisturbed = row.make();
  const Lines before = undisturbed->texts();
  const Course once = course_of(*undisturbed), twice = course_of(*undisturbed);
};

TEST_P(OutOfMemory, LeavesADefaultResultAndWholeTexts) {
  EXPECT_TRUE(once.result != row.failed || once.texts != before || !once.log.empty()) << "the call does nothing";
  if (row.check_log) row.check_log(once.log, once.result);
  try_each_allocation(Shortage::Once);
  if (row.lasting) return try_each_allocation(Shortage::Lasting);
  SCOPED_TRACE("no memory at all");
  try_with_failure(1, Shortage::Lasting);
}

std::string test_name(const ::testing::TestParamInfo<FaultCase>& info) {
  std::string name;
  for (const char c : info.param.name) {
    if (std::isalnum(static_cast<unsigned char>(c))) name += c;
    else if (c == '=') name += "_written";
    else if (!name.ends_with('_')) name += '_';
  }
  return name;
}

INSTANTIATE_TEST_SUITE_P(Members, OutOfMemory, ::testing::ValuesIn(all_cases()), test_name);

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
