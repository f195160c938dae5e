// GetIDsOfNames does not allocate: scripts call it before each call.
#include "automation/stress/allocations.h"
#include "automation/both.h"
#include "automation/in_use.h"
#include "automation/stress/subjects.h"

namespace qvr::tests {
namespace {

TEST(AllocationsOfLateCalls, AreSeenWhereverTheyAreMade) {
  stop_string_cache();
  const LateObject cfp(L"QVRlib21.QVRcfp");
  const ComPtr<_QVRcfp> early = cfp.as<_QVRcfp>();
  Bstr text(L"a text that needs memory of its own"), result;
  const Allocations allocations;
  void* const of_run_time = malloc(1);
  EXPECT_EQ(allocations.count(), 1u);
  void* const of_system = CoTaskMemAlloc(1);
  EXPECT_EQ(allocations.count(), 2u);
  const BSTR of_automation = SysAllocString(L"a");
  EXPECT_EQ(allocations.count(), 3u);
  early->sqlAlias(&text, &result);
  EXPECT_GE(allocations.count(), 5u) << "the library's copy and its result";
  SysFreeString(of_automation);
  CoTaskMemFree(of_system);
  free(of_run_time);
}

// A member's name with those of its arguments, and one that there is not.
std::vector<std::wstring> names_of(const DescribedMember& member) {
  std::vector<std::wstring> names{member.name};
  for (const MemberParameter& parameter : member.parameters) names.push_back(parameter.name);
  names.push_back(L"NoHay");
  return names;
}

TEST(AllocationsOfLateCalls, NoNameNeedsOne) {
  stop_string_cache();
  for (const DescribedInterface& described : described_interfaces()) {
    const Subject subject(described);
    subject.expect_works();  // the first call by name has read the signatures
    for (const DescribedMember& member : described.members) {
      SCOPED_TRACE(narrow(described.name + L"." + member.name));
      std::vector<std::wstring> names = names_of(member);
      std::vector<LPOLESTR> pointers;
      for (std::wstring& name : names) pointers.push_back(name.data());
      std::vector<DISPID> ids(names.size());
      const Allocations allocations;
      const HRESULT result = subject.object().GetIDsOfNames(IID_NULL, pointers.data(), static_cast<UINT>(names.size()),
                                                            LOCALE_USER_DEFAULT, ids.data());
      EXPECT_EQ(allocations.count(), 0u);
      EXPECT_EQ(result, DISP_E_UNKNOWNNAME) << "the last";
      EXPECT_EQ(ids.front(), member.id);
    }
  }
}

}  // namespace
}  // namespace qvr::tests
