#include "automation/played_ado.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>

#include "automation/library.h"

namespace qvr::tests {
namespace {

struct Kind {
  const char* name;
  std::vector<std::wstring> members;
};

const std::array kKinds = {
    Kind{"Connection",
         {L"ConnectionString", L"Open", L"BeginTrans", L"CommitTrans", L"RollbackTrans", L"Close", L"Errors",
          L"ConnectionTimeout"}},
    Kind{"Command",
         {L"ActiveConnection", L"CommandType", L"CommandText", L"CommandTimeout", L"Execute", L"Parameters"}},
    Kind{"Parameter", {L"Type", L"Size", L"Precision", L"NumericScale", L"Name", L"Direction", L"Value"}},
    Kind{"Parameters", {L"Refresh", L"Item", L"Append"}},
    Kind{"Errors", {L"Count", L"Item"}},
};
constexpr std::array kCreated = {Played::Connection, Played::Command, Played::Parameter};

const Kind& described(Played kind) { return kKinds[static_cast<std::size_t>(kind)]; }

// Answered by a played object itself, never by a proxy of it.
constexpr IID kItself = {0x2f1c7d64, 0x0b7e, 0x4c1a, {0x8d, 0x35, 0x6a, 0x90, 0x4e, 0x11, 0xc2, 0x08}};

template <class Interface>
class Counted : public Interface {
 public:
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return static_cast<ULONG>(InterlockedIncrement(&count_)); }
  STDMETHODIMP_(ULONG) Release() noexcept override {
    const LONG left = InterlockedDecrement(&count_);
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
  }

 protected:
  Counted() = default;
  virtual ~Counted() = default;

 private:
  volatile LONG count_ = 1;
};

// The dispatch ids of one interface: a row of numbers from `first` on, in the order of the members.
HRESULT ids_of(const Kind& kind, DISPID first, LPOLESTR* names, UINT count, DISPID* ids) {
  for (UINT i = 0; i < count; ++i) {
    const auto found = std::ranges::find(kind.members, std::wstring(names[i]));
    if (found == kind.members.end()) return DISP_E_UNKNOWNNAME;
    ids[i] = first + static_cast<DISPID>(found - kind.members.begin());
  }
  return S_OK;
}

// Of an interface it knows no more than the identifier, and the members' names and ids.
class PlayedInterface final : public Counted<ITypeInfo> {
 public:
  PlayedInterface(Played kind, DISPID first) : kind_(kind), first_(first) {}

  STDMETHODIMP QueryInterface(REFIID id, void** found) noexcept override {
    *found = id == IID_IUnknown || id == IID_ITypeInfo ? this : nullptr;
    if (*found == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP GetTypeAttr(TYPEATTR** attributes) noexcept override {
    auto* const made = new TYPEATTR{};
    made->guid = {0x6be2a0c1,
                  static_cast<unsigned short>(kind_),
                  0x4f7d,
                  {0x91, 0x3e, 0x57, 0x0c, 0, 0, static_cast<BYTE>(first_ >> 8), static_cast<BYTE>(first_)}};
    made->typekind = TKIND_DISPATCH;
    made->wTypeFlags = TYPEFLAG_FDISPATCHABLE;
    *attributes = made;
    return S_OK;
  }
  STDMETHODIMP_(void) ReleaseTypeAttr(TYPEATTR* attributes) noexcept override { delete attributes; }
  STDMETHODIMP GetIDsOfNames(LPOLESTR* names, UINT count, MEMBERID* ids) noexcept override {
    return ids_of(described(kind_), first_, names, count, ids);
  }

  STDMETHODIMP GetTypeComp(ITypeComp**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetFuncDesc(UINT, FUNCDESC**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetVarDesc(UINT, VARDESC**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetNames(MEMBERID, BSTR*, UINT, UINT*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetRefTypeOfImplType(UINT, HREFTYPE*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetImplTypeFlags(UINT, INT*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(PVOID, MEMBERID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) noexcept override {
    return E_NOTIMPL;
  }
  STDMETHODIMP GetDocumentation(MEMBERID, BSTR*, BSTR*, DWORD*, BSTR*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetDllEntry(MEMBERID, INVOKEKIND, BSTR*, BSTR*, WORD*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetRefTypeInfo(HREFTYPE, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP AddressOfMember(MEMBERID, INVOKEKIND, PVOID*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP CreateInstance(IUnknown*, REFIID, PVOID*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetMops(MEMBERID, BSTR*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetContainingTypeLib(ITypeLib**, UINT*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP_(void) ReleaseFuncDesc(FUNCDESC*) noexcept override {}
  STDMETHODIMP_(void) ReleaseVarDesc(VARDESC*) noexcept override {}

 private:
  const Played kind_;
  const DISPID first_;
};

}  // namespace

class PlayedObject final : public Counted<IDispatch> {
 public:
  PlayedObject(PlayedAdo& ado, Played kind) : ado_(ado), kind_(kind), number_(ado.number_of_next(kind)) {
    InterlockedIncrement(&ado_.living_);
    constexpr DISPID kApart = 100;
    const auto of_object = [](int number) { return 1 + number * kApart; };
    first_id_ = ado.own_ids ? of_object(number_) : 1;
    switch (ado.type_information) {
      case PlayedAdo::TypeInformation::None: break;
      case PlayedAdo::TypeInformation::Honest: described_first_ = first_id_; break;
      case PlayedAdo::TypeInformation::OfTheSecond: described_first_ = of_object(2); break;
      case PlayedAdo::TypeInformation::OfNone: described_first_ = of_object(0) + kApart / 2; break;
    }
  }

  std::string name() const { return described(kind_).name + std::to_string(number_); }

  STDMETHODIMP QueryInterface(REFIID id, void** found) noexcept override {
    *found = id == IID_IUnknown || id == IID_IDispatch || id == kItself ? this : nullptr;
    if (*found == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override {
    *count = described_first_ != 0 ? 1 : 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** found) noexcept override {
    *found = nullptr;
    if (described_first_ == 0) return E_NOTIMPL;
    if (index != 0) return DISP_E_BADINDEX;
    *found = new PlayedInterface(kind_, described_first_);
    return S_OK;
  }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) noexcept override {
    ado_.count_names(kind_);
    return ids_of(described(kind_), first_id_, names, count, ids);
  }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                      EXCEPINFO* exception, UINT*) noexcept override {
    const DISPID place = id - first_id_;
    const auto& members = described(kind_).members;
    if (place < 0 || place >= static_cast<DISPID>(members.size())) {
      ado_.hear(name() + " called by the id " + std::to_string(id) + ", which is none of its own");
      return DISP_E_MEMBERNOTFOUND;
    }
    const std::wstring& member = members[static_cast<std::size_t>(place)];
    const HRESULT heard = ado_.hear(described_call(member, flags, *parameters));
    if (heard == DISP_E_EXCEPTION && exception != nullptr) {
      exception->scode = E_FAIL;
      exception->bstrSource = SysAllocString(L"played");
      exception->bstrDescription = SysAllocString(L"refused by the test");
    }
    if (heard != S_OK) return heard;
    Var answer = answered(member, flags, *parameters);
    if (result != nullptr) VariantCopy(result, &answer.raw());
    return S_OK;
  }

 private:
  ~PlayedObject() override { InterlockedDecrement(&ado_.living_); }

  static std::string described_argument(const VARIANT& argument) {
    constexpr UINT kLong = 100;
    if (argument.vt == VT_BSTR && SysStringLen(argument.bstrVal) > kLong) {
      return "BSTR of " + std::to_string(SysStringLen(argument.bstrVal)) + " characters";
    }
    if (argument.vt != VT_DISPATCH || argument.pdispVal == nullptr) return describe(argument);
    ComPtr<IUnknown> own;
    if (FAILED(argument.pdispVal->QueryInterface(kItself, reinterpret_cast<void**>(&own)))) return "an object";
    return static_cast<PlayedObject*>(own.Get())->name();
  }

  static std::string described_arguments(const DISPPARAMS& parameters) {
    std::string text;
    for (UINT i = parameters.cArgs; i > 0; --i) {
      text += (text.empty() ? "" : ", ") + described_argument(parameters.rgvarg[i - 1]);
    }
    return text;
  }

  std::string described_call(const std::wstring& member, WORD flags, const DISPPARAMS& parameters) const {
    const std::string called = name() + "." + narrow(member), arguments = described_arguments(parameters);
    if (flags == DISPATCH_PROPERTYPUT) return called + " = " + arguments;
    if (flags == DISPATCH_PROPERTYPUTREF) return "set " + called + " = " + arguments;
    if (flags == DISPATCH_PROPERTYGET) return called + (arguments.empty() ? "" : "[" + arguments + "]");
    return called + "(" + arguments + ")";
  }

  static Var made(PlayedAdo& ado, Played kind) {
    ComPtr<IDispatch> object;
    object.Attach(new PlayedObject(ado, kind));
    return Var(object.Get());
  }

  Var answered(const std::wstring& member, WORD flags, const DISPPARAMS& parameters) {
    if (flags != DISPATCH_PROPERTYGET) {
      if (member == L"Value") VariantCopy(&value_.raw(), &parameters.rgvarg[0]);
      return {};
    }
    if (member == L"Parameters") return made(ado_, Played::Parameters);
    if (member == L"Errors") return made(ado_, Played::Errors);
    if (member == L"Item") return made(ado_, Played::Parameter);
    if (member == L"Value") return value_;
    return Var(0);
  }

  PlayedAdo& ado_;
  const Played kind_;
  const int number_;
  DISPID first_id_ = 1, described_first_ = 0;  // 0: no type information
  Var value_{0};
};

class PlayedClass final : public Counted<IClassFactory> {
 public:
  PlayedClass(PlayedAdo& ado, Played kind) : ado_(ado), kind_(kind) {}

  STDMETHODIMP QueryInterface(REFIID id, void** found) noexcept override {
    *found = id == IID_IUnknown || id == IID_IClassFactory ? this : nullptr;
    if (*found == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP CreateInstance(IUnknown*, REFIID id, void** found) noexcept override {
    *found = nullptr;
    ComPtr<PlayedObject> object;
    object.Attach(new PlayedObject(ado_, kind_));
    const HRESULT heard = ado_.hear("new " + object->name());
    return heard == S_OK ? object->QueryInterface(id, found) : heard;
  }
  STDMETHODIMP LockServer(BOOL) noexcept override { return S_OK; }

 private:
  PlayedAdo& ado_;
  const Played kind_;
};

// What DllGetClassObject gives out.
class PlayedClasses {
 public:
  static void add(PlayedAdo& ado) {
    const std::lock_guard held(lock_);
    played_.insert(&ado);
  }
  static void remove(PlayedAdo& ado) {
    const std::lock_guard held(lock_);
    played_.erase(&ado);
  }
  static HRESULT find(REFCLSID id, REFIID wanted, void** found) {
    *found = nullptr;
    for (PlayedAdo* const ado : now()) {
      for (const Played kind : kCreated) {
        if (ado->class_id(kind) == id) return class_object(*ado, kind, wanted, found);
      }
    }
    return CLASS_E_CLASSNOTAVAILABLE;
  }

 private:
  static std::set<PlayedAdo*> now() {
    const std::lock_guard held(lock_);
    return played_;
  }
  static HRESULT class_object(PlayedAdo& ado, Played kind, REFIID wanted, void** found) {
    {
      const std::lock_guard held(ado.lock_);
      ++ado.classes_asked_[kind];
    }
    const HRESULT heard = ado.hear(std::string("class ") + described(kind).name, false);
    if (heard != S_OK) return heard;
    ComPtr<PlayedClass> made;
    made.Attach(new PlayedClass(ado, kind));
    return made->QueryInterface(wanted, found);
  }

  static inline std::mutex lock_;
  static inline std::set<PlayedAdo*> played_;
};

namespace {

unsigned long next_number() {
  static volatile LONG last = 0;
  return static_cast<unsigned long>(InterlockedIncrement(&last));
}

void write(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
  EXPECT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, REG_SZ, value.c_str(),
                            static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t))),
            ERROR_SUCCESS);
}

std::wstring spelled(const CLSID& id) {
  wchar_t text[40];
  StringFromGUID2(id, text, 40);
  return text;
}

std::wstring program_path() {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  return path;
}

}  // namespace

PlayedAdo::PlayedAdo(std::wstring threading_model)
    : threading_model_(std::move(threading_model)), number_(next_number()) {
  PlayedClasses::add(*this);
  register_it();
}

PlayedAdo::~PlayedAdo() {
  EXPECT_EQ(living_, 0) << "an ADO object was left behind";
  unregister_it();
  PlayedClasses::remove(*this);
  EXPECT_EQ(test_ado().register_it(), S_OK);
}

// The server is the test program itself: a class object is then asked for and placed into apartments as any other.
void PlayedAdo::register_it() const {
  for (const Played kind : kCreated) {
    write(name_key(kind) + L"\\CLSID", nullptr, spelled(class_id(kind)));
    write(class_key(kind) + L"\\InprocServer32", nullptr, program_path());
    write(class_key(kind) + L"\\InprocServer32", L"ThreadingModel", threading_model_);
  }
}

void PlayedAdo::unregister(Played kind) const {
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, name_key(kind).c_str());
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, class_key(kind).c_str());
}

void PlayedAdo::unregister_it() const {
  for (const Played kind : kCreated) unregister(kind);
}

std::wstring PlayedAdo::name_key(Played kind) const {
  const std::string name = described(kind).name;
  return L"Software\\Classes\\ADODB." + std::wstring(name.begin(), name.end());
}

std::wstring PlayedAdo::class_key(Played kind) const { return L"Software\\Classes\\CLSID\\" + spelled(class_id(kind)); }

CLSID PlayedAdo::class_id(Played kind) const {
  return {number_, static_cast<unsigned short>(kind), 0x47d3, {0xb6, 0x0f, 0x9c, 0x21, 0x70, 0x5e, 0xd8, 0x4a}};
}

HRESULT PlayedAdo::hear(const std::string& call, bool kept) {
  if (kept && keeps_calls) {
    const std::lock_guard held(lock_);
    calls_.push_back(call);
  }
  return reaction ? reaction(call) : S_OK;
}

int PlayedAdo::number_of_next(Played kind) {
  const std::lock_guard held(lock_);
  return ++made_[kind];
}

void PlayedAdo::count_names(Played kind) {
  const std::lock_guard held(lock_);
  ++names_asked_[kind];
}

std::vector<std::string> PlayedAdo::calls() const {
  const std::lock_guard held(lock_);
  return calls_;
}

void PlayedAdo::forget_calls() {
  const std::lock_guard held(lock_);
  calls_.clear();
  made_.clear();
}

std::size_t PlayedAdo::classes_asked(Played kind) const {
  const std::lock_guard held(lock_);
  const auto found = classes_asked_.find(kind);
  return found != classes_asked_.end() ? found->second : 0;
}

std::size_t PlayedAdo::names_asked(Played kind) const {
  const std::lock_guard held(lock_);
  const auto found = names_asked_.find(kind);
  return found != names_asked_.end() ? found->second : 0;
}

long PlayedAdo::living() const { return living_; }

}  // namespace qvr::tests

extern "C" __declspec(dllexport) HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID id, REFIID wanted, void** found) {
  return qvr::tests::PlayedClasses::find(id, wanted, found);
}
