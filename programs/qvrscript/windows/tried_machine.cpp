// The library and other classes as a host on Windows uses them.
#include "qvrscript/doctor/try/tried_machine.h"

#include "QVRlib21.h"
#include "base/utf8.h"
#include "com/clients/com_error_report.h"
#include "com/clients/dispatch_ids.h"
#include "com/clients/late_class.h"
#include "com/late_failure.h"
#include "com/text_bstr.h"
#include "com/variant.h"
#include "platform/platform.h"
#include "platform/windows/message_boxes.h"
#include "platform/windows/wide_text.h"
#include "qvrscript/windows/box_answers.h"
#include "qvrscript/windows/event_sink.h"
#include "qvrscript/windows/registered.h"
#include "session/ov.h"

namespace qvr::script_tool {
namespace {

using com::ComPtr;
using com::OwnedBstr;
using com::OwnedVariant;
using qvr::windows::wide;

// EXCEPINFO that frees its strings.
struct Exception : EXCEPINFO {
  Exception() : EXCEPINFO{} {}
  ~Exception() {
    for (BSTR each : {bstrSource, bstrDescription, bstrHelpFile}) SysFreeString(each);
  }
  Exception(const Exception&) = delete;
  Exception& operator=(const Exception&) = delete;
};

ComPtr<IDispatch> dispatch_of(const Value& value) {
  const auto* reference = value.as<ObjectRef>();
  const auto* held = reference == nullptr ? nullptr : dynamic_cast<const com::DispatchObject*>(reference->get());
  if (held == nullptr) throw RuntimeFailure(failure_number::kObjectNotSet);
  ComPtr<IDispatch> dispatch;
  com::require(held->object.As(&dispatch));
  return dispatch;
}

Value value_of(IUnknown* object) { return ObjectRef(std::make_shared<com::DispatchObject>(object)); }

// The arguments in reverse order.
Value invoked(const Value& object, WORD flags, TextView member, std::vector<VARIANT>& reversed) {
  const ComPtr<IDispatch> dispatch = dispatch_of(object);
  const bool put = flags == DISPATCH_PROPERTYPUT;
  DISPID put_name = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{reversed.data(), put ? &put_name : nullptr, static_cast<UINT>(reversed.size()), put ? 1u : 0u};
  const DISPID id = com::dispatch_id(*dispatch.Get(), wide(member).c_str());
  OwnedVariant result;
  Exception exception;
  const HRESULT called = com::by_host([&] {
    return dispatch->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, put ? nullptr : result.get(),
                            &exception, nullptr);
  });
  if (called == DISP_E_EXCEPTION) {
    const std::int32_t number = exception.wCode != 0 ? exception.wCode : com::failure_number_of(exception.scode);
    throw RuntimeFailure(number, com::text_from(exception.bstrDescription), com::text_from(exception.bstrSource));
  }
  com::require(called);
  return com::value_from(*result);
}

// Owns what the arguments hold; the copies are for Invoke.
class Passed {
 public:
  explicit Passed(const std::vector<Value>& arguments) : owned_(arguments.size()) {
    for (std::size_t i = 0; i < arguments.size(); ++i)
      com::put_value(*owned_[arguments.size() - 1 - i].get(), arguments[i]);
  }
  std::vector<VARIANT> reversed() const {
    std::vector<VARIANT> copies;
    for (const OwnedVariant& each : owned_) copies.push_back(*each);
    return copies;
  }

 private:
  std::vector<OwnedVariant> owned_;
};

// What an interface's member answers through its slot.
template <class Interface, HRESULT (STDMETHODCALLTYPE Interface::*member)(BSTR*)>
Value text_answer(IUnknown& object) {
  OwnedBstr text;
  com::require((static_cast<Interface&>(object).*member)(text.out()));
  return text.text();
}

Value property_count(IUnknown& object) {
  long count = 0;
  com::require(static_cast<_QVRprp&>(object).get_NumPropiedades(&count));
  return static_cast<std::int32_t>(count);
}

Value administrator(IUnknown& object) {
  long engine = 2;  // SQL Server
  OwnedBstr text;
  com::require(static_cast<_QVRScr&>(object).UsuarioSegunMotor(&engine, text.out()));
  return text.text();
}

struct EarlyClass {
  TextView name;
  const CLSID& id;
  const IID& interface_id;
  Value (*ask)(IUnknown& object);
};

const EarlyClass kEarly[] = {
    {u"Ov", CLSID_Ov, __uuidof(_Ov), text_answer<_Ov, &_Ov::CadenaVersion>},
    {u"QVRcfp", CLSID_QVRcfp, __uuidof(_QVRcfp), text_answer<_QVRcfp, &_QVRcfp::get_Archivo>},
    {u"QVRScr", CLSID_QVRScr, __uuidof(_QVRScr), administrator},
    {u"QVRprp", CLSID_QVRprp, __uuidof(_QVRprp), property_count},
    {u"cSQL20", CLSID_cSQL20, __uuidof(_cSQL20), text_answer<_cSQL20, &_cSQL20::get_Name>},
    {u"uSQL20", CLSID_uSQL20, __uuidof(_uSQL20), text_answer<_uSQL20, &_uSQL20::get_Name>},
};

const EarlyClass& early_class(TextView name) {
  for (const EarlyClass& row : kEarly) {
    if (row.name == name) return row;
  }
  throw RuntimeFailure(failure_number::kCannotCreateObject);
}

Text locale_text(LCTYPE what) {
  wchar_t text[LOCALE_NAME_MAX_LENGTH] = L"";
  GetLocaleInfoW(LOCALE_USER_DEFAULT, what, text, static_cast<int>(std::size(text)));
  return qvr::windows::text_from(text);
}

class AutomationMachine final : public TriedMachine {
 public:
  AutomationMachine() : registered_(windows::provider(L"QVRlib21.Ov").registered) {}

  Text way() override {
    return registered_ ? u"as registered" : u"through the file beside this program, as none is registered";
  }

  Value created(TextView class_name) override {
    // The name is looked up as a host does; without a registration it has only the class's number.
    CLSID id = early_class(class_name).id;
    if (registered_) com::require(CLSIDFromProgID((L"QVRlib21." + wide(class_name)).c_str(), &id));
    return value_of(object_of(id, IID_IDispatch).Get());
  }

  Value early_answer(TextView class_name) override {
    const EarlyClass& row = early_class(class_name);
    return row.ask(*object_of(row.id, row.interface_id).Get());
  }

  Value created_elsewhere(TextView program_id) override {
    return value_of(com::LateClass(wide(program_id).c_str()).create().Get());
  }

  Value use(const Value& object, Access access, TextView member, std::vector<Value> arguments) override {
    constexpr WORD kFlags[] = {DISPATCH_METHOD, DISPATCH_PROPERTYGET, DISPATCH_PROPERTYPUT};
    const Passed passed(arguments);
    std::vector<VARIANT> reversed = passed.reversed();
    return invoked(object, kFlags[static_cast<std::size_t>(access)], member, reversed);
  }

  Value changed_by(const Value& object, TextView member, std::vector<Value> arguments, Array& last) override {
    const Passed passed(arguments);
    OwnedVariant array;
    com::put_value(*array.get(), Value(last));
    VARIANT by_reference{};
    by_reference.vt = VT_BYREF | VT_VARIANT;
    by_reference.pvarVal = array.get();
    std::vector<VARIANT> reversed = passed.reversed();
    reversed.insert(reversed.begin(), by_reference);
    Value answer = invoked(object, DISPATCH_METHOD, member, reversed);
    const Value changed = com::value_from(*array);
    if (const Array* items = changed.as<Array>()) last = *items;
    return answer;
  }

  std::shared_ptr<void> listen(const Value& runner, Heard heard) override {
    return windows::listening(*dispatch_of(runner).Get(), DIID___QVRScr, std::move(heard));
  }

  Boxes boxes() override {
    if (com::registered_class(com::ComErrorReport::kProgramId)) return Boxes::Elsewhere;
    if (!qvr::windows::has_visible_desktop()) return Boxes::TakenAsNo;
    return boxes_.hooked() ? Boxes::Answered : Boxes::Elsewhere;
  }
  void answer_questions(bool yes) override { boxes_.answer(yes); }

  Text locale_name() override { return locale_text(LOCALE_SNAME); }
  Text decimal_sign() override { return locale_text(LOCALE_SDECIMAL); }

  // Under Wine the drivers are those of the system around it.
  Text path_for_drivers(TextView path) override {
    using Convert = char*(CDECL*)(LPCWSTR);
    const auto convert = reinterpret_cast<Convert>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32"), "wine_get_unix_file_name")));
    char* const converted = convert == nullptr ? nullptr : convert(wide(path).c_str());
    if (converted == nullptr) return Text(path);
    const std::string_view bytes = converted;
    const auto text = from_utf8(bytes);
    HeapFree(GetProcessHeap(), 0, converted);
    return text.value_or(Text(path));
  }

 private:
  ComPtr<IUnknown> object_of(const CLSID& id, const IID& interface_id) {
    ComPtr<IUnknown> object;
    void** const found = reinterpret_cast<void**>(&object);
    if (registered_) {
      com::require(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, interface_id, found));
    } else {
      com::require(factory_beside(id)->CreateInstance(nullptr, interface_id, found));
    }
    return object;
  }

  static ComPtr<IClassFactory> factory_beside(const CLSID& id) {
    using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
    const std::wstring path = wide(Ov::Path(system_platform().system.module_path())) + L"\\QVRlib21.dll";
    // Never freed: its objects may live as long as the process.
    const HMODULE module = LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    const FARPROC found = module == nullptr ? nullptr : GetProcAddress(module, "DllGetClassObject");
    if (found == nullptr) throw RuntimeFailure(failure_number::kCannotCreateObject);
    ComPtr<IClassFactory> factory;
    const auto class_object = reinterpret_cast<GetClassObject>(reinterpret_cast<void*>(found));
    com::require(class_object(id, IID_IClassFactory, reinterpret_cast<void**>(&factory)));
    return factory;
  }

  const bool registered_;
  windows::BoxAnswers boxes_;
};

}  // namespace

std::unique_ptr<TriedMachine> machine_to_try() { return std::make_unique<AutomationMachine>(); }

}  // namespace qvr::script_tool
