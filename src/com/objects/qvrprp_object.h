#pragma once

#include "QVRlib21.h"
#include "com/object.h"
#include "properties/qvrprp.h"

namespace qvr::com {

class QVRprpObject final : public Object<::QVRprp, Dual<_QVRprp>> {
 public:
  STDMETHODIMP Borra() noexcept override;
  STDMETHODIMP CreaPropiedad(BSTR* Tipo, BSTR* Nombre, VARIANT* Valor) noexcept override;
  STDMETHODIMP get_Item(VARIANT* NombreOIndice, VARIANT* Resultado) noexcept override;
  STDMETHODIMP put_Item(VARIANT* NombreOIndice, VARIANT Valor) noexcept override;
  STDMETHODIMP get_NumPropiedades(LONG* Resultado) noexcept override;
  STDMETHODIMP get_NombrePropiedad(LONG* Indice, BSTR* Resultado) noexcept override;

  // Adds DISPID_NEWENUM (For Each) and DISPATCH_PROPERTYPUTREF (Set), which have no slots in the interface.
  STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                      EXCEPINFO* exception, UINT* wrong_argument) noexcept override;

 private:
  HRESULT enumerate(VARIANT* result) noexcept;

  qvr::QVRprp core_;
};

}  // namespace qvr::com
