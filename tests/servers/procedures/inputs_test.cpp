// What a stored procedure gets. It compares with the value as the server writes it, and returns 0 where both are equal.
#include "servers/procedures/server_procedures.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

class ProcedureInputs : public ServerProcedures {
 protected:
  // A procedure with one parameter of this type, which returns 0 where the condition on it, `dato`, is true.
  void define_input(const wchar_t* type, const std::wstring& condition) {
    define(L"uno", std::wstring(L"in dato ") + type, L"select case when " + condition + L" then 0 else 1 end into r;");
  }
};

struct Input {
  const char* name;
  ByServer type;
  Var value;
  const wchar_t* condition;
  const char* after;  // as the parameter holds it
};

const Input kInputs[] = {
    {"small number", L"smallint", -7, L"dato = -7", "I2 -7"},
    {"tiny number", {L"tinyint", nullptr}, -100, L"dato = -100", "I2 -100"},
    {"number", L"int", -2147483647, L"dato = -2147483647", "I4 -2147483647"},
    {"number from a text", L"int", L"12", L"dato = 12", "I4 12"},
    {"large number", L"bigint", Var(L"9007199254740993").as(VT_I8), L"dato = 9007199254740993", "I8 9007199254740993"},
    {"single", {L"float", L"real"}, Var(0.5).as(VT_R4), L"dato = 0.5", "R4 0.5"},
    {"double", L"double precision", -2.5, L"dato = -2.5", "R8 -2.500000"},
    {"double of many digits", L"double precision", 0.1, L"dato = 0.1", "R8 0.100000"},
    {"amount", L"decimal(19,4)", Var(L"12345678.9012").as(VT_CY), L"dato = 12345678.9012", "DECIMAL 12345678.9012"},
    {"most digits", L"decimal(29,0)", Var(L"79228162514264337593543950335").as(VT_DECIMAL),
     L"dato = 79228162514264337593543950335", "DECIMAL 79228162514264337593543950335"},
    {"most decimals", L"decimal(28,28)", Var(L"-0.1234567890123456789012345678").as(VT_DECIMAL),
     L"dato = -0.1234567890123456789012345678", "DECIMAL -0.1234567890123456789012345678"},
    {"day", L"date", Var::date(40548), L"dato = date '2011-01-05'", "DATE 40548.000000"},
    {"time", L"time", Var::date(0.75), L"dato = time '18:00:00'", "DATE 0.750000"},
    {"moment",
     {L"datetime", L"timestamp"},
     Var::date(40548.5),
     L"dato = timestamp '2011-01-05 12:00:00'",
     "DATE 40548.500000"},
    {"first day",
     {L"datetime", L"timestamp"},
     Var::date(-657434),
     L"dato = timestamp '0100-01-01 00:00:00'",
     "DATE -657434.000000"},
    {"before day 0",
     {L"datetime", L"timestamp"},
     Var::date(-1.25),
     L"dato = timestamp '1899-12-29 06:00:00'",
     "DATE -1.250000"},
    {"day 0", {L"datetime", L"timestamp"}, Var::date(0), L"dato = timestamp '1899-12-30 00:00:00'", "DATE 0.000000"},
    {"last moment",
     {L"datetime", L"timestamp"},
     Var::date(2958465.75),
     L"dato = timestamp '9999-12-31 18:00:00'",
     "DATE 2958465.750000"},
    {"truth", {L"bit(1)", L"boolean"}, true, L"dato = true", "BOOL true"},
    {"untruth", {L"bit(1)", L"boolean"}, false, L"dato = false", "BOOL false"},
    {"text", L"varchar(50)", L"O'Hara \u00f1 \u20ac \u0141 \U0001F600",
     L"md5(dato) = md5('O''Hara \u00f1 \u20ac \u0141 \U0001F600')", "BSTR O'Hara \u00f1 \u20ac \u0141 \U0001F600"},
    {"number for a text", L"varchar(50)", 12, L"dato = '12'", "BSTR 12"},
    {"Null number", L"int", Var::null(), L"dato is null", "Null"},
    {"Null text", L"varchar(50)", Var::null(), L"dato is null", "Null"},
    {"Null day", {L"datetime", L"timestamp"}, Var::null(), L"dato is null", "Null"},
    {"Null amount", L"decimal(19,4)", Var::null(), L"dato is null", "Null"},
    {"Null truth", {L"bit(1)", L"boolean"}, Var::null(), L"dato is null", "Null"},
    {"Empty", L"int", Var(), L"dato is null", "Empty"},
};

TEST_F(ProcedureInputs, ArriveAsTheyAre) {
  for_rows_here(kInputs, [&](const Input& row) {
    define_input(row.type.here(), row.condition);
    const std::string after = std::string("VARIANT(0) {") + row.after + "}";
    expect_call(L"uno", array_of({row.value}), true, after);
  });
}

TEST_F(ProcedureInputs, LongTextsArriveWhole) {
  const ByServer type{L"longtext", L"text"};
  for (const int length : {0, 1, 4000, 70000}) {
    for (const wchar_t* const letter : {L"a", L"\u00f1", L"\u0141", L"\U0001F600"}) {
      const std::wstring sql = std::wstring(L"repeat('") + letter + L"', " + std::to_wstring(length) + L")";
      SCOPED_TRACE(narrow(sql));
      define_input(type.here(), L"md5(dato) = md5(" + sql + L")");
      std::wstring text;
      for (int i = 0; i < length; ++i) text += letter;
      Var early_list = array_of({text}), late_list = array_of({text}, 0, VT_BSTR);
      EXPECT_TRUE(call_early(connection.get(), L"uno", &early_list.raw()));
      EXPECT_TRUE(call_late(connection.get(), L"uno", Var::by_reference(late_list)));
    }
  }
}

// The same number out of an array of each type and bound.
TEST_F(ProcedureInputs, ArriveFromArraysOfEveryType) {
  define(L"dos", L"in a int, in b int", L"select case when a = 4 and b = 7 then 0 else 1 end into r;");
  define(L"uno", L"in a int, in b int", L"select case when a is null and b = 7 then 0 else 1 end into r;");
  for (const VARTYPE type :
       {VT_VARIANT, VT_I2, VT_I4, VT_I8, VT_UI1, VT_R4, VT_R8, VT_CY, VT_DATE, VT_BSTR, VT_DECIMAL}) {
    SCOPED_TRACE(type);
    const Var both = array_of({4, 7}, 0, type), second = array_of({7}, 1, type);
    expect_call(L"dos", both, true, describe(both.raw()));
    expect_call(L"uno", second, true, describe(second.raw()));
    const Var all = array_of({3, 4, 7}, -1, type);
    expect_call(L"dos", all, true, describe(array_of({0, 4, 7}, -1, type).raw()));
  }
  define(L"verdad", L"in a int, in b int", L"select case when a = -1 and b = 0 then 0 else 1 end into r;");
  const Var truths = array_of({true, false}, 0, VT_BOOL);
  expect_call(L"verdad", truths, true, describe(truths.raw()));
}

}  // namespace
}  // namespace qvr::tests
