// The two members that raise errors.
#include "automation/boxes.h"
#include "automation/sql_members.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

constexpr HRESULT kInvalidArgument = static_cast<HRESULT>(0x800A0005);
constexpr HRESULT kSubscript = static_cast<HRESULT>(0x800A0009);
constexpr HRESULT kTypeMismatch = static_cast<HRESULT>(0x800A000D);
constexpr HRESULT kInvalidNull = static_cast<HRESULT>(0x800A005E);

using ListMember = HRESULT (STDMETHODCALLTYPE _QVRcfp::*)(VARIANT*, BSTR*);

std::wstring text_of(HRESULT error) {
  switch (error) {
    case kInvalidArgument: return L"Invalid procedure call or argument";
    case kSubscript: return L"Subscript out of range";
    case kTypeMismatch: return L"Type mismatch";
    default: return L"Invalid use of Null";
  }
}

class Errors : public SqlMembers {
 protected:
  // An early-bound host finds the error's number in the result and the rest in the thread's error object.
  void expect_early(ListMember slot, const Var& list, HRESULT error) {
    Var passed = list;
    Bstr before(L"left over");
    BSTR result = before.get();  // whatever was there: an out-parameter is not read
    SetErrorInfo(0, nullptr);
    EXPECT_EQ((early.Get()->*slot)(&passed.raw(), &result), error);
    EXPECT_EQ(result, nullptr);
    ComPtr<IErrorInfo> info;
    ASSERT_EQ(GetErrorInfo(0, &info), S_OK);
    Bstr description, source;
    info->GetDescription(&description);
    info->GetSource(&source);
    EXPECT_EQ(description.text(), text_of(error));
    EXPECT_EQ(source.text(), L"QVRlib21");
  }

  // A late-bound one finds all of it in the exception, and nothing in the error object.
  void expect_late(const LateAnswer& answer, HRESULT error) {
    EXPECT_EQ(answer.result, DISP_E_EXCEPTION);
    EXPECT_EQ(answer.code, error);
    EXPECT_EQ(answer.description, text_of(error));
    EXPECT_EQ(answer.source, L"QVRlib21");
    EXPECT_EQ(answer.value.type(), VT_EMPTY);
    ComPtr<IErrorInfo> info;
    EXPECT_EQ(GetErrorInfo(0, &info), S_FALSE);
  }

  void expect_error(const wchar_t* name, ListMember slot, const Var& list, HRESULT error) {
    SCOPED_TRACE(narrow(name) + " " + describe(list.raw()));
    const Person person;
    expect_early(slot, list, error);
    Var variable = list;
    expect_late(late.call(name, {list}), error);
    expect_late(late.call(name, {Var::by_reference(variable)}), error);
    expect_late(late.call(name, {Var::by_content(variable)}), error);
    EXPECT_TRUE(person.boxes().empty());
    const std::wstring line = std::wstring(L"QVRcfp.") + name + L": " + std::to_wstring(error & 0xFFFF) + L" " +
                              text_of(error);
    EXPECT_EQ(traced(), Traces(4, Text(line.begin(), line.end())));
  }
};

TEST_F(Errors, ConcatenatingNothingIsAnInvalidArgument) {
  for (const Var& list : {array_of({}), array_of({}, 1), array_of({}, -3, VT_BSTR)}) {
    expect_error(L"sqlConcatenar", &_QVRcfp::sqlConcatenar, list, kInvalidArgument);
  }
}

TEST_F(Errors, WhatHasNoBoundsOrSeveralIsOutOfRange) {
  for (const Var& list : {square_array(), no_array(), no_array(VT_BSTR)}) {
    expect_error(L"sqlConcatenar", &_QVRcfp::sqlConcatenar, list, kSubscript);
    expect_error(L"sqlWhereRelacionTablas", &_QVRcfp::sqlWhereRelacionTablas, list, kSubscript);
  }
}

TEST_F(Errors, OnlyAListIsConcatenated) {
  for (const Var& value : {Var(5), Var(L"Id"), Var(), Var::null(), Var::nothing(), Var::error(E_FAIL)}) {
    expect_error(L"sqlConcatenar", &_QVRcfp::sqlConcatenar, value, kTypeMismatch);
  }
}

TEST_F(Errors, EveryConcatenatedElementNeedsAText) {
  const LateObject object(L"QVRlib21.Ov");
  const auto expect_refused = [this](const Var& element, HRESULT error) {
    expect_error(L"sqlConcatenar", &_QVRcfp::sqlConcatenar, array_of({L"a", element}), error);
  };
  expect_refused(Var::null(), kInvalidNull);
  for (const Var& element : {Var(object.get()), Var::nothing(), Var::missing(), array_of({1})}) {
    expect_refused(element, kTypeMismatch);
  }
}

TEST_F(Errors, RelationsAreWholeTriples) {
  for (const Var& list : {array_of({}), array_of({}, 1, VT_BSTR)}) {
    expect_error(L"sqlWhereRelacionTablas", &_QVRcfp::sqlWhereRelacionTablas, list, kInvalidArgument);
  }
  for (const Var& list :
       {array_of({L"a"}), array_of({L"a", L"b", L"I", L"c"}), array_of({L"a", L"b", L"I", L"c", L"d"}, -3, VT_BSTR)}) {
    expect_error(L"sqlWhereRelacionTablas", &_QVRcfp::sqlWhereRelacionTablas, list, kSubscript);
  }
}

TEST_F(Errors, ACallerThatWantsNoDetailsStillHearsOfIt) {
  Var list = array_of({});
  DISPPARAMS parameters{&list.raw(), nullptr, 1, 0};
  constexpr DISPID kSqlConcatenar = 0x60030022;
  EXPECT_EQ(late.get()->Invoke(kSqlConcatenar, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr),
            DISP_E_EXCEPTION);
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.sqlConcatenar: 5 Invalid procedure call or argument"}));
}

TEST_F(Errors, TheObjectGoesOnWorking) {
  use(3);
  EXPECT_EQ(late.call(L"sqlConcatenar", {array_of({})}).result, DISP_E_EXCEPTION);
  EXPECT_EQ(describe(late.call(L"sqlConcatenar", {array_of({L"a", L"b"})}).value.raw()), "BSTR  a || b ");
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.sqlConcatenar: 5 Invalid procedure call or argument"}));
}

}  // namespace
}  // namespace qvr::tests
