#include "com/objects/qvrprp_object.h"

#include "com/enumerator.h"

namespace qvr::com {
namespace {

struct ValueTraits {
  using Interface = IEnumVARIANT;
  using Item = VARIANT;
  using Stored = Value;
  static VARIANT give(const Value& value) {
    OwnedVariant variant;
    or_default(qvr::QVRprp::kClass, false, [&] { return put_value(*variant.get(), value), true; });
    return variant.release();
  }
};

Value kept_value_of(const VARIANT* argument) {
  return argument != nullptr ? travelling_value_from(*argument) : Value(Missing{});
}

}  // namespace

HRESULT QVRprpObject::Borra() noexcept {
  return perform_while_kept([&] { core_.Borra(); });
}
HRESULT QVRprpObject::CreaPropiedad(BSTR* Tipo, BSTR* Nombre, VARIANT* Valor) noexcept {
  return perform_while_kept([&] { core_.CreaPropiedad(text_of(Tipo), text_of(Nombre), kept_value_of(Valor)); });
}
HRESULT QVRprpObject::get_Item(VARIANT* NombreOIndice, VARIANT* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.Item(value_of(NombreOIndice)); });
}
HRESULT QVRprpObject::put_Item(VARIANT* NombreOIndice, VARIANT Valor) noexcept {
  return perform_while_kept([&] { core_.Item(value_of(NombreOIndice), kept_value_of(&Valor)); });
}
HRESULT QVRprpObject::get_NumPropiedades(LONG* Resultado) noexcept {
  return answer(Resultado, [&] { return core_.NumPropiedades(); });
}
HRESULT QVRprpObject::get_NombrePropiedad(LONG* Indice, BSTR* Resultado) noexcept {
  return answer(Resultado, [&] { return core_.NombrePropiedad(number_of(Indice)); });
}

HRESULT QVRprpObject::Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* arguments,
                             VARIANT* result, EXCEPINFO* exception, UINT* wrong_argument) noexcept {
  // Set puts an object as any other value is put; the interface has one accessor for both.
  if (id == DISPID_VALUE && (flags & DISPATCH_PROPERTYPUTREF)) flags |= DISPATCH_PROPERTYPUT;
  const bool reads = (flags & (DISPATCH_METHOD | DISPATCH_PROPERTYGET)) != 0;
  if (id != DISPID_NEWENUM || !reads) {
    return Dual<_QVRprp>::Invoke(id, reserved, locale, flags, arguments, result, exception, wrong_argument);
  }
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (arguments == nullptr) return E_INVALIDARG;
  if (arguments->cArgs > 0 || arguments->cNamedArgs > 0) return DISP_E_BADPARAMCOUNT;
  return enumerate(result);
}

HRESULT QVRprpObject::enumerate(VARIANT* result) noexcept {
  if (result == nullptr) return S_OK;
  VariantInit(result);
  return guarded(__uuidof(::QVRprp), E_OUTOFMEMORY, [&] {
    auto values = std::make_shared<std::vector<Value>>();
    for (std::int32_t position = 0; position < core_.NumPropiedades(); ++position)
      values->push_back(core_.Item(position));
    result->punkVal = new Enumerator<ValueTraits>(std::move(values));
    result->vt = VT_UNKNOWN;
    return S_OK;
  });
}

}  // namespace qvr::com
