#include "com/class_object.h"

#include <algorithm>
#include <new>

#include "com/answer.h"
#include "com/counted.h"

namespace qvr::com {
namespace {

class ClassObject final : public Counted<IClassFactory> {
 public:
  explicit ClassObject(const ClassRow& row) : row_(row) {}

  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID id, void** found) noexcept override {
    if (found == nullptr) return E_POINTER;
    *found = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    return guarded(row_.id, E_OUTOFMEMORY, [&] { return row_.create(id, found); });
  }

  STDMETHODIMP LockServer(BOOL lock) noexcept override {
    lock ? ModuleLock::hold() : ModuleLock::let_go();
    return S_OK;
  }

 private:
  const ClassRow& row_;
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

}  // namespace qvr::com
