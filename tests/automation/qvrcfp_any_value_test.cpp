// ExpSQL of every type that a host can send.
#include "automation/sql_members.h"

namespace qvr::tests {
namespace {

class AnyValue : public SqlMembers {
 protected:
  void expect_literal(const Var& value, const EachEngine& expected) {
    SCOPED_TRACE(describe(value.raw()));
    expect(L"ExpSQL", &_QVRcfp::ExpSQL, {value}, expected);
  }
};

const EachEngine kNull = all_engines(L"Null");

TEST_F(AnyValue, NumbersHaveABlankOrASign) {
  Var most;
  most.raw().vt = VT_CY;
  most.raw().cyVal.int64 = 9223372036854775807;
  struct Row {
    Var value;
    const wchar_t* literal;
  };
  for (const Row& row : {Row{Var(200).as(VT_UI1), L" 200"},
                         {Var(0).as(VT_UI1), L" 0"},
                         {Var(-7).as(VT_I2), L"-7"},
                         {Var(12), L" 12"},
                         {Var(-2147483647 - 1), L"-2147483648"},
                         {Var(5).as(VT_INT), L" 5"},
                         {Var(0.1).as(VT_R4), L" 0.1"},
                         {Var(-3.5).as(VT_R4), L"-3.5"},
                         {Var(0.25), L" 0.25"},
                         {Var(-3.5), L"-3.5"},
                         {Var(0.0), L" 0"},
                         {Var(L"-1.2345").as(VT_CY), L"-1.2345"},
                         {most, L" 922337203685477.5807"},
                         {Var(L"12.345").as(VT_DECIMAL), L" 12.345"},
                         {Var(L"-7").as(VT_DECIMAL), L"-7"},
                         {Var(L"79228162514264337593543950335").as(VT_DECIMAL), L" 79228162514264337593543950335"}}) {
    expect_literal(row.value, all_engines(row.literal));
  }
}

TEST_F(AnyValue, Texts) {
  expect_literal(L"O'Hara", all_engines(L"'O''Hara'"));
  expect_literal(L"", all_engines(L"''"));
  expect_literal(L"12", all_engines(L"'12'"));
  expect_literal(L"2011-01-05", all_engines(L"'2011-01-05'"));
  expect_literal(L"Null", all_engines(L"'Null'"));
  Var null_text;
  null_text.raw().vt = VT_BSTR;
  null_text.raw().bstrVal = nullptr;
  expect_literal(null_text, all_engines(L"''"));
}

TEST_F(AnyValue, TheWordForTheClock) {
  expect_literal(L"aHORAsql", {L"Now()", L"GetDate()", L"SYSDATE", undefined()});
  expect_literal(L"Ahora", all_engines(L"'Ahora'"));
}

TEST_F(AnyValue, OracleTakes4000CharactersBeforeTheirQuotesAreDoubled) {
  const std::wstring text = std::wstring(3999, L'x') + L"'yz";
  const std::wstring whole = L"'" + std::wstring(3999, L'x') + L"''yz'", cut = L"'" + std::wstring(3999, L'x') + L"'''";
  expect_literal(text, {whole.c_str(), whole.c_str(), cut.c_str(), whole.c_str()});
}

TEST_F(AnyValue, Dates) {
  expect_literal(Var::date(40548),
                 {L"#2011-01-05#", L"{ d '2011-01-05'}", L" TO_DATE('2011-01-05','YYYY-MM-DD') ", undefined()});
  expect_literal(Var::date(0.5),
                 {L"#12:00:00#", L"{ t '12:00:00'}", L" TO_DATE('12:00:00','HH24:MI:SS') ", undefined()});
  expect_literal(Var::date(40548.5), {L"#2011-01-05 12:00:00#", L"{ ts '2011-01-05 12:00:00'}",
                                      L" TO_DATE('2011-01-05 12:00:00','YYYY-MM-DD HH24:MI:SS') ", undefined()});
}

TEST_F(AnyValue, TruthValues) {
  expect_literal(true, {L"True", L"1", L"1", undefined()});
  expect_literal(false, {L"False", L"0", L"0", undefined()});
}

TEST_F(AnyValue, EverythingElseIsNull) {
  const LateObject object(L"QVRlib21.Ov");
  Var unknown;
  unknown.raw().vt = VT_UNKNOWN;
  unknown.raw().punkVal = object.as<IUnknown>().Detach();
  Var largest = Var(5).as(VT_UI8);
  largest.raw().ullVal = UINT64_MAX;
  for (const Var& value :
       {largest, Var(), Var::null(), Var::error(E_FAIL), Var(object.get()), Var::nothing(), unknown, Var(5).as(VT_I8),
        Var(5).as(VT_I1), Var(5).as(VT_UI2), Var(5).as(VT_UI4), Var(5).as(VT_UI8), array_of({1, L"a"}), array_of({}),
        array_of({1, 2}, 1, VT_I4), array_of({L"a"}, -3, VT_BSTR), square_array(), no_array(), no_array(VT_BSTR)}) {
    expect_literal(value, kNull);
  }
}

// A default property that would give a text is not asked for it.
TEST_F(AnyValue, AnObjectIsNullWhateverItsDefaultPropertySays) {
  const LateObject connection(L"ADODB.Connection");
  connection.put(L"ConnectionString", L"its default property");
  expect_literal(connection.get(), kNull);
}

TEST_F(AnyValue, WhatWasNotGiven) {
  Var missing = Var::missing();
  Bstr null_pointer, left_out;
  EXPECT_EQ(early->ExpSQL(nullptr, &null_pointer), S_OK);
  EXPECT_EQ(null_pointer.text(), L"Null");
  EXPECT_EQ(early->ExpSQL(&missing.raw(), &left_out), S_OK);
  EXPECT_EQ(left_out.text(), L"Null");
  EXPECT_EQ(late.call(L"ExpSQL").result, DISP_E_PARAMNOTOPTIONAL);
  EXPECT_EQ(late.call(L"ExpSQL", {missing}).result, DISP_E_PARAMNOTOPTIONAL);
}

TEST_F(AnyValue, ReferencesOfReferences) {
  Var text(L"a");
  Var once = Var::by_reference(text), twice = Var::by_reference(once), content = Var::by_content(text);
  Var around = Var::by_reference(content);
  for (const Var& value : {twice, around}) {
    Var passed = value;
    Bstr result;
    const HRESULT status = early->ExpSQL(&passed.raw(), &result);
    expect_same(late.call(L"ExpSQL", {value}), status, early_result(result), "BSTR 'a'");
  }
}

TEST_F(AnyValue, AVariantThatRefersToItselfIsNullOrRefused) {
  VARIANT loop;
  loop.vt = VT_BYREF | VT_VARIANT;
  loop.pvarVal = &loop;
  Bstr result;
  EXPECT_EQ(early->ExpSQL(&loop, &result), S_OK);
  EXPECT_EQ(result.text(), L"Null");
  Var passed;
  passed.raw() = loop;
  EXPECT_EQ(late.call(L"ExpSQL", {passed}).result, DISP_E_TYPEMISMATCH);
  passed.raw().vt = VT_EMPTY;
}

}  // namespace
}  // namespace qvr::tests
