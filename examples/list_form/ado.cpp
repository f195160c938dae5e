#include "ado.h"

#include <algorithm>

namespace list_form {
namespace {

using qvrlib21::Failure;
using qvrlib21::detail::Reference;

Reference<IDispatch> created(const wchar_t* class_name) {
  CLSID id;
  qvrlib21::detail::check(CLSIDFromProgID(class_name, &id));
  void* made = nullptr;
  qvrlib21::detail::check(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, &made));
  return Reference<IDispatch>(static_cast<IDispatch*>(made));
}

Reference<IDispatch> object_in(const Value& value) {
  const VARIANT& held = value.get();
  if (held.vt != VT_DISPATCH || held.pdispVal == nullptr) throw Failure(DISP_E_TYPEMISMATCH);
  held.pdispVal->AddRef();
  return Reference<IDispatch>(held.pdispVal);
}

// What an object raised, as the failure that it is.
Failure raised(EXCEPINFO& told) {
  if (told.pfnDeferredFillIn != nullptr) told.pfnDeferredFillIn(&told);
  const std::wstring description(told.bstrDescription != nullptr ? told.bstrDescription : L"");
  SysFreeString(told.bstrSource);
  SysFreeString(told.bstrDescription);
  SysFreeString(told.bstrHelpFile);
  return Failure(told.scode != 0 ? told.scode : DISP_E_EXCEPTION, description);
}

}  // namespace

LateObject::LateObject(const wchar_t* class_name) : object_(created(class_name)) {}

LateObject::LateObject(const Value& object) : object_(object_in(object)) {}

Value LateObject::call(const wchar_t* member, const std::vector<Value>& arguments) const {
  auto* name = const_cast<wchar_t*>(member);
  DISPID id = DISPID_UNKNOWN;
  qvrlib21::detail::check(object_->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id));
  std::vector<VARIANT> passed;  // the last one first; they stay the property of `arguments`
  for (const Value& argument : arguments) passed.push_back(argument.get());
  std::reverse(passed.begin(), passed.end());
  DISPPARAMS parameters{passed.data(), nullptr, static_cast<UINT>(passed.size()), 0};
  Value result;
  EXCEPINFO told{};
  const HRESULT called = object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                                         &parameters, result.address(), &told, nullptr);
  if (called == DISP_E_EXCEPTION) throw raised(told);
  qvrlib21::detail::check(called);
  return result;
}

LateObject LateObject::object(const wchar_t* member, const std::vector<Value>& arguments) const {
  return LateObject(call(member, arguments));
}

Connection::Connection(const std::wstring& connection_string) { connection_.call(L"Open", {connection_string}); }

Connection::~Connection() {
  try {
    connection_.call(L"Close");
  } catch (const Failure&) {
    // It closes with its last reference as well.
  }
}

void Connection::execute(const std::wstring& command) const { connection_.call(L"Execute", {command}); }

std::vector<Row> Connection::rows(const std::wstring& query, std::size_t columns) const {
  const LateObject found = connection_.object(L"Execute", {query});
  const LateObject fields = found.object(L"Fields");
  std::vector<Row> rows;
  for (; !found.call(L"EOF").truth(); found.call(L"MoveNext")) {
    Row row;
    for (std::size_t i = 0; i < columns; ++i) {
      row.push_back(fields.object(L"Item", {static_cast<long>(i)}).call(L"Value"));
    }
    rows.push_back(std::move(row));
  }
  found.call(L"Close");
  return rows;
}

}  // namespace list_form
