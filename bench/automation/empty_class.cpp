// A class without members in a library of its own: the least that creating an object by its name can cost.
#include <new>
#include <string>

#include "com/counted.h"

namespace {

using qvr::com::Counted;

constexpr wchar_t kProgramId[] = L"QVRBench.Empty";
constexpr CLSID kId{0x5e0e91b3, 0x7c41, 0x4a58, {0x9d, 0x4e, 0x21, 0x0a, 0x8f, 0x63, 0xb7, 0xd2}};
constexpr wchar_t kSpelledId[] = L"{5E0E91B3-7C41-4A58-9D4E-210A8F63B7D2}";

class Empty final : public Counted<IDispatch> {
 public:
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return DISP_E_UNKNOWNNAME; }
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
    return DISP_E_MEMBERNOTFOUND;
  }
};

class Factory final : public Counted<IClassFactory> {
 public:
  STDMETHODIMP CreateInstance(IUnknown*, REFIID id, void** found) override {
    auto* const made = new (std::nothrow) Empty;
    return made != nullptr ? made->hand_over(id, found) : E_OUTOFMEMORY;
  }
  STDMETHODIMP LockServer(BOOL) override { return S_OK; }
};

HRESULT write(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
  const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
  const LSTATUS status = RegSetKeyValueW(HKEY_LOCAL_MACHINE, (L"Software\\Classes\\" + key).c_str(), name, REG_SZ,
                                         value.c_str(), size);
  return HRESULT_FROM_WIN32(static_cast<unsigned long>(status));
}

HINSTANCE instance = nullptr;

}  // namespace

BOOL WINAPI DllMain(HINSTANCE module, DWORD, LPVOID) {
  instance = module;
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID id, REFIID interface_id, void** found) {
  if (id != kId) return CLASS_E_CLASSNOTAVAILABLE;
  auto* const made = new (std::nothrow) Factory;
  return made != nullptr ? made->hand_over(interface_id, found) : E_OUTOFMEMORY;
}

STDAPI DllCanUnloadNow() { return qvr::com::ModuleLock::any() ? S_FALSE : S_OK; }

STDAPI DllRegisterServer() {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(instance, path, MAX_PATH);
  const std::wstring key = std::wstring(L"CLSID\\") + kSpelledId, server = key + L"\\InprocServer32";
  HRESULT written = write(kProgramId + std::wstring(L"\\CLSID"), nullptr, kSpelledId);
  if (SUCCEEDED(written)) written = write(server, nullptr, path);
  if (SUCCEEDED(written)) written = write(server, L"ThreadingModel", L"Apartment");
  return written;
}

STDAPI DllUnregisterServer() {
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, (std::wstring(L"Software\\Classes\\CLSID\\") + kSpelledId).c_str());
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, (std::wstring(L"Software\\Classes\\") + kProgramId).c_str());
  return S_OK;
}
