// Array arguments in all forms that hosts pass, and invalid ones.
#include "automation/sql_members.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

class Lists : public SqlMembers {
 protected:
  void expect_insert(const Var& list, const std::wstring& values, const Text& trace = {}) {
    SCOPED_TRACE(describe(list.raw()));
    expect("SqlINSERT", &_QVRcfp::SqlINSERT, {L"T", list}, {L"INSERT INTO T VALUES (" + values + L")", {}, trace});
  }
};

struct TypedList {
  const char* name;
  Var list;
  const wchar_t* values;
  TextView trace = {};
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
      {"I8", array_of({7}, 0, VT_I8), L"Null", u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: LongLong"},
      {"DISPATCH", array_of({Var::nothing()}, 0, VT_DISPATCH), L"Null",
       u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: Object"},
  };
}

using ListOfOneType = Rows<Lists, TypedList>;

TEST_P(ListOfOneType, GivesItsElements) { expect_insert(GetParam().list, GetParam().values, Text(GetParam().trace)); }

INSTANTIATE_TEST_SUITE_P(, ListOfOneType, testing::ValuesIn(typed_lists()), row_name);

TEST_F(Lists, OfAnyValues) {
  expect_insert(array_of({Var(), Var::null(), Var::missing()}), L"Null, Null, Null");
  const LateObject object(L"QVRlib21.Ov");
  const Text unexpected = u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: ";
  expect_insert(array_of({Var::error(7), 1}), L"Null,  1", unexpected + u"Error");
  expect_insert(array_of({Var(object.get()), 1}), L"Null,  1", unexpected + u"Object");
  expect_insert(array_of({array_of({1}), 1}), L"Null,  1", unexpected + u"Variant()");
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

// Only two members raise errors: these are in qvrcfp_errors_test.cpp.
struct NoList {
  const char* name;
  Var value;
  bool array;  // of a shape that cannot be walked: 9, not 13
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
  const auto refused = [](TextView member) {
    return failed(Text(u"QVRcfp.") + Text(member) +
                  (GetParam().array ? u": 9 Subscript out of range" : u": 13 Type mismatch"));
  };
  expect("SqlINSERT", &_QVRcfp::SqlINSERT, {L"T", bad}, refused(u"SqlINSERT"));
  expect("SqlUPDATE", &_QVRcfp::SqlUPDATE, {L"T", L"k", 7, bad, good}, refused(u"SqlUPDATE"));
  expect("SqlUPDATE", &_QVRcfp::SqlUPDATE, {L"T", L"k", 7, good, bad}, refused(u"SqlUPDATE"));
  expect("SqlInsert2", &_QVRcfp::SqlInsert2, {L"T", bad, good}, refused(u"SqlInsert2"));
  expect("SqlInsert2", &_QVRcfp::SqlInsert2, {L"T", good, bad}, refused(u"SqlInsert2"));
  expect("SqlUpdate2", &_QVRcfp::SqlUpdate2, {L"T", bad, good, L""}, refused(u"SqlUpdate2"));
  expect("SqlUpdate2", &_QVRcfp::SqlUpdate2, {L"T", good, bad, L""}, refused(u"SqlUpdate2"));
  expect("sqlCASE", &_QVRcfp::sqlCASE, {L"c", bad}, refused(u"sqlCASE"));
  // No list at all means no relations.
  if (!GetParam().array) expect("sqlWhereRelacionTablas", &_QVRcfp::sqlWhereRelacionTablas, {bad}, L"");
}

INSTANTIATE_TEST_SUITE_P(, WhatIsNoList, testing::ValuesIn(no_lists()), row_name);

TEST_F(Lists, OfRelationsWithElementsThatHaveNoTextGiveNone) {
  const LateObject object(L"QVRlib21.Ov");
  const auto expect_none = [this](const Var& element, TextView reason) {
    SCOPED_TRACE(describe(element.raw()));
    expect("sqlWhereRelacionTablas", &_QVRcfp::sqlWhereRelacionTablas, {array_of({L"a", element, L"I"})},
           failed(u"QVRcfp.sqlWhereRelacionTablas: " + Text(reason)));
  };
  expect_none(Var::null(), u"94 Invalid use of Null");
  for (const Var& element : {Var(object.get()), Var::nothing(), Var::missing(), array_of({1})}) {
    expect_none(element, u"13 Type mismatch");
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
  EXPECT_EQ(traced(), Traces(8, u"QVRcfp.SqlINSERT: 9 Subscript out of range"));
}

}  // namespace
}  // namespace qvr::tests
