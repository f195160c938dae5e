// What each member does when memory runs out at any point of a call.
//
// A case makes a call on a fresh object again and again, each time with another of its allocations failing, first that
// one alone and then that one and all behind it. Every try must end in the result and the state of a call that
// succeeded or of one that failed, whole; the same call must succeed afterwards; and nothing may be left behind.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "base/failure.h"
#include "faults/failing_allocations.h"
#include "support/describe.h"
#include "support/test_thread.h"

namespace qvr::tests {

// One fresh object with its surroundings. Only `call` is made while memory runs out.
class Stage {
 public:
  virtual ~Stage() = default;
  virtual void call() = 0;
  virtual std::string result() const = 0;
  virtual std::string state() = 0;  // all that the object shows
  virtual Lines log() = 0;          // boxes, reports, events and ADO since the last time
};

using Texts = std::vector<std::string>;

// How a failed call leaves the object: as it was; not created, whatever it was; or each line of its state as before or
// as after a success.
enum class Failed { Unchanged, Emptied, LineByLine };

struct FaultCase {
  std::string name;      // the member, then perhaps ", " and which of its ways
  std::string expected;  // the result when nothing fails
  Texts failures;        // the results when memory ran out
  std::function<std::unique_ptr<Stage>()> make;

  Failed leaves = Failed::Unchanged;
  std::string emptied = {};  // the state of an emptied object
  bool allocates = true;     // whether there is anything to fail
  Texts boxes = {};          // those that may tell of the failure, at most one in a call
  Lines log = {};            // of a call that succeeds
  // Instead of the two above: what holds of every log, with the call's result and the shortage that it was made in.
  std::function<void(const Lines&, const std::string& result, std::optional<Shortage>)> check_log = {};
};

// For the failures of a test that has cases as its parameters.
inline void PrintTo(const FaultCase& row, std::ostream* out) { *out << row.name; }

std::string shown(const Text& text);
std::string shown(TextView text);
inline std::string shown(bool truth) { return truth ? "True" : "False"; }
inline std::string shown(std::int32_t number) { return std::to_string(number); }
inline std::string shown(std::int16_t number) { return std::to_string(number); }
inline std::string shown(const Value& value) { return describe(value); }
std::string shown(const std::vector<Value>& values);

// For calls without a result.
struct Done {};
inline std::string shown(Done) { return ""; }

// For members that may raise.
struct Answer {
  std::optional<std::int32_t> raised;
  Text text;
};
std::string shown(const Answer& answer);

template <class Call>
Answer answer_of(const Call& call) {
  try {
    return {std::nullopt, call()};
  } catch (const CallerFailure& failure) {
    return {failure.detail().number, {}};
  }
}

// A stage on a fixture: `thread`, `state()` and whatever the call works on.
template <class Fixture, class Call>
class StageOn final : public Stage {
 public:
  explicit StageOn(Call call) : call_(std::move(call)) { fixture_.thread.log.take(); }
  void call() override { result_.emplace(call_(fixture_)); }
  std::string result() const override { return result_ ? shown(*result_) : "none"; }
  std::string state() override { return fixture_.state(); }
  Lines log() override { return fixture_.thread.log.take(); }

 private:
  Fixture fixture_;
  Call call_;
  std::optional<std::invoke_result_t<Call&, Fixture&>> result_;
};

template <class Fixture, class Call>
FaultCase fault_case(std::string name, std::string expected, Texts failures, Call call) {
  const auto make = [call] { return std::make_unique<StageOn<Fixture, Call>>(call); };
  return {std::move(name), std::move(expected), std::move(failures), make};
}

// The box of a member that shows its failures, in Spanish and for want of memory.
std::string out_of_memory_box(const std::string& object, const std::string& method);

// The cases of each class.
std::vector<FaultCase> first_object_cases();
std::vector<FaultCase> frame_cases();
std::vector<FaultCase> qvrcfp_cases();
std::vector<FaultCase> qvrcfp_sql_cases();
std::vector<FaultCase> csql20_cases();
std::vector<FaultCase> csql20_search_cases();
std::vector<FaultCase> usql20_cases();
std::vector<FaultCase> qvrscr_cases();
std::vector<FaultCase> qvrprp_cases();

}  // namespace qvr::tests
