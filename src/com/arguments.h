// IDispatch::Invoke. ITypeInfo::Invoke is not used because it rejects script variables (VT_BYREF | VT_VARIANT) for
// typed by-reference parameters and takes the default value of an omitted one for an address.
#pragma once

#include "com/signature.h"

namespace qvr::com {

struct LateCall {
  DISPID id;
  LCID locale;  // for numbers and dates passed as text
  WORD flags;
  DISPPARAMS* arguments;
  VARIANT* result;       // may be null
  EXCEPINFO* exception;  // may be null
  UINT* wrong_argument;  // may be null; index into rgvarg of the invalid argument
};

// Calls a member of `object`, an interface of the type that the signatures describe. Arguments may have any type that
// converts, by reference to any depth, named or omitted; changed by-reference arguments are written back.
// DISP_E_TYPEMISMATCH or DISP_E_OVERFLOW if an argument does not convert, DISP_E_PARAMNOTOPTIONAL,
// DISP_E_BADPARAMCOUNT, DISP_E_PARAMNOTFOUND, DISP_E_MEMBERNOTFOUND as documented for IDispatch::Invoke.
HRESULT invoke(const Signatures& signatures, void* object, const LateCall& call);

HRESULT ids_of_names(const Signatures& signatures, LPOLESTR* names, UINT count, DISPID* ids) noexcept;

}  // namespace qvr::com
