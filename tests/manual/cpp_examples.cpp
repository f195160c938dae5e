// A program of the manual's examples in C++ that call late-bound: cpp_test.py writes them into two files, the helpers
// of the first page and the examples of the others, each in a block that begins with its page's name. cpp_examples
// CONNECTION
#include <windows.h>

#include <cstdio>
#include <stdexcept>
#include <vector>

#include "helpers.h"

namespace {

VARIANT of_type(VARTYPE type) {
  VARIANT made;
  VariantInit(&made);
  made.vt = type;
  return made;
}

VARIANT text(const wchar_t* letters) {
  VARIANT made = of_type(VT_BSTR);
  made.bstrVal = SysAllocString(letters);
  return made;
}

VARIANT number(long value) {
  VARIANT made = of_type(VT_I4);
  made.lVal = value;
  return made;
}

VARIANT truth(bool value) {
  VARIANT made = of_type(VT_BOOL);
  made.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
  return made;
}

VARIANT list(const std::vector<const wchar_t*>& texts) {
  VARIANT made = of_type(VT_ARRAY | VT_VARIANT);
  made.parray = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(texts.size()));
  LONG at = 0;
  for (const wchar_t* each : texts) {
    VARIANT element = text(each);
    SafeArrayPutElement(made.parray, &at, &element);
    VariantClear(&element);
    ++at;
  }
  return made;
}

// What the examples find there: a connection file, and the objects that they call.
IDispatch* opened_parameters() {
  CreateDirectoryW(L"C:\\Datos", nullptr);
  IDispatch* made = create(L"QVRlib21.QVRcfp");
  call(made, L"Asignar",
       {text(L"mi aplicacion"), number(3), text(L"Motor"), text(L"datos"), text(L""), text(L""), text(L""), text(L""),
        text(L""), text(L"")});
  call(made, L"Guardar", {text(L"mi aplicacion"), text(L"C:\\Datos"), text(L"enlace")});
  return made;
}

IDispatch* properties_with_a_margin() {
  IDispatch* made = create(L"QVRlib21.QVRprp");
  VARIANT margin = of_type(VT_R8);
  margin.dblVal = 12.5;
  call(made, L"CreaPropiedad", {text(L"N"), text(L"Margen"), margin});
  return made;
}

IDispatch* created_query() {
  IDispatch* made = create(L"QVRlib21.cSQL20");
  call(made, L"iSQL20_Crear", {number(2), text(L""), truth(false), list({L"Nombre", L"T"}), text(L"Clientes")});
  return made;
}

void create_table(const wchar_t* connection) {
  IDispatch* runner = create(L"QVRlib21.QVRScr");
  call(runner, L"EjecutarComandos",
       {text(L"mi aplicacion"), number(2), text(L"create table Clientes (Nombre varchar(9))\r\nGO\r\n"),
        text(connection)});
  runner->Release();
}

}  // namespace

int wmain(int, wchar_t** arguments) {
  const wchar_t* const cadena = arguments[1];
  CoInitialize(nullptr);
  IDispatch *parametros = opened_parameters(), *propiedades = properties_with_a_margin(), *consulta = created_query();
  create_table(cadena);
#include "examples.h"
  for (IDispatch* each : {parametros, propiedades, consulta}) each->Release();
  CoUninitialize();
  return 0;
}
