// Settings as written by SaveSetting of Visual Basic.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "platform/platform.h"

namespace qvr::tests {
namespace {

// An application of its own in the current user's registry, gone at the end.
class RegisteredSettingsTest : public ::testing::Test {
 protected:
  RegisteredSettingsTest() : name_(L"QVRlib21 tests " + std::to_wstring(GetCurrentProcessId())) {}
  ~RegisteredSettingsTest() override { RegDeleteTreeW(HKEY_CURRENT_USER, key().c_str()); }

  std::wstring key() const { return L"Software\\VB and VBA Program Settings\\" + name_; }

  void write(DWORD type, const void* bytes, std::size_t size) {
    const LSTATUS status = RegSetKeyValueW(HKEY_CURRENT_USER, (key() + L"\\Idioma").c_str(), L"IdiomaOmision", type,
                                           bytes, static_cast<DWORD>(size));
    ASSERT_EQ(status, ERROR_SUCCESS);
  }
  void write(const std::wstring& text) { write(REG_SZ, text.c_str(), (text.size() + 1) * sizeof(wchar_t)); }

  Text read() const {
    return system_platform().system.setting(Text(name_.begin(), name_.end()), u"Idioma", u"IdiomaOmision", u"fallback");
  }

 private:
  std::wstring name_;
};

TEST_F(RegisteredSettingsTest, AreTheFallbackWhereThereIsNone) {
  EXPECT_EQ(read(), u"fallback");
  RegSetKeyValueW(HKEY_CURRENT_USER, (key() + L"\\Idioma").c_str(), L"Other", REG_SZ, L"1", 4);
  EXPECT_EQ(read(), u"fallback");
}

TEST_F(RegisteredSettingsTest, AreReadAsTexts) {
  for (const wchar_t* text : {L"3", L"", L"abc \u00f1", L"2.5"}) {
    write(text);
    const std::wstring expected(text);
    EXPECT_EQ(read(), Text(expected.begin(), expected.end()));
  }
}

TEST_F(RegisteredSettingsTest, MayBeLong) {
  for (std::size_t size : {63u, 64u, 65u, 5000u}) {
    write(std::wstring(size, L'7'));
    EXPECT_EQ(read(), Text(size, u'7'));
  }
}

TEST_F(RegisteredSettingsTest, OfAnotherTypeAreNone) {
  const DWORD number = 3;
  write(REG_DWORD, &number, sizeof number);
  EXPECT_EQ(read(), u"fallback");
}

}  // namespace
}  // namespace qvr::tests
