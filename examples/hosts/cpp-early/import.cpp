// The library from Visual C++, whose #import makes classes of a type library: texts and lists own themselves there, and
// what fails throws _com_error.
//   cl /EHsc /std:c++17 import.cpp
// The folder of QVRlib21.dll is on the INCLUDE path, and ADO's library is the system's own.
#import "C:\Program Files\Common Files\System\ado\msado15.dll" no_namespace rename("EOF", "EndOfFile")
#import "QVRlib21.dll" no_namespace

#include <atlsafe.h>

#include <iostream>

namespace {

void expect(VARIANT_BOOL done, const char* member) {
  if (done == VARIANT_FALSE) throw std::runtime_error(std::string(member) + " answered False");
}

// Arguments go by reference: each text is a variable that the library may put another text into.
BSTR* by_reference(_bstr_t& text) { return &text.GetBSTR(); }

_variant_t list(std::initializer_list<const wchar_t*> texts) {
  CComSafeArray<VARIANT> array;
  for (const wchar_t* text : texts) array.Add(_variant_t(text));
  _variant_t owner;
  owner.vt = VT_ARRAY | VT_VARIANT;
  owner.parray = array.Detach();
  return owner;
}

void show_query(long engine) {
  _iSQL20Ptr query(__uuidof(cSQL20));
  _bstr_t name = L"Clientes", tables = L"Clientes C, Pedidos P", column = L"Nombre", search = L"ana; luis";
  _variant_t columns = list({L"C.Nombre", L"T+", L"P.Fecha", L"F+", L"P.Importe", L"N>Total"});
  _variant_t relations = list({L"C.Id", L"P.IdCliente", L"L"});
  VARIANT_BOOL distinct = VARIANT_FALSE;
  short date = 2;
  // A null pointer leaves an argument out.
  expect(query->Crear(&engine, by_reference(name), &distinct, &columns, by_reference(tables), &relations, nullptr,
                      nullptr, nullptr, nullptr, nullptr, nullptr),
         "Crear");
  expect(query->InterpretarBusqueda(by_reference(column), by_reference(search), nullptr), "InterpretarBusqueda");
  query->AmpliarOrden(&date);
  std::wcout << L"Criterion: " << query->CriterioActual.GetBSTR() << L"\nSQL: " << query->SQL.GetBSTR() << L'\n';
}

void show_properties() {
  _QVRprpPtr properties(__uuidof(QVRprp));
  _bstr_t kind = L"T", name = L"Titulo";
  _variant_t value = L"Pedidos";
  properties->CreaPropiedad(by_reference(kind), by_reference(name), &value);
  for (long i = 0; i < properties->NumPropiedades; ++i) {
    _variant_t index = i;
    std::wcout << properties->NombrePropiedad[&i].GetBSTR() << L" = " << _bstr_t(properties->Item[&index]).GetBSTR()
               << L'\n';
  }
}

}  // namespace

// The parts that #import makes shorter than hosts.cpp; the rest is alike.
int main() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  int outcome = 0;
  try {
    show_query(MotorBDSQLServer);
    show_properties();
  } catch (const _com_error& refused) {
    std::wcerr << refused.ErrorMessage() << L'\n';
    outcome = 1;
  } catch (const std::exception& failed) {
    std::cerr << failed.what() << '\n';
    outcome = 1;
  }
  CoUninitialize();
  return outcome;
}
