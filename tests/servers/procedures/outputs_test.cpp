// The values that a stored procedure gives back, in every kind of array that a host may have for them.
#include "servers/procedures/server_procedures.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

class ProcedureOutputs : public ServerProcedures {
 protected:
  // A procedure whose only parameter gives this SQL expression as a value of this type.
  void define_output(const wchar_t* type, const std::wstring& expression) {
    define(L"uno", std::wstring(L"out dato ") + type, L"select " + expression + L" into dato;");
  }
};

struct Output {
  const char* name;
  ByServer type;
  const wchar_t* expression;
  const char* value;
};

constexpr Output kOutputs[] = {
    {"small number", L"smallint", L"-7", "I2 -7"},
    {"tiny number", {L"tinyint", nullptr}, L"-100", "I2 -100"},
    {"number", L"int", L"123456", "I4 123456"},
    {"least number", L"int", L"-2147483648", "I4 -2147483648"},
    {"large number", L"bigint", L"9007199254740993", "I8 9007199254740993"},
    {"single", {L"float", L"real"}, L"0.5", "R4 0.5"},
    {"double", L"double precision", L"-2.5", "R8 -2.500000"},
    {"amount", L"decimal(19,2)", L"12345678901234567.89", "DECIMAL 12345678901234567.89"},
    {"most digits", L"decimal(29,0)", L"-79228162514264337593543950335", "DECIMAL -79228162514264337593543950335"},
    {"most decimals", L"decimal(28,28)", L"0.1234567890123456789012345678", "DECIMAL 0.1234567890123456789012345678"},
    {"day", {nullptr, L"date"}, L"date '2011-01-05'", "DATE 40548.000000"},
    {"moment", {nullptr, L"timestamp"}, L"timestamp '2011-01-05 12:00:00'", "DATE 40548.500000"},
    {"first day", {nullptr, L"timestamp"}, L"timestamp '0100-01-01 00:00:00'", "DATE -657434.000000"},
    {"before day 0", {nullptr, L"timestamp"}, L"timestamp '1899-12-29 06:00:00'", "DATE -1.250000"},
    {"day 0", {nullptr, L"timestamp"}, L"timestamp '1899-12-30 00:00:00'", "DATE 0.000000"},
    {"last moment", {nullptr, L"timestamp"}, L"timestamp '9999-12-31 18:00:00'", "DATE 2958465.750000"},
    {"truth", {nullptr, L"boolean"}, L"true", "BOOL true"},
    {"untruth", {nullptr, L"boolean"}, L"false", "BOOL false"},
    {"text",
     {nullptr, L"varchar"},
     L"'O''Hara \u00f1 \u20ac \u0141 \U0001F600'",
     "BSTR O'Hara \u00f1 \u20ac \u0141 \U0001F600"},
    {"no letters", {nullptr, L"varchar"}, L"''", "BSTR "},
    {"long text", {nullptr, L"text"}, L"'a'", "BSTR a"},
    {"Null", {nullptr, L"int"}, L"null", "Null"},
    {"Null text", {nullptr, L"varchar"}, L"null", "Null"},
    {"Null day", {nullptr, L"date"}, L"null", "Null"},
    {"Null amount", {nullptr, L"numeric"}, L"null", "Null"},
};

TEST_F(ProcedureOutputs, GoIntoAnArrayOfVariantsAsTheyAre) {
  for_rows_here(kOutputs, [&](const Output& row) {
    define_output(row.type.here(), row.expression);
    expect_call(L"uno", array_of({Var()}), true, std::string("VARIANT(0) {") + row.value + "}");
  });
}

TEST_F(ProcedureOutputs, ReplaceWhatTheElementsHeld) {
  define_output(L"int", L"7");
  for (const Var& before : {Var(5), Var(L"12"), Var::null(), Var(2.5)}) {
    SCOPED_TRACE(describe(before.raw()));
    expect_call(L"uno", array_of({before}), true, "VARIANT(0) {I4 7}");
  }
}

struct Conversion {
  const char* name;
  ByServer type;
  const wchar_t* expression;
  VARTYPE array;
  Var before;
  const char* after;
};

const Conversion kConversions[] = {
    {"number into I4", L"int", L"7", VT_I4, 1, "I4(0) {I4 7}"},
    {"number into I2", L"int", L"7", VT_I2, 1, "I2(0) {I2 7}"},
    {"number into UI1", L"int", L"7", VT_UI1, 1, "UI1(0) {UI1 7}"},
    {"number into R8", L"int", L"7", VT_R8, 1, "R8(0) {R8 7.000000}"},
    {"number into R4", L"int", L"7", VT_R4, 1, "R4(0) {R4 7}"},
    {"number into CY", L"int", L"7", VT_CY, 1, "CY(0) {CY 7}"},
    {"number into I8", L"int", L"7", VT_I8, 1, "I8(0) {I8 7}"},
    {"number into DECIMAL", L"int", L"7", VT_DECIMAL, 1, "DECIMAL(0) {DECIMAL 7}"},
    {"number into BSTR", L"int", L"7", VT_BSTR, 1, "BSTR(0) {BSTR 7}"},
    {"number into BOOL", L"int", L"1", VT_BOOL, 0, "BOOL(0) {BOOL true}"},
    {"text into I4", {nullptr, L"text"}, L"'8'", VT_I4, 1, "I4(0) {I4 8}"},
    {"text into BSTR", {nullptr, L"text"}, L"'a'", VT_BSTR, 1, "BSTR(0) {BSTR a}"},
    {"truth into BSTR", {nullptr, L"boolean"}, L"true", VT_BSTR, 1, "BSTR(0) {BSTR True}"},
    {"truth into I4", {nullptr, L"boolean"}, L"true", VT_I4, 5, "I4(0) {I4 -1}"},
    {"amount into R8", L"decimal(9,2)", L"2.25", VT_R8, 1, "R8(0) {R8 2.250000}"},
    {"amount into CY", L"decimal(19,4)", L"12345678.9012", VT_CY, 1, "CY(0) {CY 12345678.9012}"},
    {"amount into DECIMAL", L"decimal(9,2)", L"2.25", VT_DECIMAL, 1, "DECIMAL(0) {DECIMAL 2.25}"},
    {"large number into I8", L"bigint", L"-9223372036854775807", VT_I8, 1, "I8(0) {I8 -9223372036854775807}"},
    {"day into DATE", {nullptr, L"date"}, L"date '2011-01-05'", VT_DATE, 0, "DATE(0) {DATE 40548.000000}"},
};

TEST_F(ProcedureOutputs, FitAnArrayOfOneType) {
  for_rows_here(kConversions, [&](const Conversion& row) {
    define_output(row.type.here(), row.expression);
    expect_call(L"uno", array_of({row.before}, 0, row.array), true, row.after);
  });
}

struct Refusal {
  const char* name;
  ByServer type;
  const wchar_t* expression;
  VARTYPE array;
  const wchar_t* error;
  const char16_t* trace;
};

constexpr Refusal kRefusals[] = {
    {"text into I4", {nullptr, L"text"}, L"'abc'", VT_I4, L"Error 13: Type mismatch", u"13 Type mismatch"},
    {"text into R8", {nullptr, L"text"}, L"'abc'", VT_R8, L"Error 13: Type mismatch", u"13 Type mismatch"},
    {"100000 into I2", L"int", L"100000", VT_I2, L"Error 6: Overflow", u"6 Overflow"},
    {"3000000000 into I4", L"double precision", L"3000000000", VT_I4, L"Error 6: Overflow", u"6 Overflow"},
    {"Null into I4", {nullptr, L"int"}, L"null", VT_I4, L"Error 94: Invalid use of Null", u"94 Invalid use of Null"},
    {"Null into R8", {nullptr, L"int"}, L"null", VT_R8, L"Error 94: Invalid use of Null", u"94 Invalid use of Null"},
    {"Null into BSTR",
     {nullptr, L"int"},
     L"null",
     VT_BSTR,
     L"Error 94: Invalid use of Null",
     u"94 Invalid use of Null"},
};

// The first value fits and is not put either.
TEST_F(ProcedureOutputs, ThatDoNotFitAreReportedAndLeaveTheArray) {
  for_rows_here(kRefusals, [&](const Refusal& row) {
    define(L"dos", std::wstring(L"out a int, out b ") + row.type.here(),
           std::wstring(L"select 7 into a; select ") + row.expression + L" into b;");
    const Person person;
    const Var before = array_of({1, 2}, 0, row.array);
    expect_call(L"dos", before, false, describe(before.raw()));
    EXPECT_EQ(person.boxes().size(), 6u);
    for (const Person::Box& box : person.boxes()) {
      EXPECT_EQ(narrow(box.text), narrow(procedure_report(std::wstring(row.error) + L" (QVRlib21)", L"dos")));
    }
    EXPECT_EQ(traced(), Traces(6, u"QVRcfp.EjecutarProcSQL7: " + Text(row.trace)));
  });
}

TEST_F(ProcedureOutputs, OfSeveralTypesFitAnArrayOfTexts) {
  define(L"mezcla", L"out a decimal(9,2), out b int, out c double precision",
         L"select 2.25 into a; select 7 into b; select 3000000000 into c;");
  expect_call(L"mezcla", array_of({1, 2, 3}, 0, VT_BSTR), true, "BSTR(0) {BSTR 2.25; BSTR 7; BSTR 3000000000}");
}

// Each element goes to the parameter behind its index, in arrays of every type; one that begins below zero begins with
// the return value, one that begins above leaves parameters out.
TEST_F(ProcedureOutputs, GoByTheElementsIndex) {
  define(L"tres", L"in a int, inout b int, out c int", L"select b + 1 into c; select 6 into b;");
  for (const VARTYPE type :
       {VT_VARIANT, VT_I2, VT_I4, VT_I8, VT_UI1, VT_R4, VT_R8, VT_CY, VT_DATE, VT_BSTR, VT_DECIMAL}) {
    SCOPED_TRACE(type);
    const auto list = [&](std::vector<Var> items, LONG lower) { return array_of(items, lower, type); };
    expect_call(L"tres", list({4, 2, 0}, 0), true, describe(list({4, 6, 3}, 0).raw()));
    expect_call(L"tres", list({2, 0}, 1), true, describe(list({6, 3}, 1).raw()));
    expect_call(L"tres", list({1, 4, 2, 0}, -1), true, describe(list({0, 4, 6, 3}, -1).raw()));
    expect_call(L"tres", list({4, 2}, 0), true, describe(list({4, 6}, 0).raw()));
  }
}

TEST_F(ProcedureOutputs, FitAnArrayOfTruths) {
  define(L"dos", L"in a int, inout b int", L"select 2 into b;");
  for (const LONG lower : {0, 1}) {
    expect_call(L"dos", lower == 0 ? array_of({true, false}, 0, VT_BOOL) : array_of({false}, 1, VT_BOOL), true,
                lower == 0 ? "BOOL(0) {BOOL true; BOOL true}" : "BOOL(1) {BOOL true}");
  }
}

TEST_F(ProcedureOutputs, InputsComeBackAsTheParametersHoldThem) {
  define(L"entrada", L"in a int, in b varchar(20)", L"");
  expect_call(L"entrada", array_of({L"5", 7}), true, "VARIANT(0) {I4 5; BSTR 7}");
}

TEST_F(ProcedureOutputs, GoIntoAnArrayThatTheCallerHasLocked) {
  define_output(L"int", L"7");
  Var any = array_of({Var()}), typed = array_of({1}, 0, VT_I4);
  {
    const Locked first(any), second(typed);
    EXPECT_TRUE(call_early(connection.get(), L"uno", &any.raw()));
    EXPECT_TRUE(call_late(connection.get(), L"uno", Var::by_reference(typed)));
    EXPECT_EQ(any.raw().parray->cLocks, 1u) << "locks are balanced";
    EXPECT_EQ(typed.raw().parray->cLocks, 1u);
  }
  EXPECT_EQ(describe(any.raw()), "VARIANT(0) {I4 7}");
  EXPECT_EQ(describe(typed.raw()), "I4(0) {I4 7}");
}

TEST_F(ProcedureOutputs, GoThroughReferencesOfReferences) {
  define_output(L"int", L"7");
  Var array = array_of({Var()});
  Var content = Var::by_content(array);
  Var once = Var::by_reference(content);
  Var twice = Var::by_reference(once);
  EXPECT_TRUE(call_late(connection.get(), L"uno", twice));
  EXPECT_EQ(describe(array.raw()), "VARIANT(0) {I4 7}");
  array = array_of({Var()});
  content = Var::by_content(array);
  EXPECT_TRUE(call_early(connection.get(), L"uno", &twice.raw()));
  EXPECT_EQ(describe(array.raw()), "VARIANT(0) {I4 7}");
}

}  // namespace
}  // namespace qvr::tests
