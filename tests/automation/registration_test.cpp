// Registration, and its exact removal.
#include <algorithm>

#include "automation/both.h"
#include "automation/library.h"
#include "automation/registry_snapshot.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

constexpr const wchar_t* kWidth = sizeof(void*) == 8 ? L"64 " : L"32 ";
constexpr const wchar_t* kPlatform = sizeof(void*) == 8 ? L"\\win64" : L"\\win32";

struct RegistrationTest : testing::Test {
  void SetUp() override {
    ASSERT_EQ(library().unregister_it(), S_OK);
    ASSERT_EQ(library().install(FALSE, L"user"), S_OK);
    before = registry_snapshot();
  }
  void TearDown() override { ASSERT_EQ(library().register_it(), S_OK); }

  void expect_nothing_left() const {
    const RegistryLines after = registry_snapshot();
    for (const auto& line : added(before, after)) ADD_FAILURE() << "left behind: " << narrow(line);
    for (const auto& line : added(after, before)) ADD_FAILURE() << "taken away: " << narrow(line);
  }
  static bool has(const RegistryLines& lines, const std::wstring& part) {
    return std::ranges::any_of(lines, [&](const auto& line) { return line.find(part) != std::wstring::npos; });
  }

  // This width's lines of one scope, without the scope's name, in one case: the registry keeps the first spelling.
  static RegistryLines below(const RegistryLines& lines, const std::wstring& scope) {
    RegistryLines found;
    for (const auto& line : lines) {
      if (line.starts_with(kWidth + scope) && line.find(L"Wow6432Node") == std::wstring::npos) {
        std::wstring rest = line.substr(3 + scope.size());
        CharLowerW(rest.data());
        found.insert(rest);
      }
    }
    return found;
  }
  // Keys that every machine has but a user who never registered anything has not.
  static bool is_top(const std::wstring& line) {
    return line == L"clsid" || line == L"interface" || line == L"typelib";
  }

  RegistryLines before;
};

TEST_F(RegistrationTest, OfTheMachineIsTakenAwayWhole) {
  ASSERT_EQ(library().register_it(), S_OK);
  const RegistryLines written = added(before, registry_snapshot());
  EXPECT_TRUE(has(written, L"machine"));
  EXPECT_FALSE(has(written, L"user"));
  ASSERT_EQ(library().unregister_it(), S_OK);
  expect_nothing_left();
}

TEST_F(RegistrationTest, OfTheUserWritesTheSameKeysThereAndNothingOfTheMachine) {
  ASSERT_EQ(library().register_it(), S_OK);
  const RegistryLines of_machine = below(added(before, registry_snapshot()), L"machine\\");
  ASSERT_EQ(library().unregister_it(), S_OK);
  ASSERT_EQ(library().install(TRUE, L"user"), S_OK);
  const RegistryLines written = added(before, registry_snapshot());
  const RegistryLines of_user = below(written, L"user\\");
  for (const auto& line : added(of_user, of_machine)) ADD_FAILURE() << "missing: " << narrow(line);
  for (const auto& line : added(of_machine, of_user)) EXPECT_TRUE(is_top(line)) << "more: " << narrow(line);
  EXPECT_GT(of_user.size(), 50u);
  EXPECT_FALSE(has(written, L"machine"));
  ASSERT_EQ(library().install(FALSE, L"USER"), S_OK);
  expect_nothing_left();
}

TEST_F(RegistrationTest, WritesTheStandardKeys) {
  ASSERT_EQ(library().register_it(), S_OK);
  const RegistryLines written = added(before, registry_snapshot());
  const std::wstring file = beside_program(L"QVRlib21.dll");
  const std::wstring machine = std::wstring(kWidth) + L"machine\\";
  for (const wchar_t* name : {L"Ov", L"QVRcfp", L"QVRScr", L"cSQL20", L"uSQL20", L"QVRprp"}) {
    SCOPED_TRACE(narrow(name));
    const std::wstring program_id = std::wstring(L"QVRlib21.") + name;
    CLSID id;
    wchar_t id_text[40];
    ASSERT_EQ(CLSIDFromProgID(program_id.c_str(), &id), S_OK);
    StringFromGUID2(id, id_text, 40);
    const std::wstring key = machine + L"CLSID\\" + id_text;
    EXPECT_TRUE(has(written, key + L"\\InprocServer32 :  = " + file));
    EXPECT_TRUE(has(written, key + L"\\InprocServer32 : ThreadingModel = Apartment"));
    EXPECT_TRUE(has(written, key + L"\\ProgID :  = " + program_id));
    EXPECT_TRUE(has(written, machine + program_id + L"\\CLSID :  = " + id_text));
  }
  for (const wchar_t* locale : {L"409", L"0"}) {
    EXPECT_TRUE(has(written, std::wstring(L"\\1.1\\") + locale + kPlatform + L" :  = " + file)) << narrow(locale);
  }
  EXPECT_TRUE(has(written, L"\\1.1 :  = QVRlib21: database services for desktop applications"));
  EXPECT_TRUE(has(written, L"\\1.1\\FLAGS :  = 0"));
  EXPECT_TRUE(has(written, L"\\1.1\\HELPDIR :  = " + file.substr(0, file.find_last_of(L'\\'))));
  library().unregister_it();
}

// Spanish, French, a locale of no language that the library has, and none.
TEST_F(RegistrationTest, HostsOfAllLanguagesFindTheTypeLibrary) {
  ASSERT_EQ(library().register_it(), S_OK);
  for (const LCID locale : {0x409u, 0xC0Au, 0x40Au, 0x40Cu, 0x411u, 0u}) {
    ComPtr<ITypeLib> found;
    EXPECT_EQ(LoadRegTypeLib(LIBID_QVRlib21, 1, 1, locale, &found), S_OK) << locale;
  }
  library().unregister_it();
}

// A key of the machine's classes.
void write_key(const std::wstring& key, const wchar_t* text, DWORD options = REG_OPTION_NON_VOLATILE) {
  HKEY made = nullptr;
  ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, (L"Software\\Classes\\" + key).c_str(), 0, nullptr, options,
                            KEY_ALL_ACCESS, nullptr, &made, nullptr),
            ERROR_SUCCESS);
  const auto size = static_cast<DWORD>((wcslen(text) + 1) * sizeof(wchar_t));
  RegSetValueExW(made, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(text), size);
  RegCloseKey(made);
}

std::wstring type_library_key() {
  wchar_t id[40];
  StringFromGUID2(LIBID_QVRlib21, id, 40);
  return std::wstring(L"TypeLib\\") + id;
}

TEST_F(RegistrationTest, OtherVersionsOfTheTypeLibraryStay) {
  const std::wstring key = type_library_key();
  write_key(key + L"\\1.0\\0" + kPlatform, L"C:\\former.dll");
  const RegistryLines with_former = own_registry_keys();
  ASSERT_EQ(library().register_it(), S_OK);
  ASSERT_EQ(library().unregister_it(), S_OK);
  EXPECT_TRUE(own_registry_keys() == with_former);
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, (L"Software\\Classes\\" + key).c_str());
  expect_nothing_left();
}

// Below a volatile key no lasting one can be made, so that the last keys cannot be written.
struct FailingRegistration : RegistrationTest {
  void SetUp() override {
    RegistrationTest::SetUp();
    write_key(type_library_key(), L"", REG_OPTION_VOLATILE);
    with_obstacle = own_registry_keys();
  }
  void TearDown() override {
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, (L"Software\\Classes\\" + type_library_key()).c_str());
    RegistrationTest::TearDown();
  }
  RegistryLines with_obstacle;
};

const Text kRefusedKey = u"register_library: 1021 The registry refused a key";  // ERROR_CHILD_MUST_BE_VOLATILE

TEST_F(FailingRegistration, LeavesNothingBehind) {
  EXPECT_EQ(library().register_it(), SELFREG_E_CLASS);
  EXPECT_TRUE(own_registry_keys() == with_obstacle);
  EXPECT_EQ(traced(), Traces{kRefusedKey});
}

TEST_F(FailingRegistration, LeavesAFormerOneAsItWas) {
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, (L"Software\\Classes\\" + type_library_key()).c_str());
  ASSERT_EQ(library().register_it(), S_OK);
  CLSID id;
  wchar_t id_text[40];
  ASSERT_EQ(CLSIDFromProgID(L"QVRlib21.QVRcfp", &id), S_OK);
  StringFromGUID2(id, id_text, 40);
  write_key(std::wstring(L"CLSID\\") + id_text + L"\\InprocServer32", L"C:\\former\\QVRlib21.dll");
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, (L"Software\\Classes\\" + type_library_key()).c_str());
  write_key(type_library_key(), L"", REG_OPTION_VOLATILE);
  const RegistryLines former = own_registry_keys();
  EXPECT_EQ(library().register_it(), SELFREG_E_CLASS);
  EXPECT_EQ(traced(), Traces{kRefusedKey});
  const RegistryLines after = own_registry_keys();
  for (const auto& line : added(former, after)) ADD_FAILURE() << "left behind: " << narrow(line);
  for (const auto& line : added(after, former)) ADD_FAILURE() << "taken away: " << narrow(line);
  library().unregister_it();
}

TEST_F(RegistrationTest, TwiceIsTheSameAsOnce) {
  library().register_it();
  const RegistryLines once = registry_snapshot();
  EXPECT_EQ(library().register_it(), S_OK);
  EXPECT_TRUE(once == registry_snapshot());
  EXPECT_EQ(library().unregister_it(), S_OK);
  EXPECT_EQ(library().unregister_it(), S_OK) << "what is not there is no failure";
  expect_nothing_left();
}

TEST_F(RegistrationTest, OtherInstallCommandsAreRefused) {
  EXPECT_EQ(library().install(TRUE, L"everybody"), E_INVALIDARG);
  expect_nothing_left();
  EXPECT_EQ(library().install(TRUE, nullptr), S_OK);
  EXPECT_TRUE(has(added(before, registry_snapshot()), L"machine"));
  EXPECT_EQ(library().install(FALSE, L""), S_OK);
  expect_nothing_left();
}

TEST_F(RegistrationTest, KeysSharedWithTheOtherWidthStayWhileThatOneIsRegistered) {
  ASSERT_EQ(library().register_it(), S_OK);
  CLSID id;
  wchar_t id_text[40];
  CLSIDFromProgID(L"QVRlib21.QVRcfp", &id);
  StringFromGUID2(id, id_text, 40);
  constexpr REGSAM kOther = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
  const std::wstring other = std::wstring(L"Software\\Classes\\CLSID\\") + id_text;
  HKEY key = nullptr;
  ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, (other + L"\\InprocServer32").c_str(), 0, nullptr, 0,
                            KEY_ALL_ACCESS | kOther, nullptr, &key, nullptr),
            ERROR_SUCCESS);
  RegSetValueExW(key, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(L"other.dll"), 20);
  RegCloseKey(key);
  ASSERT_EQ(library().unregister_it(), S_OK);
  const RegistryLines left = added(before, registry_snapshot());
  EXPECT_TRUE(has(left, L"machine\\QVRlib21.QVRcfp\\CLSID"));
  EXPECT_TRUE(has(left, L"\\1.1\\FLAGS :  = 0"));
  EXPECT_FALSE(has(left, std::wstring(L"\\1.1\\0") + kPlatform));
  EXPECT_FALSE(has(left, std::wstring(L"\\1.1\\409") + kPlatform));
  RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"Software\\Classes\\CLSID", 0, KEY_ALL_ACCESS | kOther, &key);
  RegDeleteTreeW(key, id_text);
  RegCloseKey(key);
  ASSERT_EQ(library().unregister_it(), S_OK);
  expect_nothing_left();
}

}  // namespace
}  // namespace qvr::tests
