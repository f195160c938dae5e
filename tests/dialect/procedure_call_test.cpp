#include "dialect/procedure_call.h"

#include "dialect/dialect_fixture.h"
#include "support/describe.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

class ProcedureCallTest : public DialectTest {
 protected:
  ProcedureCallTest() { thread.log.take(); }

  bool call(Value& parameters, Engine engine = Engine::SqlServer) {
    return dialect::EjecutarProcSQL7(engine, connection.get(), u"dbo.Alta", parameters);
  }
  // The parameters' values afterwards, in order.
  static Lines elements(const Value& parameters) {
    Lines described;
    for (const Value& item : parameters.as<Array>()->items) described.push_back(describe(item));
    return described;
  }

  const std::unique_ptr<services::AdoConnection> connection = thread.ado.new_connection();
};

const Lines kPrepared = {"new Command", "Command.ActiveConnection", "Command.CommandText: dbo.Alta",
                         "Command.CommandType: 4", "Parameters.Refresh"};

Lines then(Lines first, const Lines& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

TEST_F(ProcedureCallTest, PassesTheElementsAndGivesTheParametersBack) {
  Value parameters = list({5, u"Ana", Null{}});
  thread.ado.procedure_outputs = {{0, 0}, {1, 7}, {2, u"Eva"}, {3, Date{1}}};
  EXPECT_TRUE(call(parameters));
  EXPECT_EQ(thread.log.take(),
            then(kPrepared, {"Parameters.Item.Value: 1=Long 5", "Parameters.Item.Value: 2=String Ana",
                             "Parameters.Item.Value: 3=Null", "Command.Execute: dbo.Alta",
                             "Parameters.Item.Value read: 0", "Parameters.Item.Value read: 1",
                             "Parameters.Item.Value read: 2", "Parameters.Item.Value read: 3", "Command released"}));
  EXPECT_EQ(elements(parameters), (Lines{"Long 7", "String Eva", "Date 1"}));
}

TEST_F(ProcedureCallTest, OnlySqlServerIsCalled) {
  for (const Engine engine : {Engine::Jet, Engine::Oracle, kNoEngine, Engine{-1}, Engine{4}}) {
    SCOPED_TRACE(number_of(engine));
    Value parameters = list({5});
    EXPECT_FALSE(call(parameters, engine));
    EXPECT_EQ(thread.log.take(), Lines());
    EXPECT_EQ(elements(parameters), Lines{"Long 5"});
    Value nothing;
    EXPECT_FALSE(dialect::EjecutarProcSQL7(engine, nullptr, u"", nothing));
  }
  EXPECT_EQ(traced(), Traces(10, u"QVRcfp.EjecutarProcSQL7: 5 The engine is not SQL Server"));
}

// Each element goes to the parameter after its own index, so that a zero-based list begins with the first.
TEST_F(ProcedureCallTest, TheIndexOfAnElementTellsItsParameter) {
  struct Row {
    std::int32_t lower;
    std::string first, second;
  };
  for (const Row& row : {Row{0, "1", "2"}, Row{1, "2", "3"}, Row{-1, "0", "1"}, Row{10, "11", "12"}}) {
    SCOPED_TRACE(row.lower);
    Value parameters = list({5, 6}, row.lower);
    thread.ado.procedure_outputs = {{0, 0}};
    EXPECT_TRUE(call(parameters));
    EXPECT_EQ(thread.log.take(),
              then(kPrepared, {"Parameters.Item.Value: " + row.first + "=Long 5",
                               "Parameters.Item.Value: " + row.second + "=Long 6", "Command.Execute: dbo.Alta",
                               "Parameters.Item.Value read: 0", "Parameters.Item.Value read: " + row.first,
                               "Parameters.Item.Value read: " + row.second, "Command released"}));
    EXPECT_EQ(parameters.as<Array>()->lower, row.lower);
  }
}

TEST_F(ProcedureCallTest, WithoutParametersOnlyTheReturnValueIsRead) {
  Value parameters = list({});
  EXPECT_TRUE(call(parameters));
  EXPECT_EQ(thread.log.take(),
            then(kPrepared, {"Command.Execute: dbo.Alta", "Parameters.Item.Value read: 0", "Command released"}));
}

struct ReturnValueRow {
  const char* name;
  Value returned;
  bool succeeds;
};
const ReturnValueRow kReturnValueRows[] = {
    {"zero", 0, true},
    {"zero as a Double", 0.0, true},
    {"Empty", Empty{}, true},
    {"text of zero", u"0", true},
    {"false", false, true},
    {"Currency of zero", Currency{0}, true},
    {"one", 1, false},
    {"minus one", -1, false},
    {"a half", 0.5, false},
    {"text of three", u"3", false},
    {"true", true, false},
    {"Null", Null{}, false},
    {"last digit of Currency", Currency{1}, false},
};

using ReturnValue = Rows<ProcedureCallTest, ReturnValueRow>;

TEST_P(ReturnValue, GivesSomethingBackWhenItIsZero) {
  const ReturnValueRow& row = GetParam();
  Value parameters = list({u"in"});
  thread.ado.procedure_outputs = {{0, row.returned}, {1, u"out"}};
  EXPECT_EQ(call(parameters), row.succeeds);
  Lines log = then(kPrepared, {"Parameters.Item.Value: 1=String in", "Command.Execute: dbo.Alta",
                               "Parameters.Item.Value read: 0"});
  if (row.succeeds) log.push_back("Parameters.Item.Value read: 1");
  log.push_back("Command released");
  EXPECT_EQ(thread.log.take(), log);
  EXPECT_EQ(elements(parameters), Lines{row.succeeds ? "String out" : "String in"});
  EXPECT_EQ(traced(), row.succeeds ? Traces() : Traces{u"QVRcfp.EjecutarProcSQL7: 5 The procedure did not return 0"});
}

INSTANTIATE_TEST_SUITE_P(, ReturnValue, ::testing::ValuesIn(kReturnValueRows), row_name);

TEST_F(ProcedureCallTest, AReturnValueThatIsNoNumberIsAFailure) {
  for (const Value& returned : {Value(u"abc"), object(), Value(Missing{}), list({0})}) {
    Value parameters = list({u"in"});
    thread.ado.procedure_outputs = {{0, returned}, {1, u"out"}};
    EXPECT_EQ(thrown_by([&] { return call(parameters); }), "RuntimeFailure 13");
    EXPECT_EQ(thread.log.take().back(), "Command released");
    EXPECT_EQ(elements(parameters), Lines{"String in"});
  }
}

TEST_F(ProcedureCallTest, WithoutAConnectionItIsNotSet) {
  Value parameters = list({5});
  EXPECT_EQ(thrown_by([&] { return dialect::EjecutarProcSQL7(Engine::SqlServer, nullptr, u"p", parameters); }),
            "RuntimeFailure 91");
  EXPECT_EQ(thread.log.take(), (Lines{"new Command", "Command released"}));
}

TEST_F(ProcedureCallTest, ParametersThatAreNoListAreAFailure) {
  struct Row {
    const char* name;
    Value parameters;
    std::string thrown;
  };
  const Row kRows[] = {
      {"a number", 5, "RuntimeFailure 13"},
      {"Empty", Empty{}, "RuntimeFailure 13"},
      {"two dimensions", square({1, 2}), "CallerFailure 9"},
      {"without bounds", shapeless(), "CallerFailure 9"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.name);
    Value parameters = row.parameters;
    EXPECT_EQ(thrown_by([&] { return call(parameters); }), row.thrown);
    EXPECT_EQ(thread.log.take(), then(kPrepared, {"Command released"}));
    EXPECT_EQ(describe(parameters), describe(row.parameters));
  }
}

TEST_F(ProcedureCallTest, AnIndexWithoutASuccessorIsAFailure) {
  Value parameters = list({5}, INT32_MAX);
  EXPECT_EQ(thrown_by([&] { return call(parameters); }), "RuntimeFailure 6");
  EXPECT_EQ(thread.log.take(), then(kPrepared, {"Command released"}));
}

}  // namespace
}  // namespace qvr::tests
