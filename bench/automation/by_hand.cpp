#include "automation/by_hand.h"

namespace qvr::bench {
namespace {

using namespace qvr::tests;

void invoke(const LateObject& object, DISPID member, WORD kind, DISPPARAMS parameters, VARIANT* result) {
  const HRESULT called = object.get()->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, result, nullptr,
                                              nullptr);
  require(SUCCEEDED(called), "a call by hand");
}

void tell(std::span<IDispatch* const> sinks, Bstr& text) {
  VARIANT argument;
  argument.vt = VT_BYREF | VT_BSTR;
  argument.pbstrVal = &text;
  DISPPARAMS parameters{&argument, nullptr, 1, 0};
  for (IDispatch* const sink : sinks) {
    sink->Invoke(kProgreso, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
  }
}

}  // namespace

DISPID id_of(const LateObject& object, const wchar_t* member) {
  DISPID id = DISPID_UNKNOWN;
  LPOLESTR name = const_cast<LPOLESTR>(member);
  require(SUCCEEDED(object.get()->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id)), narrow(member));
  return id;
}

void put(const LateObject& object, DISPID member, VARIANT value, WORD kind) {
  DISPID named = DISPID_PROPERTYPUT;
  invoke(object, member, kind, {&value, &named, 1, 1}, nullptr);
}

void call(const LateObject& object, DISPID member, std::span<VARIANT> arguments, VARIANT* result) {
  invoke(object, member, DISPATCH_METHOD, {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0}, result);
}

Var get(const LateObject& object, DISPID member, std::span<VARIANT> arguments) {
  Var value;
  invoke(object, member, DISPATCH_PROPERTYGET, {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0},
         &value.raw());
  return value;
}

LateObject object_in(const Var& value) { return LateObject(ComPtr<IDispatch>(value.raw().pdispVal)); }

std::wstring connection_string(const Database& database) {
  std::wstring text = database.connection_string();
  return text.insert(text.rfind(L'"'), L"SyncPragma=OFF;");
}

void look_for_messages() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
}

void run_by_hand(const std::wstring& connection_string, std::span<const Var> commands,
                 std::span<IDispatch* const> sinks) {
  const LateObject connection(L"ADODB.Connection");
  require(connection.call(L"Open", {connection_string}));
  require(connection.call(L"BeginTrans"));
  {
    const LateObject command(L"ADODB.Command");
    put(command, id_of(command, L"ActiveConnection"), Var(connection.get()).raw(), DISPATCH_PROPERTYPUTREF);
    const DISPID text = id_of(command, L"CommandText"), execute = id_of(command, L"Execute");
    const std::wstring total = L"/" + std::to_wstring(commands.size());
    for (std::size_t i = 0; i < commands.size(); ++i) {
      if (!sinks.empty()) {
        Bstr progress(L"Comandos ejecutados: " + std::to_wstring(i) + total);
        tell(sinks, progress);
      }
      put(command, text, commands[i].raw());
      call(command, execute);
      look_for_messages();
    }
  }
  require(connection.call(L"CommitTrans"));
  require(connection.call(L"Close"));
}

}  // namespace qvr::bench
