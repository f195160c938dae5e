// IUnknown of every COM object of the library: reference count, identity, list of interfaces.
#pragma once

#include "com/module.h"

namespace qvr::com {

// The IIDs that an interface of the list answers; several if it derives from another interface.
template <class I>
struct AskedAs {
  static bool any(REFIID id) { return id == __uuidof(I); }
};
template <>
struct AskedAs<IProvideClassInfo2> {
  static bool any(REFIID id) { return id == __uuidof(IProvideClassInfo2) || id == __uuidof(IProvideClassInfo); }
};

// The first interface is the identity (IUnknown). If several answer the same IID, the first one does.
template <class First, class... Others>
class Counted : public First, public Others... {
 public:
  Counted() = default;
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;

  // QueryInterface that consumes the creator's reference; without this interface the object is destroyed.
  HRESULT hand_over(REFIID id, void** found) noexcept {
    *found = as(id);
    if (*found != nullptr) return S_OK;
    Release();
    return E_NOINTERFACE;
  }

  STDMETHODIMP QueryInterface(REFIID id, void** found) noexcept override {
    if (found == nullptr) return E_POINTER;
    *found = as(id);
    if (*found == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }

  STDMETHODIMP_(ULONG) AddRef() noexcept override { return static_cast<ULONG>(InterlockedIncrement(&count_)); }

  STDMETHODIMP_(ULONG) Release() noexcept override {
    const LONG left = InterlockedDecrement(&count_);
    if (left == 0) {
      count_ = 1;  // AddRef and Release during destruction (re-entrance) must not destroy it again
      delete this;
    }
    return static_cast<ULONG>(left);
  }

 protected:
  virtual ~Counted() = default;

 private:
  // Without AddRef.
  void* as(REFIID id) noexcept {
    void* found = id == IID_IUnknown || AskedAs<First>::any(id) ? static_cast<First*>(this) : nullptr;
    (answer_as<Others>(id, found), ...);
    return found;
  }

  template <class I>
  void answer_as(REFIID id, void*& found) noexcept {
    if (found == nullptr && AskedAs<I>::any(id)) found = static_cast<I*>(this);
  }

  volatile LONG count_ = 1;
  ModuleLock lock_;
};

}  // namespace qvr::com
