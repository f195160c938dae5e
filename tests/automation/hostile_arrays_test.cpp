// Malformed arrays and references: they must neither crash nor hang the process.
#include "automation/boxes.h"
#include "automation/sql_members.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

class HostileArrays : public SqlMembers {
 protected:
  // Both hosts' answers to a call with this list, by reference.
  void expect_insert(VARIANT& list, const std::string& expected) {
    Bstr table(L"T"), result;
    const HRESULT status = early->SqlINSERT(&table, &list, &result);
    Var passed;
    passed.raw().vt = VT_BYREF | VT_VARIANT;
    passed.raw().pvarVal = &list;
    expect_same(late.call(L"SqlINSERT", {L"T", passed}), status, early_result(result), expected);
  }
};

VARIANT* items_of(const Var& array) { return static_cast<VARIANT*>(array.raw().parray->pvData); }

VARIANT referring_to(VARIANT& variant) {
  VARIANT reference;
  reference.vt = VT_BYREF | VT_VARIANT;
  reference.pvarVal = &variant;
  return reference;
}

TEST_F(HostileArrays, AnArrayThatHoldsItselfManyTimes) {
  Var list = array_of(std::vector<Var>(100));
  for (ULONG i = 0; i < 100; ++i) items_of(list)[i] = referring_to(list.raw());
  Bstr table(L"T"), result;
  EXPECT_EQ(early->SqlINSERT(&table, &list.raw(), &result), S_OK);
  std::wstring nulls;
  for (int i = 0; i < 100; ++i) nulls += i > 0 ? L", Null" : L"Null";
  EXPECT_EQ(result.text(), L"INSERT INTO T VALUES (" + nulls + L")");
  EXPECT_EQ(list.raw().parray->cLocks, 0u);
  EXPECT_EQ(traced(), Traces(100, u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: Error"));
}

TEST_F(HostileArrays, TwoArraysThatHoldEachOther) {
  Var first = array_of(std::vector<Var>(20)), second = array_of(std::vector<Var>(20));
  for (ULONG i = 0; i < 20; ++i) {
    items_of(first)[i] = referring_to(second.raw());
    items_of(second)[i] = referring_to(first.raw());
  }
  const Person person;
  for (Var* const list : {&first, &second}) {
    Bstr result;
    EXPECT_EQ(early->sqlConcatenar(&list->raw(), &result), static_cast<HRESULT>(0x800A000D)) << "an array is no text";
  }
  EXPECT_EQ(traced(), Traces(2, u"QVRcfp.sqlConcatenar: 13 Type mismatch"));
}

TEST_F(HostileArrays, ArraysInsideArraysDeeperThanAnyHostNests) {
  Var list = array_of({1});
  for (int depth = 0; depth < 60; ++depth) list = array_of({list});
  expect_insert(list.raw(), "BSTR INSERT INTO T VALUES (Null)");
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: Variant()",
                              u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: Variant()"}));
}

TEST_F(HostileArrays, AChainOfReferencesThatEndsNowhere) {
  VARIANT nowhere;
  nowhere.vt = VT_BYREF | VT_VARIANT;
  nowhere.pvarVal = nullptr;
  VARIANT no_array_there;
  no_array_there.vt = VT_BYREF | VT_ARRAY | VT_VARIANT;
  no_array_there.pparray = nullptr;
  Bstr table(L"T");
  for (VARIANT* const dead : {&nowhere, &no_array_there}) {
    Bstr result;
    EXPECT_EQ(early->SqlINSERT(&table, dead, &result), S_OK);
    EXPECT_EQ(result.text(), L"");
    Var passed;
    passed.raw() = *dead;
    EXPECT_EQ(late.call(L"SqlINSERT", {L"T", passed}).result, DISP_E_TYPEMISMATCH);
    passed.raw().vt = VT_EMPTY;
  }
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.SqlINSERT: 13 Type mismatch",
                              u"QVRcfp.SqlINSERT: -2147352571 The late-bound call was refused",
                              u"QVRcfp.SqlINSERT: 9 Subscript out of range",
                              u"QVRcfp.SqlINSERT: -2147352571 The late-bound call was refused"}));
}

TEST_F(HostileArrays, ReferencesInARing) {
  VARIANT ring[3];
  for (int i = 0; i < 3; ++i) ring[i] = referring_to(ring[(i + 1) % 3]);
  Bstr table(L"T"), result;
  EXPECT_EQ(early->SqlINSERT(&table, &ring[0], &result), S_OK);
  EXPECT_EQ(result.text(), L"");
  Var passed;
  passed.raw() = ring[0];
  EXPECT_EQ(late.call(L"SqlINSERT", {L"T", passed}).result, DISP_E_TYPEMISMATCH);
  passed.raw().vt = VT_EMPTY;
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.SqlINSERT: 13 Type mismatch",
                              u"QVRcfp.SqlINSERT: -2147352571 The late-bound call was refused"}));
}

TEST_F(HostileArrays, ElementsThatReferToNowhere) {
  Var list = array_of(std::vector<Var>(3));
  items_of(list)[0].vt = VT_BYREF | VT_VARIANT;
  items_of(list)[1].vt = VT_BYREF | VT_BSTR;
  items_of(list)[2].vt = VT_BYREF | VT_ARRAY | VT_I4;
  expect_insert(list.raw(), "BSTR INSERT INTO T VALUES (Null, Null, Null)");
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: Error",
                              u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: Error",
                              u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: Variant()",
                              u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: Error",
                              u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: Error",
                              u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: Variant()"}));
}

TEST_F(HostileArrays, ATypeInTheVariantThatIsNotTheArrays) {
  Var list = array_of({L"a", L"b"}, 0, VT_BSTR);
  list.raw().vt = VT_ARRAY | VT_I4;
  expect_insert(list.raw(), "BSTR INSERT INTO T VALUES ('a', 'b')");
  list.raw().vt = VT_ARRAY | VT_BSTR;
}

TEST_F(HostileArrays, AnArrayThatKnowsNoTypeOfItsElements) {
  SAFEARRAY* array = nullptr;
  ASSERT_EQ(SafeArrayAllocDescriptor(1, &array), S_OK);
  array->cbElements = 4;
  array->rgsabound[0] = {2, 0};
  ASSERT_EQ(SafeArrayAllocData(array), S_OK);
  static_cast<LONG*>(array->pvData)[0] = 5, static_cast<LONG*>(array->pvData)[1] = -7;
  VARIANT list;
  list.parray = array;
  list.vt = VT_ARRAY | VT_I4;
  expect_insert(list, "BSTR INSERT INTO T VALUES ( 5, -7)");
  // What would have to be freed is not taken for what it may not be.
  for (const VARTYPE owned : {VT_BSTR, VT_VARIANT, VT_DISPATCH, VT_UNKNOWN, VT_RECORD}) {
    list.vt = static_cast<VARTYPE>(VT_ARRAY | owned);
    expect_insert(list, "BSTR ");
  }
  EXPECT_EQ(SafeArrayDestroy(array), S_OK);
  EXPECT_EQ(traced(), Traces(10, u"QVRcfp.SqlINSERT: 9 Subscript out of range"));
}

TEST_F(HostileArrays, AnArrayOfTextsThatKnowsNoTypeOfItsElements) {
  Var list = array_of({L"a", L"b"}, 0, VT_BSTR);
  list.raw().parray->fFeatures = static_cast<USHORT>(list.raw().parray->fFeatures & ~FADF_HAVEVARTYPE);
  expect_insert(list.raw(), "BSTR INSERT INTO T VALUES ('a', 'b')");
  list.raw().vt = VT_ARRAY | VT_I4;
  expect_insert(list.raw(), "BSTR INSERT INTO T VALUES ('a', 'b')");
  list.raw().vt = VT_ARRAY | VT_BSTR;
}

TEST_F(HostileArrays, ElementsLargerThanTheirTypeSays) {
  Var list = array_of({1, 2}, 0, VT_R8);
  list.raw().parray->cbElements = 64;
  list.raw().parray->rgsabound[0].cElements = 1;
  Bstr table(L"T"), result;
  EXPECT_EQ(early->SqlINSERT(&table, &list.raw(), &result), S_OK);
  EXPECT_EQ(result.text(), L"INSERT INTO T VALUES (Null)");
  list.raw().parray->cbElements = 8;
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: Error"}));
}

TEST_F(HostileArrays, TheSameListForFieldsAndValues) {
  Var list = array_of({L"Id", L"Nombre"});
  const Var passed = Var::by_reference(list);
  EXPECT_EQ(describe(late.call(L"SqlInsert2", {L"T", passed, passed}).value.raw()),
            "BSTR INSERT INTO T(Id,Nombre) VALUES('Id','Nombre')");
}

Var* replaced_by_timer = nullptr;

void CALLBACK replace(HWND window, UINT, UINT_PTR timer, DWORD) {
  KillTimer(window, timer);
  *replaced_by_timer = Var(L"gone");
}

// The box is open while the host's code runs: the array was read before.
TEST_F(HostileArrays, AnArrayThatGoesAwayWhileABoxIsOpen) {
  use(1);
  Var list = array_of({L"a", L"b", L"I"});
  const Person person;
  const HWND window = CreateWindowW(L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  replaced_by_timer = &list;
  SetTimer(window, 1, USER_TIMER_MINIMUM, replace);
  const LateAnswer answer = late.call(L"sqlWhereRelacionTablas", {Var::by_reference(list)});
  DestroyWindow(window);
  EXPECT_EQ(describe(answer.value.raw()), "BSTR ");
  EXPECT_EQ(person.boxes().size(), 1u);
  EXPECT_EQ(describe(list.raw()), "BSTR gone");
}

}  // namespace
}  // namespace qvr::tests
