// Lists of every form that hosts have, read by the members that take them; and forms that cannot be read.
#include "automation/sql_members.h"

namespace qvr::tests {
namespace {

class Lists : public SqlMembers {
 protected:
  void expect_insert(const Var& list, const wchar_t* values) {
    SCOPED_TRACE(describe(list.raw()));
    const std::wstring statement = std::wstring(L"INSERT INTO T VALUES (") + values + L")";
    expect(L"SqlINSERT", &_QVRcfp::SqlINSERT, {L"T", list}, all_engines(statement.c_str()));
  }
};

TEST_F(Lists, OfOneType) {
  expect_insert(array_of({1, -2}, 0, VT_I4), L" 1, -2");
  expect_insert(array_of({1, -2}, 1, VT_I2), L" 1, -2");
  expect_insert(array_of({200}, -3, VT_UI1), L" 200");
  expect_insert(array_of({0.5, -3.5}, 0, VT_R8), L" 0.5, -3.5");
  expect_insert(array_of({0.1}, 0, VT_R4), L" 0.1");
  expect_insert(array_of({L"1.5"}, 0, VT_CY), L" 1.5");
  expect_insert(array_of({L"-12.345", L"7"}, 1, VT_DECIMAL), L"-12.345,  7");
  expect_insert(array_of({L"a'b", L""}, -3, VT_BSTR), L"'a''b', ''");
  expect_insert(array_of({7}, 0, VT_I8), L"Null");
  expect_insert(array_of({Var::nothing()}, 0, VT_DISPATCH), L"Null");
}

TEST_F(Lists, OfDatesAndTruthValues) {
  expect(L"SqlINSERT", &_QVRcfp::SqlINSERT, {L"T", array_of({Var::date(40548)}, 1, VT_DATE)},
         {L"INSERT INTO T VALUES (#2011-01-05#)", L"INSERT INTO T VALUES ({ d '2011-01-05'})",
          L"INSERT INTO T VALUES ( TO_DATE('2011-01-05','YYYY-MM-DD') )", undefined(L"INSERT INTO T VALUES ()")});
  expect(L"SqlINSERT", &_QVRcfp::SqlINSERT, {L"T", array_of({false}, 1, VT_BOOL)},
         {L"INSERT INTO T VALUES (False)", L"INSERT INTO T VALUES (0)", L"INSERT INTO T VALUES (0)",
          undefined(L"INSERT INTO T VALUES ()")});
}

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
  use(2);
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

// No member but two fails a call for what it finds in an argument, and those two for a few lists only.
TEST_F(Lists, ThatCannotBeReadGiveNoText) {
  const EachEngine none = all_engines(L"");
  const EachEngine no_case{told(L"Funci\u00f3n CASE no implementada para Motor Jet"), L"", L"", L""};
  const Var good = array_of({L"Id"});
  for (const Var& bad : {Var(5), Var(L"Id"), Var(), Var::null(), Var::nothing(), Var::error(E_FAIL), square_array(),
                         no_array(), no_array(VT_BSTR)}) {
    SCOPED_TRACE(describe(bad.raw()));
    expect(L"SqlINSERT", &_QVRcfp::SqlINSERT, {L"T", bad}, none);
    expect(L"SqlUPDATE", &_QVRcfp::SqlUPDATE, {L"T", L"k", 7, bad, good}, none);
    expect(L"SqlUPDATE", &_QVRcfp::SqlUPDATE, {L"T", L"k", 7, good, bad}, none);
    expect(L"SqlInsert2", &_QVRcfp::SqlInsert2, {L"T", bad, good}, none);
    expect(L"SqlInsert2", &_QVRcfp::SqlInsert2, {L"T", good, bad}, none);
    expect(L"SqlUpdate2", &_QVRcfp::SqlUpdate2, {L"T", bad, good, L""}, none);
    expect(L"SqlUpdate2", &_QVRcfp::SqlUpdate2, {L"T", good, bad, L""}, none);
    expect(L"sqlCASE", &_QVRcfp::sqlCASE, {L"c", bad}, no_case);
  }
}

TEST_F(Lists, ThatAreNoneGiveNoTextWhereOthersRaise) {
  const Outcome no_join = told(L"La funci\u00f3n CondicionWhereRelacionTablas no soporta Motor Jet");
  for (const Var& bad : {Var(5), Var(L"Id"), Var(), Var::null(), Var::nothing(), Var::error(E_FAIL)}) {
    SCOPED_TRACE(describe(bad.raw()));
    expect(L"sqlWhereRelacionTablas", &_QVRcfp::sqlWhereRelacionTablas, {bad}, all_engines(L""));
    expect(L"sqlConcatenar", &_QVRcfp::sqlConcatenar, {bad}, all_engines(L""));
  }
  const LateObject object(L"QVRlib21.Ov");
  for (const Var& element : {Var::null(), Var(object.get()), Var::nothing(), Var::missing(), array_of({1})}) {
    SCOPED_TRACE(describe(element.raw()));
    expect(L"sqlConcatenar", &_QVRcfp::sqlConcatenar, {array_of({L"a", element})}, all_engines(L""));
    expect(L"sqlWhereRelacionTablas", &_QVRcfp::sqlWhereRelacionTablas, {array_of({L"a", element, L"I"})},
           {no_join, L"", L"", L""});
  }
}

TEST_F(Lists, WhoseElementsWereTakenAwayAreNone) {
  use(2);
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
