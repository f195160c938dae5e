// Members under out of memory.  A case makes its call on a fresh object again and again, each time with another of its
// allocations failing. Such a call gives the member's default result, every text that the object shows is whole, the
// object goes on working and nothing is left behind.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "support/describe.h"
#include "support/test_thread.h"

namespace qvr::tests {

// One fresh object with its surroundings. Only `call` is made while memory runs out.
class Stage {
 public:
  virtual ~Stage() = default;
  virtual void call() = 0;
  virtual std::string result() const = 0;
  virtual Lines texts() = 0;  // all that the object shows
  virtual Lines log() = 0;    // boxes, reports, events and ADO since the last time
};

struct FaultCase {
  std::string name;    // the member, then perhaps ", " and which of its ways
  std::string failed;  // the member's default result
  std::function<std::unique_ptr<Stage>()> make;
  // What holds of every call's log, beyond that its boxes and reports are whole.
  void (*check_log)(const Lines&, const std::string& result) = nullptr;
  bool may_succeed = false;  // the member, or the standard library, gets by without one of its allocations
  bool lasting = false;      // also with all allocations failing from the n-th on
};

// For the failures of a test that has cases as its parameters.
inline void PrintTo(const FaultCase& row, std::ostream* out) { *out << row.name; }

// For calls without a result.
struct Done {};

// For members that may raise.
struct Answer {
  std::optional<std::int32_t> raised;
  Text text;
};

template <class Call>
Answer answer_of(const Call& call) {
  try {
    return {std::nullopt, call()};
  } catch (const RuntimeFailure& failure) {
    return {failure.detail().number, {}};
  } catch (const std::bad_alloc&) {
    return {};  // as the automation side has it
  }
}

inline std::string shown(TextView text) { return to_utf8(text); }
inline std::string shown(const Text& text) { return to_utf8(text); }
inline std::string shown(bool truth) { return truth ? "True" : "False"; }
inline std::string shown(std::int32_t number) { return std::to_string(number); }
inline std::string shown(Engine engine) { return std::to_string(number_of(engine)); }
inline std::string shown(std::int16_t number) { return std::to_string(number); }
inline std::string shown(const Value& value) { return describe(value); }
inline std::string shown(Done) { return ""; }
inline std::string shown(const Answer& answer) {
  return answer.raised ? "error " + std::to_string(*answer.raised) : shown(answer.text);
}

// A stage on a fixture, which has `thread`, `texts()` and whatever the call works on.
template <class Fixture, class Call>
class StageOn final : public Stage {
 public:
  using Result = std::invoke_result_t<Call&, Fixture&>;

  explicit StageOn(Call made) : call_(std::move(made)) { fixture_.thread.log.take(); }
  void call() override { result_.emplace(call_(fixture_)); }
  std::string result() const override { return shown(result_.value()); }
  Lines texts() override { return fixture_.texts(); }
  Lines log() override { return fixture_.thread.log.take(); }

 private:
  Fixture fixture_;
  Call call_;
  std::optional<Result> result_;
};

template <class Fixture, class Call>
FaultCase fault_case(std::string name, Call call) {
  using On = StageOn<Fixture, Call>;
  return {std::move(name), shown(typename On::Result{}), [call] { return std::make_unique<On>(call); }};
}

// The same for a call without a result.
template <class Fixture, class Call>
FaultCase fault_case_of_change(std::string name, Call call) {
  return fault_case<Fixture>(std::move(name), [call](Fixture& fixture) { return call(fixture), Done(); });
}

using FaultCases = std::vector<FaultCase>;
FaultCases session_cases();
FaultCases qvrcfp_cases();
FaultCases query_cases();
FaultCases qvrscr_cases();
FaultCases qvrprp_cases();

}  // namespace qvr::tests
