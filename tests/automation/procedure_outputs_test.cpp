// The values that a stored procedure gives back, in every kind of array that a host may have for them.
#include "automation/procedures.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

class ProcedureOutputs : public ProcedureCalls {
 protected:
  // A procedure whose only parameter gives this SQL expression as a value of this type.
  void define_output(ado::Type type, const wchar_t* expression, int size = 0) {
    const std::wstring statement = std::wstring(L"select ") + expression;
    database.run(L"delete from ado_parameters");
    database.run(L"delete from ado_steps");
    database.define(L"Uno", {{L"@Dato", type, ado::kOutput, size}}, {{statement.c_str(), 1}});
  }
};

struct Output {
  const char* name;
  ado::Type type;
  const wchar_t* expression;
  const char* value;
};

constexpr Output kOutputs[] = {
    {"SmallInt", ado::kSmallInt, L"-7", "I2 -7"},
    {"Integer", ado::kInteger, L"123456", "I4 123456"},
    {"UnsignedTinyInt", ado::kUnsignedTinyInt, L"200", "UI1 200"},
    {"BigInt", ado::kBigInt, L"9007199254740993", "I8 9007199254740993"},
    {"Single", ado::kSingle, L"'0.5'", "R4 0.5"},
    {"Double", ado::kDouble, L"'-2.5'", "R8 -2.500000"},
    {"Currency", ado::kCurrency, L"'12.3456'", "CY 12.3456"},
    {"Numeric", ado::kNumeric, L"'12345678901234567.89'", "DECIMAL 12345678901234567.89"},
    {"Date", ado::kDate, L"'2011-01-05'", "DATE 40548.000000"},
    {"DbTimeStamp", ado::kDbTimeStamp, L"'2011-01-05 12:00:00'", "DATE 40548.500000"},
    {"Boolean", ado::kBoolean, L"1", "BOOL true"},
    {"VarWChar", ado::kVarWChar, L"'O''Hara \u00f1'", "BSTR O'Hara \u00f1"},
    {"Null", ado::kInteger, L"null", "Null"},
};

using ProcedureOutput = Rows<ProcedureOutputs, Output>;

TEST_P(ProcedureOutput, GoesIntoAnArrayOfVariantsAsItIs) {
  const Output& row = GetParam();
  define_output(row.type, row.expression, row.type == ado::kVarWChar ? 20 : 0);
  expect_call(L"Uno", array_of({Var()}), true, std::string("VARIANT(0) {") + row.value + "}");
}

INSTANTIATE_TEST_SUITE_P(, ProcedureOutput, testing::ValuesIn(kOutputs), row_name);

TEST_F(ProcedureOutputs, ReplaceWhatTheElementsHeld) {
  define_output(ado::kInteger, L"7");
  for (const Var& before : {Var(5), Var(L"12"), Var::null(), Var(2.5)}) {
    SCOPED_TRACE(describe(before.raw()));
    expect_call(L"Uno", array_of({before}), true, "VARIANT(0) {I4 7}");
  }
}

struct Conversion {
  const char* name;
  ado::Type type;
  const wchar_t* expression;
  VARTYPE array;
  Var before;
  const char* after;
};

const Conversion kConversions[] = {
    {"Integer into I4", ado::kInteger, L"7", VT_I4, 1, "I4(0) {I4 7}"},
    {"Integer into I2", ado::kInteger, L"7", VT_I2, 1, "I2(0) {I2 7}"},
    {"Integer into UI1", ado::kInteger, L"7", VT_UI1, 1, "UI1(0) {UI1 7}"},
    {"Integer into R8", ado::kInteger, L"7", VT_R8, 1, "R8(0) {R8 7.000000}"},
    {"Integer into R4", ado::kInteger, L"7", VT_R4, 1, "R4(0) {R4 7}"},
    {"Integer into CY", ado::kInteger, L"7", VT_CY, 1, "CY(0) {CY 7}"},
    {"Integer into I8", ado::kInteger, L"7", VT_I8, 1, "I8(0) {I8 7}"},
    {"Integer into DECIMAL", ado::kInteger, L"7", VT_DECIMAL, 1, "DECIMAL(0) {DECIMAL 7}"},
    {"Integer into BSTR", ado::kInteger, L"7", VT_BSTR, 1, "BSTR(0) {BSTR 7}"},
    {"Integer into BOOL", ado::kInteger, L"1", VT_BOOL, 0, "BOOL(0) {BOOL true}"},
    {"text into I4", ado::kVarWChar, L"'8'", VT_I4, 1, "I4(0) {I4 8}"},
    {"text into BSTR", ado::kVarWChar, L"'a'", VT_BSTR, 1, "BSTR(0) {BSTR a}"},
    {"truth into BSTR", ado::kBoolean, L"1", VT_BSTR, 1, "BSTR(0) {BSTR True}"},
    {"truth into I4", ado::kBoolean, L"1", VT_I4, 5, "I4(0) {I4 -1}"},
    {"Numeric into R8", ado::kNumeric, L"'2.25'", VT_R8, 1, "R8(0) {R8 2.250000}"},
    {"Numeric into DECIMAL", ado::kNumeric, L"'2.25'", VT_DECIMAL, 1, "DECIMAL(0) {DECIMAL 2.25}"},
    {"Date into DATE", ado::kDate, L"'2011-01-05'", VT_DATE, 0, "DATE(0) {DATE 40548.000000}"},
};

using ConvertedOutput = Rows<ProcedureOutputs, Conversion>;

TEST_P(ConvertedOutput, FitsAnArrayOfOneType) {
  const Conversion& row = GetParam();
  define_output(row.type, row.expression, row.type == ado::kVarWChar ? 20 : 0);
  expect_call(L"Uno", array_of({row.before}, 0, row.array), true, row.after);
}

INSTANTIATE_TEST_SUITE_P(, ConvertedOutput, testing::ValuesIn(kConversions), row_name);

struct Refusal {
  const char* name;
  ado::Type type;
  const wchar_t* expression;
  VARTYPE array;
  const wchar_t* error;
  const char16_t* trace;
};

constexpr Refusal kRefusals[] = {
    {"text into I4", ado::kVarWChar, L"'abc'", VT_I4, L"Error 13: Type mismatch", u"13 Type mismatch"},
    {"text into R8", ado::kVarWChar, L"'abc'", VT_R8, L"Error 13: Type mismatch", u"13 Type mismatch"},
    {"100000 into I2", ado::kInteger, L"100000", VT_I2, L"Error 6: Overflow", u"6 Overflow"},
    {"3000000000 into I4", ado::kDouble, L"'3000000000'", VT_I4, L"Error 6: Overflow", u"6 Overflow"},
    {"Null into I4", ado::kInteger, L"null", VT_I4, L"Error 94: Invalid use of Null", u"94 Invalid use of Null"},
    {"Null into R8", ado::kInteger, L"null", VT_R8, L"Error 94: Invalid use of Null", u"94 Invalid use of Null"},
    {"Null into BSTR", ado::kInteger, L"null", VT_BSTR, L"Error 94: Invalid use of Null", u"94 Invalid use of Null"},
};

using RefusedOutput = Rows<ProcedureOutputs, Refusal>;

// The first value fits and is not put either.
TEST_P(RefusedOutput, IsReportedAndLeavesTheArray) {
  const Refusal& row = GetParam();
  const int size = row.type == ado::kVarWChar ? 20 : 0;
  const std::wstring statement = std::wstring(L"select ") + row.expression;
  database.define(L"Dos", {{L"@a", ado::kInteger, ado::kOutput}, {L"@b", row.type, ado::kOutput, size}},
                  {{L"select 7", 1}, {statement.c_str(), 2}});
  const Person person;
  const Var before = array_of({1, 2}, 0, row.array);
  expect_call(L"Dos", before, false, describe(before.raw()));
  ASSERT_EQ(person.boxes().size(), 6u);
  for (const Person::Box& box : person.boxes()) {
    EXPECT_EQ(narrow(box.text), narrow(std::wstring(L"Error indeterminado\r\n\r\n") + row.error +
                                       L" (QVRlib21)\r\n\r\nObjeto: Dos\r\nM\u00e9todo: EjecutarProc"));
  }
  EXPECT_EQ(traced(), Traces(6, u"QVRcfp.EjecutarProcSQL7: " + Text(row.trace)));
}

INSTANTIATE_TEST_SUITE_P(, RefusedOutput, testing::ValuesIn(kRefusals), row_name);

TEST_F(ProcedureOutputs, OfSeveralTypesFitAnArrayOfTexts) {
  database.define(L"Mezcla",
                  {{L"@a", ado::kVarWChar, ado::kOutput, 20},
                   {L"@b", ado::kInteger, ado::kOutput},
                   {L"@c", ado::kDouble, ado::kOutput}},
                  {{L"select 'abc'", 1}, {L"select 7", 2}, {L"select '3000000000'", 3}});
  expect_call(L"Mezcla", array_of({1, 2, 3}, 0, VT_BSTR), true, "BSTR(0) {BSTR abc; BSTR 7; BSTR 3000000000}");
}

TEST_F(ProcedureOutputs, AnArrayFromOneOnBeginsWithTheSecondParameter) {
  database.define(L"Dos", {{L"@a", ado::kInteger, ado::kInputOutput}, {L"@b", ado::kInteger, ado::kInputOutput}},
                  {{L"select @a + @b", 2}});
  expect_call(L"Dos", array_of({5, 6}), true, "VARIANT(0) {I4 5; I4 11}");
  expect_call(L"Dos", array_of({6}, 1), true, "VARIANT(1) {Null}");  // the first parameter is Null
  database.define(
      L"Tres",
      {{L"@a", ado::kInteger}, {L"@b", ado::kInteger, ado::kInputOutput}, {L"@c", ado::kInteger, ado::kOutput}},
      {{L"select @b * 2", 2}, {L"select 3", 3}});
  expect_call(L"Tres", array_of({6, 0}, 1), true, "VARIANT(1) {I4 12; I4 3}");
  expect_call(L"Tres", array_of({6, 0}, 1, VT_R8), true, "R8(1) {R8 12.000000; R8 3.000000}");
}

// An array that begins below zero begins with the return value.
TEST_F(ProcedureOutputs, AnArrayFromMinusOneOnHasTheReturnValue) {
  database.define(L"Dos", {{L"@a", ado::kInteger, ado::kInputOutput}}, {{L"select @a + 1", 1}});
  expect_call(L"Dos", array_of({Var(), 5}, -1), true, "VARIANT(-1) {I4 0; I4 6}");
}

TEST_F(ProcedureOutputs, InputsComeBackAsTheParametersHoldThem) {
  database.define(L"Entrada", {{L"@a", ado::kInteger}, {L"@b", ado::kVarWChar, ado::kInput, 20}}, {});
  expect_call(L"Entrada", array_of({L"5", 7}), true, "VARIANT(0) {I4 5; BSTR 7}");
}

TEST_F(ProcedureOutputs, GoIntoAnArrayThatTheCallerHasLocked) {
  define_output(ado::kInteger, L"7");
  Var any = array_of({Var()}), typed = array_of({1}, 0, VT_I4);
  {
    const Locked first(any), second(typed);
    EXPECT_TRUE(call_early(connection.get(), L"Uno", &any.raw()));
    EXPECT_TRUE(call_late(connection.get(), L"Uno", Var::by_reference(typed)));
    EXPECT_EQ(any.raw().parray->cLocks, 1u) << "locks are balanced";
    EXPECT_EQ(typed.raw().parray->cLocks, 1u);
  }
  EXPECT_EQ(describe(any.raw()), "VARIANT(0) {I4 7}");
  EXPECT_EQ(describe(typed.raw()), "I4(0) {I4 7}");
}

TEST_F(ProcedureOutputs, GoThroughReferencesOfReferences) {
  define_output(ado::kInteger, L"7");
  Var array = array_of({Var()});
  Var content = Var::by_content(array);
  Var once = Var::by_reference(content);
  Var twice = Var::by_reference(once);
  EXPECT_TRUE(call_late(connection.get(), L"Uno", twice));
  EXPECT_EQ(describe(array.raw()), "VARIANT(0) {I4 7}");
  array = array_of({Var()});
  content = Var::by_content(array);
  EXPECT_TRUE(call_early(connection.get(), L"Uno", &twice.raw()));
  EXPECT_EQ(describe(array.raw()), "VARIANT(0) {I4 7}");
}

}  // namespace
}  // namespace qvr::tests
