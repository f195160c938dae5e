// IProvideClassInfo2 and ISupportErrorInfo of every object.
#pragma once

#include "com/counted.h"
#include "com/dual.h"

namespace qvr::com {

template <class D>
  requires requires { typename D::DualInterface; }
struct AskedAs<D> {
  static bool any(REFIID id) { return id == __uuidof(typename D::DualInterface) || id == IID_IDispatch; }
};

// `Coclass` is the class in the type library; `Default` its default interface, which is also its IUnknown and its
// IDispatch; `Others` are further interfaces that QueryInterface answers.
template <class Coclass, class Default, class... Others>
class Object : public Counted<Default, Others..., ISupportErrorInfo, IProvideClassInfo2> {
 public:
  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID id) noexcept override {
    return AskedAs<Default>::any(id) || (AskedAs<Others>::any(id) || ...) ? S_OK : S_FALSE;
  }

  STDMETHODIMP GetClassInfo(ITypeInfo** info) noexcept override {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    return guarded(__uuidof(Coclass), E_OUTOFMEMORY, [&] {
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
  template <class Out, class Body>
  HRESULT answer(Out* out, Body&& body, SourcePlace place = SourcePlace::here()) noexcept {
    return com::answer(__uuidof(Coclass), out, std::forward<Body>(body), place);
  }
  // For members that run a message loop or call the host, which may release its last reference to the object meanwhile.
  template <class Out, class Body>
  HRESULT answer_while_kept(Out* out, Body&& body, SourcePlace place = SourcePlace::here()) noexcept {
    const ComPtr<Default> kept(static_cast<Default*>(this));
    return answer(out, std::forward<Body>(body), place);
  }
  // The same for members without a result.
  template <class Body>
  HRESULT perform_while_kept(Body&& body, SourcePlace place = SourcePlace::here()) noexcept {
    const ComPtr<Default> kept(static_cast<Default*>(this));
    return com::perform(__uuidof(Coclass), std::forward<Body>(body), place);
  }

  // The default event interface; none for most classes.
  virtual const GUID& events() const noexcept { return GUID_NULL; }
};

}  // namespace qvr::com
