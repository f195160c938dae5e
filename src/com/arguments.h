// Late-bound calls: what a host passes is turned into what the member takes. The system's own ITypeInfo::Invoke is not
// used because it refuses script variables for typed by-reference parameters and mistakes the default value of an
// omitted one for its address.
#pragma once

#include "com/signature.h"

namespace qvr::com {

struct LateCall {
  DISPID id;
  LCID locale;  // converts numbers and dates given as text
  WORD flags;
  DISPPARAMS* arguments;
  VARIANT* result;       // may be null
  EXCEPINFO* exception;  // may be null
  UINT* wrong_argument;  // may be null; index into rgvarg of the argument that was refused
};

// Calls the member of `object`, an interface of the type that the signatures describe. Arguments may be of any type
// that converts, by reference to any depth, named or left out; changed ones are written back where they came by
// reference. DISP_E_TYPEMISMATCH or DISP_E_OVERFLOW for what does not convert, DISP_E_PARAMNOTOPTIONAL,
// DISP_E_BADPARAMCOUNT, DISP_E_PARAMNOTFOUND, DISP_E_MEMBERNOTFOUND as documented for IDispatch::Invoke.
HRESULT invoke(const Signatures& signatures, void* object, const LateCall& call);

HRESULT ids_of_names(const Signatures& signatures, LPOLESTR* names, UINT count, DISPID* ids) noexcept;

}  // namespace qvr::com
