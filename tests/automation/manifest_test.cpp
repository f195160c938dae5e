// The manifest for use without registration beside what registration writes: both serve the same classes, interfaces
// and type library.
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

#include "automation/both.h"
#include "automation/library.h"
#include "automation/registry_snapshot.h"

namespace qvr::tests {
namespace {

constexpr const char* kTypes = "{5607725A-CE38-4F60-BDB6-A350A7556FCA}";

struct ManifestTest : testing::Test {
  static std::string text() {
    std::ifstream file(narrow(beside_program(L"QVRlib21.SxS.manifest")), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  // The values of these attributes of each element of this name, joined by blanks.
  static std::set<std::string> elements(const std::string& name, const std::vector<std::string>& attributes) {
    const std::string manifest = text();
    const std::regex element("<" + name + R"(( [^>]*)/>)");
    std::set<std::string> found;
    for (std::sregex_iterator each(manifest.begin(), manifest.end(), element), end; each != end; ++each) {
      const std::string inside = each->str(1);
      std::string values;
      for (const std::string& attribute : attributes) {
        std::smatch value;
        EXPECT_TRUE(std::regex_search(inside, value, std::regex(" " + attribute + "=\"([^\"]*)\""))) << inside;
        values += (values.empty() ? "" : " ") + value.str(1);
      }
      EXPECT_TRUE(found.insert(values).second) << values << " is there twice";
    }
    return found;
  }

  // What registration wrote below keys of this form, as the groups of the pattern joined by blanks.
  static std::set<std::string> registered(const std::string& pattern) {
    const std::regex line((sizeof(void*) == 8 ? "64 " : "32 ") + pattern, std::regex::icase);
    std::set<std::string> found;
    for (const std::wstring& each : registry_snapshot()) {
      std::smatch match;
      const std::string text = narrow(each);
      if (!std::regex_match(text, match, line)) continue;
      std::string values;
      for (std::size_t group = 1; group < match.size(); ++group) values += (group > 1 ? " " : "") + match.str(group);
      found.insert(values);
    }
    return found;
  }
};

TEST_F(ManifestTest, HasTheClassesThatAreRegistered) {
  const auto expected = registered(R"(machine\\CLSID\\(\{[^\\]*\})\\ProgID :  = (QVRlib21\.\w+))");
  EXPECT_EQ(expected.size(), 6u);
  EXPECT_EQ(elements("comClass", {"clsid", "progid"}), expected);
  EXPECT_EQ(elements("comClass", {"clsid", "threadingModel"}),
            registered(R"(machine\\CLSID\\(\{[^\\]*\})\\InprocServer32 : ThreadingModel = (Apartment))"));
}

TEST_F(ManifestTest, HasTheInterfacesOfTheTypeLibraryWithTheirMarshallers) {
  ComPtr<ITypeLib> library;
  ASSERT_EQ(LoadTypeLibEx(beside_program(L"QVRlib21.dll").c_str(), REGKIND_NONE, &library), S_OK);
  std::set<std::string> expected;
  for (UINT index = 0; index < library->GetTypeInfoCount(); ++index) {
    ComPtr<ITypeInfo> type;
    TYPEATTR* attributes = nullptr;
    Bstr name;
    library->GetTypeInfo(index, &type);
    ASSERT_EQ(type->GetTypeAttr(&attributes), S_OK);
    if (attributes->typekind == TKIND_DISPATCH) {
      wchar_t id[40];
      StringFromGUID2(attributes->guid, id, 40);
      library->GetDocumentation(static_cast<INT>(index), &name, nullptr, nullptr, nullptr);
      const bool dual = (attributes->wTypeFlags & TYPEFLAG_FDUAL) != 0;
      expected.insert(narrow(name.text()) + " " + narrow(id) + (dual ? " {00020424-" : " {00020420-") +
                      "0000-0000-C000-000000000046}");
    }
    type->ReleaseTypeAttr(attributes);
  }
  EXPECT_EQ(expected.size(), 8u);
  EXPECT_EQ(elements("comInterfaceExternalProxyStub", {"name", "iid", "proxyStubClsid32"}), expected);
}

TEST_F(ManifestTest, HasTheTypeLibraryOfTheFileItself) {
  EXPECT_EQ(elements("typelib", {"tlbid", "version", "resourceid"}),
            std::set<std::string>{std::string(kTypes) + " 1.1 1"});
  for (const char* name : {"comClass", "comInterfaceExternalProxyStub"}) {
    std::set<std::string> named;
    for (const std::string& each : elements(name, {name == std::string("comClass") ? "clsid" : "iid", "tlbid"})) {
      named.insert(each.substr(each.find(' ') + 1));
    }
    EXPECT_EQ(named, std::set<std::string>{kTypes}) << name;
  }
  EXPECT_EQ(elements("assemblyIdentity", {"name", "version", "processorArchitecture"}),
            std::set<std::string>{std::string("QVRlib21.SxS 1.1.0.0 ") + (sizeof(void*) == 8 ? "amd64" : "x86")});
  EXPECT_NE(text().find("<file name=\"QVRlib21.dll\">"), std::string::npos);
}

}  // namespace
}  // namespace qvr::tests
