#include "frame/automation/class_object.h"

#include <algorithm>
#include <new>

#include "frame/automation/answer.h"
#include "frame/automation/module.h"

namespace qvr::automation {
namespace {

class ClassObject final : public IClassFactory {
 public:
  explicit ClassObject(const ClassRow& row) : row_(row) {}

  STDMETHODIMP QueryInterface(REFIID id, void** found) noexcept override {
    if (found == nullptr) return E_POINTER;
    *found = id == IID_IUnknown || id == IID_IClassFactory ? this : nullptr;
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

  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID id, void** found) noexcept override {
    if (found == nullptr) return E_POINTER;
    *found = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    return guarded(E_OUTOFMEMORY, [&] {
      ComPtr<IUnknown> object;
      object.Attach(row_.create());
      return object->QueryInterface(id, found);
    });
  }

  STDMETHODIMP LockServer(BOOL lock) noexcept override {
    lock ? ModuleLock::hold() : ModuleLock::let_go();
    return S_OK;
  }

 private:
  ~ClassObject() = default;

  const ClassRow& row_;
  volatile LONG count_ = 1;
  ModuleLock lock_;
};

}  // namespace

HRESULT class_object(REFCLSID id, REFIID interface_id, void** found) noexcept {
  if (found == nullptr) return E_POINTER;
  *found = nullptr;
  const auto rows = class_table();
  const auto row = std::ranges::find_if(rows, [&](const ClassRow& candidate) { return candidate.id == id; });
  if (row == rows.end()) return CLASS_E_CLASSNOTAVAILABLE;
  ComPtr<ClassObject> object;
  object.Attach(new (std::nothrow) ClassObject(*row));
  return object ? object->QueryInterface(interface_id, found) : E_OUTOFMEMORY;
}

}  // namespace qvr::automation
