#include "late.h"

#include <algorithm>
#include <cstdio>

namespace registration_free {

void require(HRESULT result, const std::wstring& what) {
  if (SUCCEEDED(result)) return;
  char number[16];
  std::snprintf(number, sizeof number, "0x%08lX", static_cast<unsigned long>(result));
  // All the names here are ASCII.
  std::string name;
  for (const wchar_t unit : what) name += static_cast<char>(unit);
  throw std::runtime_error(name + ": " + number);
}

Value::Value(const wchar_t* text) {
  variant_.vt = VT_BSTR;
  variant_.bstrVal = SysAllocString(text);
}

Value::Value(long number) {
  variant_.vt = VT_I4;
  variant_.lVal = number;
}

Value::Value(bool truth) {
  variant_.vt = VT_BOOL;
  variant_.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
}

Value Value::list(std::initializer_list<const wchar_t*> texts) {
  Value list;
  list.variant_.parray = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(texts.size()));
  require(list.variant_.parray != nullptr ? S_OK : E_OUTOFMEMORY, L"SafeArrayCreateVector");
  list.variant_.vt = VT_ARRAY | VT_VARIANT;
  LONG at = 0;
  for (const wchar_t* text : texts) {
    Value element(text);
    require(SafeArrayPutElement(list.variant_.parray, &at, element.out()), L"SafeArrayPutElement");
    ++at;
  }
  return list;
}

Value::Value(const Value& other) {
  VariantInit(&variant_);
  // The system's headers of this compiler ask for more than it needs.
  require(VariantCopy(&variant_, const_cast<VARIANT*>(&other.variant_)), L"VariantCopy");
}

std::wstring Value::text() const {
  Value as_text;
  require(VariantChangeTypeEx(as_text.out(), const_cast<VARIANT*>(&variant_), 0x409, VARIANT_ALPHABOOL, VT_BSTR),
          L"VariantChangeType");
  return std::wstring(as_text.variant_.bstrVal, SysStringLen(as_text.variant_.bstrVal));
}

BSTR* Value::out_text() {
  variant_.vt = VT_BSTR;
  variant_.bstrVal = nullptr;
  return &variant_.bstrVal;
}

LateObject::LateObject(const wchar_t* program_id) {
  CLSID id;
  require(CLSIDFromProgID(program_id, &id), std::wstring(L"CLSIDFromProgID ") + program_id);
  require(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                           reinterpret_cast<void**>(object_.GetAddressOf())),
          std::wstring(L"CoCreateInstance ") + program_id);
}

Value LateObject::call(const wchar_t* member, std::vector<Value> arguments) const {
  auto* name = const_cast<wchar_t*>(member);
  DISPID id = DISPID_UNKNOWN;
  require(object_->GetIDsOfNames(IID_NULL, &name, 1, 0x409, &id), member);
  std::vector<VARIANT> passed;  // the last argument first; they stay the property of `arguments`
  for (const Value& argument : arguments) passed.push_back(argument.variant());
  std::reverse(passed.begin(), passed.end());
  DISPPARAMS parameters{passed.data(), nullptr, static_cast<UINT>(passed.size()), 0};
  Value result;
  require(object_->Invoke(id, IID_NULL, 0x409, DISPATCH_METHOD | DISPATCH_PROPERTYGET, &parameters, result.out(),
                          nullptr, nullptr),
          member);
  return result;
}

}  // namespace registration_free
