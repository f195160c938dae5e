#include "automation/both.h"

namespace qvr::tests {
namespace {

struct OvTest : testing::Test {
  LateObject late{L"QVRlib21.Ov"};
  ComPtr<_Ov> early = late.as<_Ov>();
  std::wstring file = beside_program(L"QVRlib21.dll");
};

TEST_F(OvTest, Version) {
  long result = 0;
  const HRESULT status = early->Version(&result);
  expect_same(late.call(L"Version"), status, early_result(result), "I4 21024");
}

TEST_F(OvTest, CadenaVersion) {
  Bstr result;
  const HRESULT status = early->CadenaVersion(&result);
  expect_same(late.call(L"CadenaVersion"), status, early_result(result), "BSTR 2.10.24");
}

TEST_F(OvTest, Path) {
  Bstr result;
  const HRESULT status = early->Path(&result);
  const std::wstring folder = file.substr(0, file.find_last_of(L'\\'));
  expect_same(late.call(L"Path"), status, early_result(result), "BSTR " + narrow(folder));
}

TEST_F(OvTest, PathCompleto) {
  Bstr result;
  const HRESULT status = early->PathCompleto(&result);
  expect_same(late.call(L"PathCompleto"), status, early_result(result), "BSTR " + narrow(file));
}

TEST_F(OvTest, VersionResourceCarriesTheSameNumbers) {
  DWORD unused = 0;
  std::vector<char> data(GetFileVersionInfoSizeW(file.c_str(), &unused));
  ASSERT_TRUE(GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(data.size()), data.data()));
  VS_FIXEDFILEINFO* info = nullptr;
  UINT size = 0;
  ASSERT_TRUE(VerQueryValueW(data.data(), L"\\", reinterpret_cast<void**>(&info), &size));
  const DWORD version = HIWORD(info->dwFileVersionMS) * 10000u + LOWORD(info->dwFileVersionMS) * 100u +
                        HIWORD(info->dwFileVersionLS);
  long result = 0;
  early->Version(&result);
  EXPECT_EQ(static_cast<long>(version), result);
}

TEST_F(OvTest, NullResultIsRefused) { EXPECT_EQ(early->CadenaVersion(nullptr), E_POINTER); }

}  // namespace
}  // namespace qvr::tests
