// IDispatch of a dual interface.
#pragma once

#include "com/answer.h"
#include "com/arguments.h"
#include "com/type_library.h"

namespace qvr::com {

template <class I>
class Dual : public I {
 public:
  using DualInterface = I;

  STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override {
    if (count == nullptr) return E_POINTER;
    *count = 1;
    return S_OK;
  }

  STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** info) noexcept override {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    if (index != 0) return DISP_E_BADINDEX;
    return guarded(__uuidof(I), E_OUTOFMEMORY, [&] {
      *info = own_type_info(__uuidof(I)).Detach();
      return S_OK;
    });
  }

  STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID, DISPID* ids) noexcept override {
    if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    return guarded(__uuidof(I), E_OUTOFMEMORY, [&] { return ids_of_names(signatures(), names, count, ids); });
  }

  STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                      EXCEPINFO* exception, UINT* wrong_argument) noexcept override {
    if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    return guarded(__uuidof(I), E_OUTOFMEMORY, [&] {
      return invoke(signatures(), static_cast<I*>(this),
                    {id, locale, flags, arguments, result, exception, wrong_argument});
    });
  }

 private:
  // Read on the first late-bound call in the process, then immutable.
  static const Signatures& signatures() {
    static const Signatures instance(__uuidof(I));
    return instance;
  }
};

}  // namespace qvr::com
