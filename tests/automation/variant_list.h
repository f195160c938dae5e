// Variants as a test writes them: one constructor for each kind that a host may send.
#pragma once

#include <windows.h>

#include <ocidl.h>
#include <oleauto.h>
#include <olectl.h>

#include <string>
#include <vector>

namespace qvr::tests {

class Var {
 public:
  Var() { VariantInit(&v_); }
  Var(const wchar_t* text) : Var() { v_.vt = VT_BSTR, v_.bstrVal = SysAllocString(text); }
  Var(const std::wstring& text) : Var() {
    v_.vt = VT_BSTR, v_.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  }
  Var(int number) : Var() { v_.vt = VT_I4, v_.lVal = number; }
  Var(short number) : Var() { v_.vt = VT_I2, v_.iVal = number; }
  Var(double number) : Var() { v_.vt = VT_R8, v_.dblVal = number; }
  Var(bool truth) : Var() { v_.vt = VT_BOOL, v_.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE; }
  Var(IDispatch* object) : Var() {
    v_.vt = VT_DISPATCH, v_.pdispVal = object;
    if (object != nullptr) object->AddRef();
  }
  Var(const Var& other) : Var() { VariantCopy(&v_, const_cast<VARIANT*>(&other.v_)); }
  Var& operator=(const Var& other) {
    VariantCopy(&v_, const_cast<VARIANT*>(&other.v_));
    return *this;
  }
  ~Var() { VariantClear(&v_); }

  static Var nothing() { return Var(static_cast<IDispatch*>(nullptr)); }
  static Var null() { return of_type(VT_NULL); }
  static Var error(SCODE code) {
    Var var = of_type(VT_ERROR);
    var.v_.scode = code;
    return var;
  }
  static Var missing() { return error(DISP_E_PARAMNOTFOUND); }
  static Var date(double days) {
    Var var = of_type(VT_DATE);
    var.v_.date = days;
    return var;
  }
  // What a script passes for a variable: the variable itself, by reference.
  static Var by_reference(Var& variable) {
    Var var = of_type(VT_BYREF | VT_VARIANT);
    var.v_.pvarVal = &variable.v_;
    return var;
  }
  static Var by_reference(BSTR& variable) { return pointing(VT_BSTR, &variable); }
  static Var by_reference(long& variable) { return pointing(VT_I4, &variable); }
  static Var by_reference(short& variable) { return pointing(VT_I2, &variable); }
  // What a typed variable is passed as: the place of its content, by reference.
  static Var by_content(Var& variable) {
    VARIANT& v = variable.v_;
    return pointing(v.vt, v.vt == VT_DECIMAL ? static_cast<void*>(&v.decVal) : &v.llVal);
  }
  // This value as one of another type, in the notation of the United States.
  Var as(VARTYPE type) const {
    constexpr LCID kUnitedStates = 0x409;
    Var converted;
    VariantChangeTypeEx(&converted.v_, const_cast<VARIANT*>(&v_), kUnitedStates, VARIANT_ALPHABOOL, type);
    return converted;
  }

  VARIANT& raw() { return v_; }
  const VARIANT& raw() const { return v_; }
  VARTYPE type() const { return v_.vt; }
  std::wstring text() const {
    return v_.vt == VT_BSTR ? std::wstring(v_.bstrVal, SysStringLen(v_.bstrVal)) : std::wstring(L"<not a text>");
  }

 private:
  static Var of_type(int type) {
    Var var;
    var.v_.vt = static_cast<VARTYPE>(type);
    return var;
  }
  static Var pointing(VARTYPE type, void* variable) {
    Var var = of_type(VT_BYREF | type);
    var.v_.byref = variable;
    return var;
  }

  VARIANT v_;
};

// "BSTR abc", "I4 -3": one text for a value and its type, so that whole results can be compared.
std::string describe(const VARIANT& value);

std::string narrow(const std::wstring& text);

}  // namespace qvr::tests
