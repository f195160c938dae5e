#include "automation.h"

#include <cwchar>
#include <utility>

#include "text.h"

namespace gestion {
namespace {

std::wstring description_of(EXCEPINFO& exception) {
  if (exception.pfnDeferredFillIn != nullptr) exception.pfnDeferredFillIn(&exception);
  const std::wstring text = exception.bstrDescription != nullptr ? exception.bstrDescription : L"";
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrDescription);
  SysFreeString(exception.bstrHelpFile);
  return text;
}

// The system's functions only read what they copy or convert, without saying so.
VARIANT* read_only(const VARIANT& variant) { return const_cast<VARIANT*>(&variant); }

}  // namespace

Failure::Failure(const std::wstring& text) : std::runtime_error(to_utf8(text)) {}

std::wstring hexadecimal(HRESULT result) {
  wchar_t digits[16];
  std::swprintf(digits, std::size(digits), L"0x%08lX", static_cast<unsigned long>(result));
  return digits;
}

void require(HRESULT result, const std::wstring& what) {
  if (FAILED(result)) throw Failure(what + L" failed with " + hexadecimal(result));
}

void expect(bool as_expected, const std::wstring& otherwise) {
  if (!as_expected) throw Failure(otherwise);
}

Value::Value(const wchar_t* text) : Value(std::wstring(text)) {}

Value::Value(const std::wstring& text) : Value() {
  variant_.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  expect(variant_.bstrVal != nullptr, L"There is no memory for a text");
  variant_.vt = VT_BSTR;
}

Value::Value(bool truth) noexcept : Value() {
  variant_.vt = VT_BOOL;
  variant_.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
}

Value::Value(long number) noexcept : Value() {
  variant_.vt = VT_I4;
  variant_.lVal = number;
}

Value::Value(const Object& object) noexcept : Value() {
  variant_.vt = VT_DISPATCH;
  variant_.pdispVal = object.dispatch();
  if (variant_.pdispVal != nullptr) variant_.pdispVal->AddRef();
}

Value::Value(std::initializer_list<const wchar_t*> texts) : Value() {
  variant_.parray = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(texts.size()));
  expect(variant_.parray != nullptr, L"There is no memory for a list");
  variant_.vt = VT_ARRAY | VT_VARIANT;
  LONG index = 0;
  for (const wchar_t* text : texts) {
    Value item(text);
    require(SafeArrayPutElement(variant_.parray, &index, item.out()), L"Filling a list");
    ++index;
  }
}

Value::Value(const Value& other) noexcept : Value() { VariantCopy(&variant_, read_only(other.variant_)); }

Value::Value(Value&& other) noexcept : Value() { std::swap(variant_, other.variant_); }

Value& Value::operator=(Value other) noexcept {
  std::swap(variant_, other.variant_);
  return *this;
}

Value Value::copy_of(const VARIANT& variant) {
  Value copy;
  require(VariantCopyInd(copy.out(), read_only(variant)), L"Copying a value");
  return copy;
}

Value Value::as(VARTYPE type) const {
  Value converted;
  require(VariantChangeTypeEx(converted.out(), read_only(variant_), LOCALE_INVARIANT, 0, type), L"Converting a value");
  return converted;
}

std::wstring Value::text() const {
  const Value converted = as(VT_BSTR);
  const BSTR string = converted.variant_.bstrVal;
  return std::wstring(string != nullptr ? string : L"", SysStringLen(string));
}

long Value::number() const { return as(VT_I4).variant_.lVal; }

bool Value::truth() const { return as(VT_BOOL).variant_.boolVal != VARIANT_FALSE; }

Object Value::object() const {
  const Value converted = as(VT_DISPATCH);
  expect(converted.variant_.pdispVal != nullptr, L"An object was expected and there is none");
  return Object(ComPtr<IDispatch>(converted.variant_.pdispVal));
}

Object Object::create(const std::wstring& class_name) {
  CLSID id;
  require(CLSIDFromProgID(class_name.c_str(), &id), L"Looking up class " + class_name);
  ComPtr<IDispatch> dispatch;
  require(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                           reinterpret_cast<void**>(dispatch.ReleaseAndGetAddressOf())),
          L"Creating an object of class " + class_name);
  return Object(std::move(dispatch));
}

DISPID Object::id_of(const wchar_t* member) const {
  std::wstring name(member);
  LPOLESTR names[] = {name.data()};
  DISPID id = 0;
  require(dispatch_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id), L"Looking up member " + name);
  return id;
}

Value Object::invoke(const wchar_t* member, WORD flags, DISPPARAMS& parameters) const {
  Value answer;
  EXCEPINFO exception{};
  const HRESULT result = dispatch_->Invoke(id_of(member), IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                                           answer.out(), &exception, nullptr);
  if (result == DISP_E_EXCEPTION) throw Failure(std::wstring(member) + L": " + description_of(exception));
  require(result, member);
  return answer;
}

Value Object::call(const wchar_t* member, std::vector<Value> arguments) const {
  // The arguments go last first; the variants stay the property of the values.
  std::vector<VARIANT> reversed;
  for (auto each = arguments.rbegin(); each != arguments.rend(); ++each) reversed.push_back(each->variant());
  DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
  return invoke(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, parameters);
}

void Object::put(const wchar_t* member, const Value& value) const {
  VARIANT given = value.variant();
  DISPID name = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{&given, &name, 1, 1};
  invoke(member, DISPATCH_PROPERTYPUT, parameters);
}

}  // namespace gestion
