// The library from C++ without any header of it: hosts_late FOLDER [PROVIDER OPTIONS]
// Builds with mingw-w64 and needs ole32, oleaut32 and uuid.

#include <iostream>

#include "automation.h"

namespace {

constexpr const wchar_t* kId = L"hosts of QVRlib21";
constexpr long kSqlServer = 2;
constexpr const wchar_t* kCommands = L"CREATE TABLE Avisos (Numero INTEGER)\r\nGO\r\nDROP TABLE Avisos\r\nGO\r\n";

void say(const std::wstring& line) { std::wcout << line << L'\n'; }
std::wstring yes_no(bool truth) { return truth ? L"yes" : L"no"; }

void expect(bool done, const char* member) {
  if (!done) throw std::runtime_error(std::string(member) + " answered False");
}

// A file that is not there yet is written once; Crear then reads it into a new object.
Object opened_parameters(const wchar_t* folder, const wchar_t* provider, const wchar_t* options) {
  Object found(L"QVRlib21.QVRcfp");
  if (found.truth(L"Crear", {kId, folder, L"hosts"})) {
    say(L"Connection file: there already");
  } else {
    const Object made(L"QVRlib21.QVRcfp");
    expect(made.truth(L"Asignar", {kId, kSqlServer, provider, L"(local)", L"tempdb", L"", L"", L"", L"", options}),
           "Asignar");
    expect(made.truth(L"Guardar", {kId, folder, L"hosts"}), "Guardar");
    say(L"Connection file: created");
    found = Object(L"QVRlib21.QVRcfp");
    expect(found.truth(L"Crear", {kId, folder, L"hosts"}), "Crear");
  }
  say(L"Opened: " + found.text(L"Archivo") + L", engine " + found.text(L"MotorBD"));
  return found;
}

// The class's own interface has the contract's members with iSQL20_ in front of their names.
void show_query(const _variant_t& engine) {
  const Object query(L"QVRlib21.cSQL20");
  const _variant_t columns = list({L"C.Nombre", L"T+", L"P.Fecha", L"F+", L"P.Importe", L"N>Total"});
  const _variant_t relations = list({L"C.Id", L"P.IdCliente", L"L"});
  expect(query.truth(L"iSQL20_Crear", {engine, L"Clientes", false, columns, L"Clientes C, Pedidos P", relations}),
         "iSQL20_Crear");
  say(L"Search understood: " + yes_no(query.truth(L"iSQL20_InterpretarBusqueda", {L"Nombre", L"ana; luis"})));
  query.call(L"iSQL20_AmpliarOrden", {2L});  // columns count from 1; the answer is always False
  say(L"Criterion: " + query.text(L"iSQL20_CriterioActual"));
  say(L"SQL: " + query.text(L"iSQL20_SQL"));
}

void run_script(const Object& parameters) {
  constexpr DISPID kProgreso = 1, kTerminado = 2;
  Sink sink([](DISPID event, const _variant_t& argument) {
    if (event == kProgreso) say(L"Progress: " + std::wstring(_bstr_t(argument)));
    if (event == kTerminado) say(L"Finished: " + yes_no(static_cast<bool>(argument)));
  });
  const Object script(L"QVRlib21.QVRScr");
  const Subscription subscription(script, sink);
  // A text to show that is empty comes back as the one that was shown, where it is a variable by reference.
  _variant_t shown = L"";
  _variant_t reference;
  reference.vt = VT_BYREF | VT_VARIANT;
  reference.pvarVal = &shown;
  const _variant_t connection = parameters.call(L"CadenaADO", {kId, true});
  const bool ran = script.truth(L"EjecutarComandos",
                                {kId, parameters.call(L"MotorBD"), kCommands, connection, reference});
  say(L"Script ran: " + yes_no(ran));
  say(L"By reference: [" + std::wstring(_bstr_t(shown)) + L"]");
}

// A list does not tell the types of its values: who reads it knows them. ValorATexto writes them alike everywhere.
void show_properties(const Object& parameters) {
  constexpr const wchar_t* kKinds[] = {L"T", L"N", L"F"};
  constexpr double kFirstOfMarch2024 = 45352;  // days since 30 December 1899
  const Object properties(L"QVRlib21.QVRprp");
  properties.call(L"CreaPropiedad", {L"T", L"Titulo", L"Pedidos"});
  properties.call(L"CreaPropiedad", {L"N", L"Margen", 12.5});
  properties.call(L"CreaPropiedad", {L"F", L"Desde", _variant_t(kFirstOfMarch2024, VT_DATE)});
  const long count = properties.call(L"NumPropiedades");
  for (long i = 0; i < count; ++i) {
    say(L"Property " + std::to_wstring(i) + L": " + properties.text(L"NombrePropiedad", {i}) + L" = " +
        parameters.text(L"ValorATexto", {kKinds[i], properties.call(L"Item", {i})}));
  }
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 2 && count != 4) {
    std::cerr << "usage: hosts_late FOLDER [PROVIDER OPTIONS]\n";
    return 2;
  }
  int outcome = 0;
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  try {
    const Object parameters = count == 4 ? opened_parameters(arguments[1], arguments[2], arguments[3])
                                         : opened_parameters(arguments[1], L"SQLOLEDB", L"Integrated Security=SSPI;");
    show_query(parameters.call(L"MotorBD"));
    run_script(parameters);
    show_properties(parameters);
  } catch (const _com_error& refused) {
    std::cerr << "automation failed with 0x" << std::hex << refused.Error() << '\n';
    outcome = 1;
  } catch (const std::exception& failed) {
    std::cerr << failed.what() << '\n';
    outcome = 1;
  }
  CoUninitialize();
  return outcome;
}
