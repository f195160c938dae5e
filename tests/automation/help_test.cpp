// What type-library browsers show of each type and member, and where their F1 leads to.
#include <map>

#include "automation/both.h"

namespace qvr::tests {
namespace {

struct Help {
  std::string name, text;
  DWORD context = 0;
};

Help help_of(ITypeInfo& info, MEMBERID member) {
  Bstr name, text;
  Help help;
  EXPECT_EQ(info.GetDocumentation(member, &name, &text, &help.context, nullptr), S_OK);
  help.name = narrow(name.text());
  help.text = narrow(text.text());
  return help;
}

// The thousands of each type's numbers. A class has those of its default interface.
DWORD thousands(const std::string& type) {
  const std::map<std::string, DWORD> numbers = {{"Ov", 1},     {"QVRcfp", 2},  {"iSQL20", 3},
                                                {"cSQL20", 4}, {"uSQL20", 5},  {"QVRScr", 6},
                                                {"QVRprp", 7}, {"_QVRScr", 8}, {"MotoresBD", 9}};
  const auto found = numbers.find(type.starts_with("_") ? type.substr(1) : type);
  return found != numbers.end() ? found->second * 1000 : 0;
}

// Where the member stands among the others: the low half of its id, but for events and for the default member.
DWORD position(MEMBERID id, bool event) {
  constexpr DWORD kDefaultMember = 2;
  if (event) return static_cast<DWORD>(id) - 1;
  return id == DISPID_VALUE ? kDefaultMember : static_cast<DWORD>(id) & 0xFFFF;
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
    EXPECT_EQ(help.context, thousands(own.name) + 1 + position(id, own.name == "__QVRScr"));
  }
  return members;
}

TEST(Help, EveryTypeAndMemberHasATextAndItsNumber) {
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
    EXPECT_NE(own.context, 0u) << own.name;
    EXPECT_EQ(own.context, thousands(own.name)) << own.name;
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
