#include "support/ado/com/module.h"

#include <array>
#include <atomic>
#include <new>

#include "base/failure.h"
#include "support/ado/com/classes.h"
#include "support/ado/com/command.h"
#include "support/ado/com/recordset.h"
#include "support/ado/com/registration.h"
#include "support/ado/com/trace.h"

namespace qvr::tests::com {
namespace {

HINSTANCE instance = nullptr;
std::atomic<long> locks{0};

class Factory : public IClassFactory {
 public:
  explicit Factory(const Class& made) : made_(made) {}
  virtual ~Factory() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    if (object == nullptr) return E_POINTER;
    const bool known = id == IID_IUnknown || id == IID_IClassFactory;
    *object = known ? static_cast<IClassFactory*>(this) : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }

  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }

  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    try {
      trace(made_.creation);
      return made_.create()->QueryInterface(id, object);
    } catch (const RuntimeFailure& failure) {
      return failure.detail().number;
    } catch (...) {
      return E_OUTOFMEMORY;
    }
  }

  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
    locks += lock ? 1 : -1;
    return S_OK;
  }

 private:
  ModuleLock lock_;
  const Class& made_;
  std::atomic<ULONG> references_{0};
};

template <class T>
Ref<DispatchObject> create() {
  return Ref<DispatchObject>(make<T>().get());
}

const std::array kClasses = {
    Class{kConnectionClass, u"Connection", u"CreateConnection", create<Connection>},
    Class{kCommandClass, u"Command", u"CreateCommand", create<Command>},
    Class{kParameterClass, u"Parameter", u"CreateParameter", create<Parameter>},
    Class{kRecordsetClass, u"Recordset", u"CreateRecordset", create<Recordset>},
};

}  // namespace

std::span<const Class> classes() { return kClasses; }

HINSTANCE module_instance() { return instance; }

ModuleLock::ModuleLock() { ++locks; }

ModuleLock::~ModuleLock() { --locks; }

}  // namespace qvr::tests::com

namespace com = qvr::tests::com;

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) com::instance = module;
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID class_id, REFIID interface_id, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  for (const com::Class& each : com::classes()) {
    if (each.id != class_id) continue;
    auto* made = new (std::nothrow) com::Factory(each);
    if (made == nullptr) return E_OUTOFMEMORY;
    return com::Ref<com::Factory>(made)->QueryInterface(interface_id, object);
  }
  return CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow() { return com::locks == 0 ? S_OK : S_FALSE; }

STDAPI DllRegisterServer() { return com::register_module(); }

STDAPI DllUnregisterServer() { return com::unregister_module(); }
