// What an exception becomes where it would leave the library.
#include "com/answer.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "support/traced.h"

namespace qvr::com {
namespace {

using tests::traced;
using tests::Traces;

constexpr HRESULT kOutOfMemory = E_OUTOFMEMORY;

HRESULT guarded_call(void (*body)()) {
  return guarded(CLSID_QVRcfp, kOutOfMemory, [body] {
    body();
    return S_OK;
  });
}

TEST(Guarded, GivesTheResultWhenNothingIsThrown) {
  EXPECT_EQ(guarded(CLSID_QVRcfp, kOutOfMemory, [] { return S_FALSE; }), S_FALSE);
}

TEST(Guarded, GivesTheNumberOfAFailureAndItsText) {
  EXPECT_EQ(guarded_call([] { throw RuntimeFailure(13); }), static_cast<HRESULT>(0x800A000D));
  ComPtr<IErrorInfo> info;
  ASSERT_EQ(GetErrorInfo(0, &info), S_OK);
  OwnedBstr description, source;
  info->GetDescription(description.out());
  info->GetSource(source.out());
  EXPECT_EQ(description.text(), u"Type mismatch");
  EXPECT_EQ(source.text(), u"QVRlib21");
  EXPECT_EQ(traced(), Traces{u"QVRcfp.guarded_call: 13 Type mismatch"});
}

TEST(Guarded, GivesTheCallersResultWhenOutOfMemory) {
  EXPECT_EQ(guarded_call([] { throw std::bad_alloc(); }), kOutOfMemory);
  EXPECT_EQ(traced(), Traces{u"QVRcfp.guarded_call: 7 Out of memory"});
}

TEST(Guarded, NeverAnswersSuccessToWhatIsUnforeseen) {
  EXPECT_EQ(guarded_call([] { throw std::logic_error("any"); }), E_FAIL);
  EXPECT_EQ(guarded_call([] { throw 42; }), E_FAIL);
  EXPECT_EQ(traced(), Traces(2, u"QVRcfp.guarded_call: 5 Unforeseen exception"));
}

HRESULT answered(LONG* out, std::int32_t (*body)()) { return answer(CLSID_cSQL20, out, body); }

TEST(Answer, IsTheDefaultBesideAFailure) {
  LONG number = 5;
  const HRESULT result = answered(&number, []() -> std::int32_t { throw 42; });
  EXPECT_EQ(result, E_FAIL);
  EXPECT_EQ(number, 0);
  EXPECT_EQ(traced(), Traces{u"cSQL20.answered: 5 Unforeseen exception"});
}

TEST(Answer, IsTheDefaultAndASuccessWhenOutOfMemory) {
  LONG number = 5;
  const HRESULT result = answered(&number, []() -> std::int32_t { throw std::bad_alloc(); });
  EXPECT_EQ(result, S_OK);
  EXPECT_EQ(number, 0);
  EXPECT_EQ(traced(), Traces{u"cSQL20.answered: 7 Out of memory"});
}

TEST(Answer, NeedsAPlaceForTheResult) {
  EXPECT_EQ(answered(nullptr, []() -> std::int32_t { return 7; }), E_POINTER);
}

TEST(ClassName, IsThatOfTheTable) {
  EXPECT_EQ(class_name(CLSID_Ov), u"Ov");
  EXPECT_EQ(class_name(GUID_NULL), u"");
}

}  // namespace
}  // namespace qvr::com
