// What only one of the drivers can do: long texts as outputs, and a return value of its own.
#include "automation/parameter_host.h"
#include "servers/procedures/server_procedures.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

class OnPostgreSql : public ServerProcedures {
 protected:
  void define_function(const std::wstring& parameters, const std::wstring& type, const std::wstring& expression) {
    run(L"drop function if exists f");
    run(L"create function f(" + parameters + L") returns " + type + L" language sql as $$ select " + expression +
        L" $$");
  }
};

TEST_F(OnPostgreSql, LongTextsComeBackWhole) {
  for (const int length : {0, 1, 4000, 70000}) {
    for (const wchar_t* const letter : {L"a", L"\u00f1", L"\u0141", L"\U0001F600"}) {
      const std::wstring sql = std::wstring(L"repeat('") + letter + L"', " + std::to_wstring(length) + L")";
      SCOPED_TRACE(narrow(sql));
      define(L"uno", L"out dato text", L"select " + sql + L" into dato;");
      std::wstring text;
      for (int i = 0; i < length; ++i) text += letter;
      Var early_list = array_of({Var()}), late_list = array_of({Var()}, 0, VT_BSTR);
      EXPECT_TRUE(call_early(connection.get(), L"uno", &early_list.raw()));
      EXPECT_TRUE(call_late(connection.get(), L"uno", Var::by_reference(late_list)));
      // Not shown where they differ: they are long.
      EXPECT_TRUE(describe(early_list.raw()) == "VARIANT(0) {BSTR " + narrow(text) + "}");
      EXPECT_TRUE(describe(late_list.raw()) == "BSTR(0) {BSTR " + narrow(text) + "}");
    }
  }
}

TEST_F(OnPostgreSql, NullsGoInAndComeBack) {
  define(L"ida", L"inout a int, inout b text, inout c timestamp, inout d numeric, inout e boolean", L"");
  const Var nulls = array_of({Var::null(), Var::null(), Var::null(), Var::null(), Var::null()});
  expect_call(L"ida", nulls, true, describe(nulls.raw()));
}

TEST_F(OnPostgreSql, BothDirectionsChangeEveryType) {
  define(L"ida", L"inout a int, inout b text, inout c timestamp, inout d numeric, inout e boolean",
         L"select a + 1, concat(b, 'x'), c + interval '1 day', d * 2, not e into a, b, c, d, e;");
  expect_call(L"ida", array_of({1, L"\u0141", Var::date(1.5), Var(L"1.25").as(VT_DECIMAL), false}), true,
              "VARIANT(0) {I4 2; BSTR \u0141x; DATE 2.500000; DECIMAL 2.5; BOOL true}");
}

TEST_F(OnPostgreSql, AFunctionsReturnValueDecides) {
  define_function(L"a int", L"int", L"a");
  expect_call(L"f", array_of({0}), true, "VARIANT(0) {I4 0}");
  expect_call(L"f", array_of({Var(), 0}, -1), true, "VARIANT(-1) {I4 0; I4 0}");
  expect_call(L"f", array_of({5}), false, "VARIANT(0) {I4 5}");
  expect_call(L"f", array_of({Var::null()}), false, "VARIANT(0) {Null}");
  EXPECT_EQ(traced(), Traces(12, u"QVRcfp.EjecutarProcSQL7: 5 The procedure did not return 0"));
}

struct Returned {
  const char* type;
  const wchar_t *sql_type, *expression;
  Var width;
  const char* value;
};

const Returned kReturned[] = {
    {"INT", L"int", L"-7", 0, "I4 -7"},
    {"BIT", L"boolean", L"true", 0, "BOOL true"},
    {"REAL", L"real", L"0.5::real", 0, "R4 0.5"},
    {"NVARCHAR", L"varchar", L"'\u0141ukasz'::varchar", 20, "BSTR \u0141ukasz"},
    {"DATETIME", L"timestamp", L"timestamp '2011-01-05 12:00:00'", 0, "DATE 40548.500000"},
};

TEST_F(OnPostgreSql, AHostsOwnCommandHasAReturnValueOfEachType) {
  const ParameterHost host;
  host.use(2);
  for (const Returned& row : kReturned) {
    SCOPED_TRACE(row.type);
    define_function(L"a int", row.sql_type, row.expression);
    const LateObject command(L"ADODB.Command");
    EXPECT_EQ(command.put(L"ActiveConnection", connection.get()).result, S_OK);
    EXPECT_EQ(command.put(L"CommandText", L"f").result, S_OK);
    EXPECT_EQ(command.put(L"CommandType", 4).result, S_OK);
    const std::string type = row.type;
    EXPECT_EQ(host.append_early(command.get(),
                                {std::wstring(type.begin(), type.end()), L"r", Var::missing(), row.width, 4}),
              "BOOL true");
    EXPECT_EQ(host.append_late(command.get(), {L"INT", L"a", 1}), "BOOL true");
    const LateAnswer executed = command.call(L"Execute");
    EXPECT_EQ(executed.result, S_OK) << narrow(executed.description);
    EXPECT_TRUE(described_parameter(command, 0).ends_with(std::string("direction 4, ") + row.value))
        << described_parameter(command, 0);
  }
}

}  // namespace
}  // namespace qvr::tests
