// Help strings of all types and members.
#include <map>

#include "automation/both.h"

namespace qvr::tests {
namespace {

struct Help {
  std::string name, text;
};

Help help_of(ITypeInfo& info, MEMBERID member) {
  Bstr name, text;
  Help help;
  EXPECT_EQ(info.GetDocumentation(member, &name, &text, nullptr, nullptr), S_OK);
  help.name = narrow(name.text());
  help.text = narrow(text.text());
  return help;
}

// Checks the type's own members; how many there are.
int expect_members_to_have_help(ITypeInfo& info, const TYPEATTR& type, const Help& own) {
  int members = 0;
  for (UINT i = 0; i < type.cFuncs; ++i) {
    FUNCDESC* function = nullptr;
    EXPECT_EQ(info.GetFuncDesc(i, &function), S_OK);
    const MEMBERID id = function->memid;
    info.ReleaseFuncDesc(function);
    const Help help = help_of(info, id);
    constexpr MEMBERID kInherited = 0x60020000;  // of IDispatch and IUnknown, as dual interfaces list them
    if ((id & 0x7FFF0000) <= kInherited && (id & 0x7FFF0000) >= 0x60000000) continue;
    ++members;
    SCOPED_TRACE(own.name + "." + help.name);
    EXPECT_NE(help.text, "");
  }
  return members;
}

TEST(Help, EveryTypeAndMemberHasAText) {
  ComPtr<ITypeLib> library;
  ASSERT_EQ(LoadTypeLibEx(beside_program(L"QVRlib21.dll").c_str(), REGKIND_NONE, &library), S_OK);
  std::map<std::string, int> members;
  for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
    ComPtr<ITypeInfo> info;
    TYPEATTR* type = nullptr;
    ASSERT_EQ(library->GetTypeInfo(i, &info), S_OK);
    ASSERT_EQ(info->GetTypeAttr(&type), S_OK);
    const Help own = help_of(*info.Get(), MEMBERID_NIL);
    EXPECT_NE(own.text, "") << own.name;
    const int count = expect_members_to_have_help(*info.Get(), *type, own);
    if (count > 0) members[own.name] = count;
    info->ReleaseTypeAttr(type);
  }
  const std::map<std::string, int> expected = {{"_Ov", 4},      {"_QVRcfp", 43}, {"_iSQL20", 29}, {"_cSQL20", 35},
                                               {"_uSQL20", 30}, {"_QVRScr", 5},  {"_QVRprp", 6},  {"__QVRScr", 2}};
  EXPECT_EQ(members, expected);
}

TEST(Help, TheLibraryItselfHasAText) {
  ComPtr<ITypeLib> library;
  ASSERT_EQ(LoadTypeLibEx(beside_program(L"QVRlib21.dll").c_str(), REGKIND_NONE, &library), S_OK);
  Bstr text;
  ASSERT_EQ(library->GetDocumentation(MEMBERID_NIL, nullptr, &text, nullptr, nullptr), S_OK);
  EXPECT_EQ(narrow(text.text()), "QVRlib21: database services for desktop applications");
}

}  // namespace
}  // namespace qvr::tests
