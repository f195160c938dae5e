// What every object of the library is besides its members: counted, with one identity, a visible list of interfaces
// and its class information.
#pragma once

#include "frame/automation/dual.h"
#include "frame/automation/module.h"

namespace qvr::automation {

template <class I>
struct InterfaceId {
  static const IID& value() { return __uuidof(I); }
};
template <class I>
struct InterfaceId<Dual<I>> : InterfaceId<I> {};

// `Coclass` names the class in the type library; `Default` is its default interface, which is also its identity and
// its IDispatch; `Others` are the further interfaces that QueryInterface answers.
template <class Coclass, class Default, class... Others>
class Object : public Default, public Others..., public ISupportErrorInfo, public IProvideClassInfo2 {
 public:
  Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  virtual ~Object() = default;

  STDMETHODIMP QueryInterface(REFIID id, void** found) noexcept override {
    if (found == nullptr) return E_POINTER;
    *found = find(id);
    if (*found == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }

  STDMETHODIMP_(ULONG) AddRef() noexcept override { return static_cast<ULONG>(InterlockedIncrement(&count_)); }

  STDMETHODIMP_(ULONG) Release() noexcept override {
    const LONG left = InterlockedDecrement(&count_);
    if (left == 0) {
      count_ = 1;  // a reference taken and given back while the object goes must not end it a second time
      delete this;
    }
    return static_cast<ULONG>(left);
  }

  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID id) noexcept override {
    return id == InterfaceId<Default>::value() || ((id == InterfaceId<Others>::value()) || ...) ? S_OK : S_FALSE;
  }

  STDMETHODIMP GetClassInfo(ITypeInfo** info) noexcept override {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    return guarded(E_OUTOFMEMORY, [&] {
      *info = own_type_info(__uuidof(Coclass)).Detach();
      return S_OK;
    });
  }

  STDMETHODIMP GetGUID(DWORD kind, GUID* id) noexcept override {
    if (id == nullptr) return E_POINTER;
    *id = events();
    return kind == GUIDKIND_DEFAULT_SOURCE_DISP_IID && *id != GUID_NULL ? S_OK : E_INVALIDARG;
  }

 protected:
  // The default event interface; none for most classes.
  virtual const GUID& events() const noexcept { return GUID_NULL; }

 private:
  void* find(REFIID id) noexcept {
    if (id == IID_IUnknown || id == IID_IDispatch || id == InterfaceId<Default>::value()) {
      return static_cast<typename Default::Interface*>(this);
    }
    if (id == IID_ISupportErrorInfo) return static_cast<ISupportErrorInfo*>(this);
    if (id == IID_IProvideClassInfo || id == IID_IProvideClassInfo2) return static_cast<IProvideClassInfo2*>(this);
    void* found = nullptr;
    ((id == InterfaceId<Others>::value() ? found = static_cast<Others*>(this) : nullptr), ...);
    return found;
  }

  volatile LONG count_ = 1;
  ModuleLock lock_;
};

}  // namespace qvr::automation
