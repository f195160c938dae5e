#include "automation/sql_members.h"

#include <array>

#include "automation/boxes.h"

namespace qvr::tests {
namespace {

enum class Passing { Value, Variable, Content };

struct Way {
  Passing passing;
  const char* name;
};

constexpr std::array kWays = {Way{Passing::Value, "by value"}, Way{Passing::Variable, "as a script's variables"},
                              Way{Passing::Content, "as typed variables"}};

Passed pass(const std::vector<Var>& values, Passing passing) {
  Passed passed{values, {}};
  for (Var& variable : passed.variables) {
    // Variables of these two kinds have no type to refer to.
    const bool typeless = variable.type() == VT_EMPTY || variable.type() == VT_NULL;
    if (passing == Passing::Value) {
      passed.arguments.push_back(variable);
    } else if (passing == Passing::Variable || typeless) {
      passed.arguments.push_back(Var::by_reference(variable));
    } else {
      passed.arguments.push_back(Var::by_content(variable));
    }
  }
  return passed;
}

std::vector<std::string> described(const std::vector<Var>& values) {
  std::vector<std::string> all;
  for (const Var& value : values) all.push_back(describe(value.raw()));
  return all;
}

}  // namespace

void SqlMembers::use(int engine) {
  for (const LateObject& object : {late, other}) {
    const LateAnswer done = object.call(L"Asignar", {L"id", engine, L"", L"", L"", L"", L"", L"", L"", L""});
    ASSERT_EQ(describe(done.value.raw()), "BOOL true");
  }
}

void SqlMembers::expect(const std::string& name, const EarlyCall& slot, const std::vector<Var>& arguments,
                        const Outcome& expected) {
  for (const Way& way : kWays) {
    SCOPED_TRACE(name + ", " + way.name);
    expect_outcome(name, slot, pass(arguments, way.passing), expected);
  }
}

void SqlMembers::expect_outcome(const std::string& name, const EarlyCall& slot, Passed passed,
                                const Outcome& expected) {
  const std::vector<std::string> before = described(passed.variables);
  Person person;
  Bstr result;
  const HRESULT status = slot(*early.Get(), &passed, &result);
  const std::size_t boxes_early = person.boxes().size();
  const LateAnswer answer = late.call(std::wstring(name.begin(), name.end()).c_str(), passed.arguments);
  expect_same(answer, status, early_result(result), "BSTR " + narrow(expected.text));
  EXPECT_EQ(boxes_early, expected.box.empty() ? 0u : 1u);
  ASSERT_EQ(person.boxes().size(), 2 * boxes_early);
  for (const Person::Box& box : person.boxes()) {
    EXPECT_EQ(narrow(box.title), "QVRlib21");
    EXPECT_EQ(narrow(box.text), narrow(expected.box));
    EXPECT_FALSE(box.question);
  }
  EXPECT_EQ(described(passed.variables), before) << "an argument was changed";
  EXPECT_EQ(traced(), expected.trace.empty() ? Traces() : Traces(2, expected.trace));
}

}  // namespace qvr::tests
