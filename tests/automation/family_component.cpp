#include "automation/family_component.h"

#include <gtest/gtest.h>

namespace qvr::tests {
namespace {

constexpr CLSID kComponent = {0x5d0f6a53, 0x93d1, 0x4b8e, {0x9a, 0x5c, 0x21, 0x77, 0x0e, 0x43, 0x8b, 0x10}};

std::string described_call(const std::wstring& member, const std::vector<Var>& arguments) {
  std::string text = narrow(member) + "(";
  for (const Var& argument : arguments) {
    if (!text.ends_with('(')) text += ", ";
    if (argument.type() != (VT_ARRAY | VT_VARIANT)) {
      text += describe(argument.raw());
      continue;
    }
    VARIANT* items = nullptr;
    SafeArrayAccessData(argument.raw().parray, reinterpret_cast<void**>(&items));
    for (ULONG i = 0; i < argument.raw().parray->rgsabound[0].cElements; ++i) {
      text += (i == 0 ? "{" : "; ") + describe(items[i]);
    }
    SafeArrayUnaccessData(argument.raw().parray);
    text += "}";
  }
  return text + ")";
}

// The component and its class object in one: CreateInstance gives the object itself.
class Component final : public IDispatch, public IClassFactory {
 public:
  Component(std::vector<std::wstring> members, FamilyComponent::Answer answer, std::vector<std::string>& calls)
      : members_(std::move(members)), answer_(std::move(answer)), calls_(calls) {
    InterlockedIncrement(&living);
  }
  static inline volatile LONG living = 0;

  STDMETHODIMP QueryInterface(REFIID id, void** found) noexcept override {
    *found = id == IID_IUnknown || id == IID_IDispatch ? static_cast<IDispatch*>(this)
             : id == IID_IClassFactory                 ? static_cast<IClassFactory*>(this)
                                                       : static_cast<void*>(nullptr);
    if (*found == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return static_cast<ULONG>(InterlockedIncrement(&count_)); }
  STDMETHODIMP_(ULONG) Release() noexcept override {
    const LONG left = InterlockedDecrement(&count_);
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
  }
  STDMETHODIMP CreateInstance(IUnknown*, REFIID id, void** found) noexcept override {
    return QueryInterface(id, found);
  }
  STDMETHODIMP LockServer(BOOL) noexcept override { return S_OK; }
  STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override {
    *count = 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) noexcept override {
    for (std::size_t i = 0; i < members_.size(); ++i) {
      if (members_[i] == names[0]) {
        *ids = static_cast<DISPID>(i + 1);
        return S_OK;
      }
    }
    return DISP_E_UNKNOWNNAME;
  }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*,
                      UINT*) noexcept override {
    std::vector<Var> arguments(parameters->cArgs);
    for (UINT i = 0; i < parameters->cArgs; ++i) {
      VariantCopyInd(&arguments[parameters->cArgs - 1 - i].raw(), &parameters->rgvarg[i]);
    }
    const std::wstring& member = members_[static_cast<std::size_t>(id - 1)];
    calls_.push_back(described_call(member, arguments));
    LateAnswer answer = answer_(member, arguments);
    for (UINT i = 0; i < parameters->cArgs; ++i) {
      const VARIANT& given = parameters->rgvarg[i];
      if (given.vt != (VT_BYREF | VT_BSTR)) continue;
      SysReAllocString(given.pbstrVal, arguments[parameters->cArgs - 1 - i].text().c_str());
    }
    if (result != nullptr) VariantCopy(result, &answer.value.raw());
    return answer.result;
  }

 private:
  ~Component() { InterlockedDecrement(&living); }
  std::vector<std::wstring> members_;
  FamilyComponent::Answer answer_;
  std::vector<std::string>& calls_;
  volatile LONG count_ = 1;
};

std::wstring key_of(const std::wstring& program_id) { return L"Software\\Classes\\" + program_id; }

}  // namespace

FamilyComponent::FamilyComponent(const wchar_t* program_id, std::vector<std::wstring> members, Answer answer)
    : program_id_(program_id) {
  ComPtr<IClassFactory> factory;
  factory.Attach(new Component(std::move(members), std::move(answer), calls_));
  EXPECT_EQ(CoRegisterClassObject(kComponent, factory.Get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie_), S_OK);
  wchar_t id[40];
  StringFromGUID2(kComponent, id, 40);
  EXPECT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, (key_of(program_id_) + L"\\CLSID").c_str(), nullptr, REG_SZ, id,
                            39 * sizeof(wchar_t)),
            ERROR_SUCCESS);
}

void FamilyComponent::revoke() {
  if (cookie_ != 0) CoRevokeClassObject(cookie_);
  cookie_ = 0;
}

long FamilyComponent::living() { return Component::living; }

FamilyComponent::~FamilyComponent() {
  revoke();
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, key_of(program_id_).c_str());
}

}  // namespace qvr::tests
