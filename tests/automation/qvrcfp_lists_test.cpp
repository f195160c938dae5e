// Array arguments in all forms that hosts pass, and invalid ones.
#include "automation/sql_members.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

class Lists : public SqlMembers {
 protected:
  void expect_insert(const Var& list, const std::wstring& values) {
    SCOPED_TRACE(describe(list.raw()));
    expect("SqlINSERT", &_QVRcfp::SqlINSERT, {L"T", list}, L"INSERT INTO T VALUES (" + values + L")");
  }
};

struct TypedList {
  const char* name;
  Var list;
  const wchar_t* values;
};

std::vector<TypedList> typed_lists() {
  return {
      {"I4", array_of({1, -2}, 0, VT_I4), L" 1, -2"},
      {"I2", array_of({1, -2}, 1, VT_I2), L" 1, -2"},
      {"UI1", array_of({200}, -3, VT_UI1), L" 200"},
      {"R8", array_of({0.5, -3.5}, 0, VT_R8), L" 0.5, -3.5"},
      {"R4", array_of({0.1}, 0, VT_R4), L" 0.1"},
      {"CY", array_of({L"1.5"}, 0, VT_CY), L" 1.5"},
      {"DECIMAL", array_of({L"-12.345", L"7"}, 1, VT_DECIMAL), L"-12.345,  7"},
      {"BSTR", array_of({L"a'b", L""}, -3, VT_BSTR), L"'a''b', ''"},
      {"DATE", array_of({Var::date(40548)}, 1, VT_DATE), L"{ d '2011-01-05'}"},
      {"BOOL", array_of({false}, 1, VT_BOOL), L"0"},
      {"I8", array_of({7}, 0, VT_I8), L"Null"},
      {"DISPATCH", array_of({Var::nothing()}, 0, VT_DISPATCH), L"Null"},
  };
}

using ListOfOneType = Rows<Lists, TypedList>;

TEST_P(ListOfOneType, GivesItsElements) { expect_insert(GetParam().list, GetParam().values); }

INSTANTIATE_TEST_SUITE_P(, ListOfOneType, testing::ValuesIn(typed_lists()), row_name);

TEST_F(Lists, OfAnyValues) {
  const LateObject object(L"QVRlib21.Ov");
  expect_insert(array_of({Var(), Var::null(), Var::missing(), Var::error(7), Var(object.get()), array_of({1})}),
                L"Null, Null, Null, Null, Null, Null");
}

TEST_F(Lists, WithAnyLowerBound) {
  for (const LONG lower : {-2147483647 - 1, -3, 0, 1, 2147483645}) {
    expect_insert(array_of({1, L"a"}, lower), L" 1, 'a'");
  }
}

TEST_F(Lists, ThatTheCallerHasLocked) {
  const Var typed = array_of({1, 2}, 0, VT_I4), any = array_of({1, L"a"});
  for (const Var& list : {typed, any}) {
    Var held = list;
    const Locked locked(held);
    Bstr table(L"T"), result;
    const HRESULT status = early->SqlINSERT(&table, &held.raw(), &result);
    const std::string expected = "BSTR " + narrow(result.text());
    expect_same(late.call(L"SqlINSERT", {L"T", Var::by_reference(held)}), status, early_result(result), expected);
    EXPECT_NE(result.text(), L"");
    EXPECT_EQ(held.raw().parray->cLocks, 1u) << "locks are balanced";
  }
}

TEST_F(Lists, WithElementsByReference) {
  Var text(L"a"), number(7);
  long plain = 5;
  Var list = array_of({1, 2, 3});
  VARIANT* items = static_cast<VARIANT*>(list.raw().parray->pvData);
  items[0] = Var::by_reference(text).raw();
  items[1] = Var::by_content(number).raw();
  items[2] = Var::by_reference(plain).raw();
  use(1);
  Bstr table(L"T"), result;
  const HRESULT status = early->SqlINSERT(&table, &list.raw(), &result);
  expect_same(late.call(L"SqlINSERT", {L"T", Var::by_reference(list)}), status, early_result(result),
              "BSTR INSERT INTO T VALUES ('a',  7,  5)");
}

// Only two members raise errors, and only for some arrays.
struct NoList {
  const char* name;
  Var value;
  bool array;
};

std::vector<NoList> no_lists() {
  return {
      {"number", 5, false},
      {"text", L"Id", false},
      {"Empty", Var(), false},
      {"Null", Var::null(), false},
      {"Nothing", Var::nothing(), false},
      {"error value", Var::error(E_FAIL), false},
      {"two dimensions", square_array(), true},
      {"no bounds", no_array(), true},
      {"no bounds, of BSTR", no_array(VT_BSTR), true},
  };
}

using WhatIsNoList = Rows<Lists, NoList>;

TEST_P(WhatIsNoList, GivesNoText) {
  const Var good = array_of({L"Id"}), &bad = GetParam().value;
  expect("SqlINSERT", &_QVRcfp::SqlINSERT, {L"T", bad}, L"");
  expect("SqlUPDATE", &_QVRcfp::SqlUPDATE, {L"T", L"k", 7, bad, good}, L"");
  expect("SqlUPDATE", &_QVRcfp::SqlUPDATE, {L"T", L"k", 7, good, bad}, L"");
  expect("SqlInsert2", &_QVRcfp::SqlInsert2, {L"T", bad, good}, L"");
  expect("SqlInsert2", &_QVRcfp::SqlInsert2, {L"T", good, bad}, L"");
  expect("SqlUpdate2", &_QVRcfp::SqlUpdate2, {L"T", bad, good, L""}, L"");
  expect("SqlUpdate2", &_QVRcfp::SqlUpdate2, {L"T", good, bad, L""}, L"");
  expect("sqlCASE", &_QVRcfp::sqlCASE, {L"c", bad}, L"");
  if (GetParam().array) return;  // raised
  expect("sqlWhereRelacionTablas", &_QVRcfp::sqlWhereRelacionTablas, {bad}, L"");
  expect("sqlConcatenar", &_QVRcfp::sqlConcatenar, {bad}, L"");
}

INSTANTIATE_TEST_SUITE_P(, WhatIsNoList, testing::ValuesIn(no_lists()), row_name);

TEST_F(Lists, WithElementsThatHaveNoTextGiveNone) {
  const LateObject object(L"QVRlib21.Ov");
  for (const Var& element : {Var::null(), Var(object.get()), Var::nothing(), Var::missing(), array_of({1})}) {
    SCOPED_TRACE(describe(element.raw()));
    expect("sqlConcatenar", &_QVRcfp::sqlConcatenar, {array_of({L"a", element})}, L"");
    expect("sqlWhereRelacionTablas", &_QVRcfp::sqlWhereRelacionTablas, {array_of({L"a", element, L"I"})}, L"");
  }
}

TEST_F(Lists, WhoseElementsWereTakenAwayAreNone) {
  for (const VARTYPE type : {VT_VARIANT, VT_BSTR, VT_I4, VT_DECIMAL}) {
    SCOPED_TRACE(type);
    Var hollow = hollow_array(type, 3);
    Bstr table(L"T"), result;
    const HRESULT status = early->SqlINSERT(&table, &hollow.raw(), &result);
    expect_same(late.call(L"SqlINSERT", {L"T", Var::by_reference(hollow)}), status, early_result(result), "BSTR ");
  }
}

}  // namespace
}  // namespace qvr::tests
