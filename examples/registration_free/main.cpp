// Uses QVRlib21 without anything in the registry: the manifest beside this program names the library's assembly, and
// COM finds the classes there. Late-bound by name as scripts do, and early-bound through the generated header.
#include <windows.h>

#include <oleauto.h>

#include <cstdio>
#include <stdexcept>
#include <string>

#include <initguid.h>

#include "QVRlib21.h"
#include "late.h"
#include "other_thread.h"

namespace {

using namespace registration_free;

void item(const wchar_t* label, const std::wstring& value) { std::printf("   %-28ls%ls\n", label, value.c_str()); }

void late_bound() {
  std::puts("Late-bound, by name");
  const LateObject version(L"QVRlib21.Ov");
  item(L"Ov.CadenaVersion", version.call(L"CadenaVersion", {}).text());
  const LateObject parameters(L"QVRlib21.QVRcfp");
  const Value assigned = parameters.call(L"Asignar", {L"example", 2L, L"SQLOLEDB", L"server", L"Gestion", L"sa", L"",
                                                      L"", L"", L""});
  item(L"QVRcfp.Asignar", assigned.text());
  item(L"QVRcfp.ComillasSQL", parameters.call(L"ComillasSQL", {L"Casa d'Ana"}).text());
  const LateObject query(L"QVRlib21.cSQL20");
  const Value created = query.call(L"iSQL20_Crear",
                                   {2L, L"Clientes", false, Value::list({L"C.Nombre", L"T+"}), L"Clientes C"});
  item(L"cSQL20.iSQL20_Crear", created.text());
  query.call(L"iSQL20_InterpretarBusqueda", {L"Nombre", L"ana"});
  item(L"cSQL20.iSQL20_SQL", query.call(L"iSQL20_SQL", {}).text());
}

template <class Interface>
ComPtr<Interface> create(REFCLSID id, const wchar_t* name) {
  ComPtr<Interface> object;
  require(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Interface),
                           reinterpret_cast<void**>(object.GetAddressOf())),
          name);
  return object;
}

void early_bound() {
  std::puts("Early-bound, by class");
  const auto version = create<_Ov>(CLSID_Ov, L"Ov");
  long number = 0;
  require(version->Version(&number), L"Ov.Version");
  item(L"Ov.Version", std::to_wstring(number));
  const auto parameters = create<_QVRcfp>(CLSID_QVRcfp, L"QVRcfp");
  MotoresBD engine{};
  require(parameters->get_MotorBD(&engine), L"QVRcfp.MotorBD");
  item(L"QVRcfp.MotorBD", std::to_wstring(engine));
  const auto query = create<_cSQL20>(CLSID_cSQL20, L"cSQL20");
  Value name;
  require(query->get_Name(name.out_text()), L"cSQL20.Name");
  item(L"cSQL20.Name", name.text());
  item(L"from another thread", name_from_another_thread(query.Get()));
}

void type_library() {
  std::puts("Type library");
  ComPtr<ITypeLib> library;
  require(LoadRegTypeLib(LIBID_QVRlib21, 1, 1, 0, library.GetAddressOf()), L"LoadRegTypeLib");
  Value name;
  require(library->GetDocumentation(MEMBERID_NIL, name.out_text(), nullptr, nullptr, nullptr), L"GetDocumentation");
  item(L"LoadRegTypeLib", name.text() + L", " + std::to_wstring(library->GetTypeInfoCount()) + L" types");
}

}  // namespace

int main(int count, char** words) {
  const std::string part = count > 1 ? words[1] : "";  // "late" or "early": that part alone
  if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 2;
  int code = 1;
  try {
    std::printf("%u-bit host\n", static_cast<unsigned>(sizeof(void*) * 8));
    if (part != "early") late_bound();
    if (part != "late") early_bound();
    type_library();
    std::puts("Everything was as expected.");
    code = 0;
  } catch (const std::exception& failure) {
    std::printf("registration_free: %s\n", failure.what());
  }
  CoUninitialize();
  return code;
}
