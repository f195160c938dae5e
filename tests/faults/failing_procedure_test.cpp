// Procedure calls in which each call to ADO fails in each way, and outputs that make no sense.
#include <algorithm>

#include "connection/qvrcfp.h"
#include "dialect/dialect_fixture.h"
#include "faults/ado_failures.h"
#include "faults/failing_allocations.h"
#include "faults/run_log.h"
#include "support/describe.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using Broken = RecordingAdo::Broken;

struct Call {
  Call() {
    ConnectionParameters of_engine;
    of_engine.MotorBD = Engine::SqlServer;
    cfp.Asignar(u"id", of_engine);
    thread.ado.procedure_outputs = {{0, 0}, {1, 7}, {2, u"out"}};
    thread.log.take();
  }
  bool call() { return cfp.EjecutarProcSQL7(connection.get(), u"dbo.Alta", parameters); }
  std::string elements() const {
    std::string all;
    for (const Value& item : parameters.as<Array>()->items) all += describe(item) + "|";
    return all;
  }

  TestThread thread;
  QVRcfp cfp;
  std::unique_ptr<services::AdoConnection> connection = thread.ado.new_connection();
  Value parameters = list({5, u"in"});
};

constexpr int kBefore = 1;  // the connection of the test
const std::string kIn = "Long 5|String in|", kOut = "Long 7|String out|";

int calls_of_one_that_succeeds() {
  Call good;
  EXPECT_TRUE(good.call());
  EXPECT_EQ(good.elements(), kOut);
  return good.thread.ado.call_count();
}

TEST(FailingProcedure, IsReportedOnceAndChangesNothing) {
  expect_any_traces();
  const int calls = calls_of_one_that_succeeds();
  EXPECT_EQ(calls, kBefore + 11);
  for (int nth = kBefore + 1; nth <= calls; ++nth) {
    for (const NamedFailure& failure : ado_failures()) {
      const NamedErrors& errors = ado_errors_at(nth, failure);
      for (const Broken broken : {Broken::No, Broken::Yes}) {
        SCOPED_TRACE(::testing::Message() << "call " << nth << ", " << failure.name << ", errors " << errors.name);
        const std::size_t live = live_allocations();
        {
          Call call;
          call.thread.ado.told_errors = errors.told;
          call.thread.ado.fail_call(nth, failure.thrower, broken);
          EXPECT_FALSE(call.call());
          EXPECT_EQ(call.elements(), kIn);
          const Lines log = call.thread.log.take();
          EXPECT_EQ(lines_that_begin(log, "Report"), 1u);
          EXPECT_EQ(lines_that_begin(log, "Connection"), 0u);
          EXPECT_EQ(lines_that_begin(log, "Command released"), nth == kBefore + 1 ? 0u : 1u);
          call.thread.ado.fail_call(0, nullptr, Broken::No);
          EXPECT_TRUE(call.call());
          EXPECT_EQ(call.elements(), kOut);
        }
        ASSERT_EQ(live_allocations(), live) << "not given back";
      }
    }
  }
}

struct Output {
  const char* name;
  Value value;
  bool succeeds;       // as the return value
  std::string passed;  // as the value of a parameter
};

const Output kOutputs[] = {
    {"no number", u"abc", false, "String abc"},
    {"an object", object(), false, "Object"},
    {"Nothing", ObjectRef(), false, "Nothing"},
    {"a missing value", Missing{}, false, "Missing"},
    {"an array", list({0}), false, "Array of 1"},
    {"an array without bounds", shapeless(), false, "Array of 0"},
    {"an error value", ErrorValue{0}, false, "Error 0"},
    {"not a number", std::numeric_limits<double>::quiet_NaN(), false, "Double nan"},
    {"infinity", std::numeric_limits<double>::infinity(), false, "Double inf"},
    {"the largest number", INT64_MAX, false, "LongLong 9223372036854775807"},
    {"a date that is none", Date{1e300}, false, "Date 1e+300"},
    {"Null", Null{}, false, "Null"},
    {"Empty", Empty{}, true, "Empty"},
};

TEST(FailingProcedure, TakesOnlyZeroForSuccess) {
  for (const Output& output : kOutputs) {
    SCOPED_TRACE(output.name);
    Call call;
    call.thread.ado.procedure_outputs[0] = output.value;
    EXPECT_EQ(call.call(), output.succeeds);
    EXPECT_EQ(call.elements(), output.succeeds ? kOut : kIn);
    const Lines log = call.thread.log.take();
    EXPECT_LE(lines_that_begin(log, "Report"), output.succeeds ? 0u : 1u);
    EXPECT_EQ(lines_that_begin(log, "Command released"), 1u);
  }
  Traces expected(7, trace_of(u"QVRcfp.EjecutarProcSQL7", 13));  // what is no number, then other numbers and Null
  expected.insert(expected.end(), 5, u"QVRcfp.EjecutarProcSQL7: 5 The procedure did not return 0");
  EXPECT_EQ(traced(), expected);
}

TEST(FailingProcedure, PassesOnWhateverAParameterHolds) {
  for (const Output& output : kOutputs) {
    SCOPED_TRACE(output.name);
    Call call;
    call.thread.ado.procedure_outputs[2] = output.value;
    EXPECT_TRUE(call.call());
    EXPECT_EQ(call.elements(), "Long 7|" + output.passed + "|");
  }
}

TEST(FailingParameter, AppendsNothingHalfMade) {
  expect_any_traces();
  const dialect::ParameterRequest request{u"NVARCHAR", u"@p", u"Ana", 50, 2};
  for (int nth = 1; nth <= 7; ++nth) {
    for (const NamedFailure& failure : ado_failures()) {
      for (const Broken broken : {Broken::No, Broken::Yes}) {
        SCOPED_TRACE(::testing::Message() << "call " << nth << ", " << failure.name);
        Call call;
        const auto command = call.thread.ado.new_command();
        call.thread.log.take();
        call.thread.ado.fail_call(kBefore + 1 + nth, failure.thrower, broken);
        const bool appended = call.cfp.AgregarParametroADO(command.get(), request);
        const Lines log = call.thread.log.take();
        EXPECT_FALSE(appended);
        EXPECT_EQ(lines_that_begin(log, "Parameter released"), nth == 1 ? 0u : 1u);
        EXPECT_EQ(lines_that_begin(log, "Parameters.Append"), nth == 7 ? 1u : 0u);
        call.thread.ado.fail_call(0, nullptr, Broken::No);
        EXPECT_TRUE(call.cfp.AgregarParametroADO(command.get(), request));
      }
    }
  }
}

}  // namespace
}  // namespace qvr::tests
