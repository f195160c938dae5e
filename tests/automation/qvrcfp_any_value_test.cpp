// ExpSQL of every type that a host can send.
#include "automation/sql_members.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

struct Literal {
  const char* name;
  Var value;
  const wchar_t* literal;
  TextView unexpected = {};  // the type that the trace names
};

Var most_of_currency() {
  Var most;
  most.raw().vt = VT_CY;
  most.raw().cyVal.int64 = 9223372036854775807;
  return most;
}

Var null_text() {
  Var text;
  text.raw().vt = VT_BSTR;
  text.raw().bstrVal = nullptr;
  return text;
}

std::vector<Literal> literals() {
  Var largest = Var(5).as(VT_UI8);
  largest.raw().ullVal = UINT64_MAX;
  return {
      {"UI1", Var(200).as(VT_UI1), L" 200"},
      {"UI1, zero", Var(0).as(VT_UI1), L" 0"},
      {"I2", Var(-7).as(VT_I2), L"-7"},
      {"I4", Var(12), L" 12"},
      {"I4, least", Var(-2147483647 - 1), L"-2147483648"},
      {"INT", Var(5).as(VT_INT), L" 5"},
      {"R4", Var(0.1).as(VT_R4), L" 0.1"},
      {"R4, negative", Var(-3.5).as(VT_R4), L"-3.5"},
      {"R8", Var(0.25), L" 0.25"},
      {"R8, negative", Var(-3.5), L"-3.5"},
      {"R8, zero", Var(0.0), L" 0"},
      {"CY", Var(L"-1.2345").as(VT_CY), L"-1.2345"},
      {"CY, greatest", most_of_currency(), L" 922337203685477.5807"},
      {"DECIMAL", Var(L"12.345").as(VT_DECIMAL), L" 12.345"},
      {"DECIMAL, negative", Var(L"-7").as(VT_DECIMAL), L"-7"},
      {"DECIMAL, greatest", Var(L"79228162514264337593543950335").as(VT_DECIMAL), L" 79228162514264337593543950335"},
      {"BSTR", L"O'Hara", L"'O''Hara'"},
      {"BSTR, empty", L"", L"''"},
      {"BSTR, null pointer", null_text(), L"''"},
      {"BSTR of digits", L"12", L"'12'"},
      {"BSTR of a date", L"2011-01-05", L"'2011-01-05'"},
      {"DATE", Var::date(40548.5), L"{ ts '2011-01-05 12:00:00'}"},
      {"BOOL, true", true, L"1"},
      {"BOOL, false", false, L"0"},
      {"Empty", Var(), L"Null"},
      {"Null", Var::null(), L"Null"},
      {"ERROR", Var::error(E_FAIL), L"Null", u"Error"},
      {"Nothing", Var::nothing(), L"Null", u"Object"},
      {"I1", Var(5).as(VT_I1), L"Null", u"LongLong"},
      {"UI2", Var(5).as(VT_UI2), L"Null", u"LongLong"},
      {"UI4", Var(5).as(VT_UI4), L"Null", u"LongLong"},
      {"I8", Var(5).as(VT_I8), L"Null", u"LongLong"},
      {"UI8", Var(5).as(VT_UI8), L"Null", u"ULongLong"},
      {"UI8, greatest", largest, L"Null", u"ULongLong"},
      {"array", array_of({1, L"a"}), L"Null", u"Variant()"},
      {"array without elements", array_of({}), L"Null", u"Variant()"},
      {"array of I4", array_of({1, 2}, 1, VT_I4), L"Null", u"Variant()"},
      {"array of BSTR", array_of({L"a"}, -3, VT_BSTR), L"Null", u"Variant()"},
      {"array of two dimensions", square_array(), L"Null", u"Variant()"},
      {"array without bounds", no_array(), L"Null", u"Variant()"},
      {"array of BSTR without bounds", no_array(VT_BSTR), L"Null", u"Variant()"},
  };
}

using AnyType = Rows<SqlMembers, Literal>;

TEST_P(AnyType, HasALiteralOrIsNull) {
  const TextView type = GetParam().unexpected;
  const Text trace = type.empty() ? Text() : u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: " + Text(type);
  expect("ExpSQL", &_QVRcfp::ExpSQL, {GetParam().value}, failed(trace, GetParam().literal));
}

INSTANTIATE_TEST_SUITE_P(, AnyType, testing::ValuesIn(literals()), row_name);

constexpr const char16_t* kUnexpectedObject = u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: Object";

class AnyValue : public SqlMembers {};

TEST_F(AnyValue, AnObjectIsNull) {
  const LateObject object(L"QVRlib21.Ov");
  Var unknown;
  unknown.raw().vt = VT_UNKNOWN;
  unknown.raw().punkVal = object.as<IUnknown>().Detach();
  for (const Var& value : {Var(object.get()), unknown}) {
    expect("ExpSQL", &_QVRcfp::ExpSQL, {value}, failed(kUnexpectedObject, L"Null"));
  }
}

// A default property that would give a text is not asked for it.
TEST_F(AnyValue, AnObjectIsNullWhateverItsDefaultPropertySays) {
  const LateObject connection(L"ADODB.Connection");
  connection.put(L"ConnectionString", L"its default property");
  expect("ExpSQL", &_QVRcfp::ExpSQL, {connection.get()}, failed(kUnexpectedObject, L"Null"));
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
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.ExpSQL: -2147352561 The late-bound call was refused",
                              u"QVRcfp.ExpSQL: -2147352561 The late-bound call was refused"}));
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
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: Error",
                              u"QVRcfp.ExpSQL: -2147352571 The late-bound call was refused"}));
}

}  // namespace
}  // namespace qvr::tests
