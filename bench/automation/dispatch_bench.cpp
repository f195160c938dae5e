// What a late-bound call costs beside the system's own dispatch of the same member (ITypeInfo::Invoke on the same
// object) and beside the early-bound call, for a member of each kind of signature. Both get the same arguments: each by
// reference and of the very type, since the system's dispatch takes no other.
#include "automation/library.h"
#include "automation/timing.h"

#include <oleauto.h>

#include "QVRlib21.h"

namespace {

using namespace qvr::bench;

VARIANT reference(VARTYPE type, void* target) {
  VARIANT argument;
  argument.vt = static_cast<VARTYPE>(VT_BYREF | type);
  argument.byref = target;
  return argument;
}

VARIANT number(long value) {
  VARIANT variant;
  variant.vt = VT_I4;
  variant.lVal = value;
  return variant;
}

// An array of texts in a variant.
VARIANT texts(std::initializer_list<const wchar_t*> items) {
  SAFEARRAY* array = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(items.size()));
  LONG at = 0;
  for (const wchar_t* item : items) {
    VARIANT element;
    element.vt = VT_BSTR;
    element.bstrVal = SysAllocString(item);
    SafeArrayPutElement(array, &at, &element);
    VariantClear(&element);
    ++at;
  }
  VARIANT variant;
  variant.vt = VT_ARRAY | VT_VARIANT;
  variant.parray = array;
  return variant;
}

// One member: its arguments last to first, and the call through its slot.
template <class I, class Early>
void compare(Times& times, I* object, const wchar_t* member, const char* kind, WORD flags,
             std::vector<VARIANT> arguments, Early&& early) {
  ComPtr<ITypeInfo> info;
  if (FAILED(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, &info))) give_up("no type information");
  auto* name = const_cast<LPOLESTR>(member);
  DISPID id = 0;
  if (FAILED(object->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id))) give_up("no such member");
  DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
  const auto checked = [&](HRESULT result, VARIANT& answer) {
    if (FAILED(result)) give_up(kind);
    VariantClear(&answer);
  };
  times.take("ITypeInfo::Invoke", kind, [&] {
    VARIANT answer{};
    checked(info->Invoke(object, id, flags, &parameters, &answer, nullptr, nullptr), answer);
  });
  times.take("Invoke", kind, [&] {
    VARIANT answer{};
    checked(object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, &answer, nullptr, nullptr), answer);
  });
  times.take("Early", kind, early);
  times.take("ITypeInfo::GetIDsOfNames", kind, [&] { info->GetIDsOfNames(&name, 1, &id); });
  times.take("GetIDsOfNames", kind, [&] { object->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id); });
}

void compare_all(Times& times) {
  const auto cfp = created<_QVRcfp>(__uuidof(QVRcfp));
  const auto ov = created<_Ov>(__uuidof(Ov));
  const auto list = created<_QVRprp>(__uuidof(QVRprp));
  BSTR id = SysAllocString(L"id"), empty = SysAllocString(L""), text = SysAllocString(L"D'Artagnan");
  MotoresBD engine = static_cast<MotoresBD>(2);
  VARIANT_BOOL done = VARIANT_FALSE, yes = VARIANT_TRUE;
  long top = 5;
  VARIANT value = number(5), fields = texts({L"Codigo", L"Nombre"}), values = texts({L"a1", L"Ana"});
  cfp->Asignar(&id, &engine, &empty, &empty, &empty, &empty, &empty, &empty, &empty, &empty, &done);
  const VARIANT e = reference(VT_BSTR, &empty);
  const auto text_result = [](auto&& call) {
    return [call] {
      BSTR result = nullptr;
      call(&result);
      SysFreeString(result);
    };
  };
  compare(times, ov.Get(), L"Version", "no arguments", DISPATCH_METHOD, {}, [&] {
    long v = 0;
    ov->Version(&v);
  });
  compare(times, cfp.Get(), L"MotorBD", "a property", DISPATCH_PROPERTYGET, {}, [&] {
    MotoresBD given;
    cfp->get_MotorBD(&given);
  });
  compare(times, cfp.Get(), L"ComillasSQL", "a text", DISPATCH_METHOD, {reference(VT_BSTR, &text)},
          text_result([&](BSTR* result) { cfp->ComillasSQL(&text, result); }));
  compare(times, cfp.Get(), L"sqlTOP", "a number", DISPATCH_METHOD, {reference(VT_I4, &top)},
          text_result([&](BSTR* result) { cfp->sqlTOP(&top, result); }));
  compare(times, cfp.Get(), L"LogicoSQL", "a truth value", DISPATCH_METHOD, {reference(VT_BOOL, &yes)},
          text_result([&](BSTR* result) { cfp->LogicoSQL(&yes, result); }));
  compare(times, cfp.Get(), L"ExpSQL", "any value", DISPATCH_METHOD, {reference(VT_VARIANT, &value)},
          text_result([&](BSTR* result) { cfp->ExpSQL(&value, result); }));
  compare(times, cfp.Get(), L"SqlInsert2", "a text and two arrays", DISPATCH_METHOD,
          {reference(VT_VARIANT, &values), reference(VT_VARIANT, &fields), reference(VT_BSTR, &text)},
          text_result([&](BSTR* result) { cfp->SqlInsert2(&text, &fields, &values, result); }));
  compare(times, cfp.Get(), L"Asignar", "ten arguments", DISPATCH_METHOD,
          {e, e, e, e, e, e, e, e, reference(VT_I4, &engine), reference(VT_BSTR, &id)},
          [&] { cfp->Asignar(&id, &engine, &empty, &empty, &empty, &empty, &empty, &empty, &empty, &empty, &done); });
  compare(times, list.Get(), L"NumPropiedades", "the count of a list", DISPATCH_PROPERTYGET, {}, [&] {
    long count = 0;
    list->get_NumPropiedades(&count);
  });
}

}  // namespace

int main() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  Times times;
  compare_all(times);
  times.print();
  return 0;
}
