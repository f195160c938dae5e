// The library from C++ through the slots of its interfaces: hosts_early FOLDER [PROVIDER OPTIONS]
// QVRlib21.hpp is the library's header for C++, in the package's folder imports/cpp.

#include <QVRlib21.hpp>

#include <iostream>

namespace {

using namespace qvrlib21;

void say(const std::wstring& line) { std::wcout << line << L'\n'; }
std::wstring yes_no(bool truth) { return truth ? L"yes" : L"no"; }

void expect(bool done, const char* member) {
  if (!done) throw std::runtime_error(std::string(member) + " answered False");
}

struct Program {
  std::wstring id = L"hosts of QVRlib21", file = L"hosts";
  std::wstring folder, provider = L"SQLOLEDB", options = L"Integrated Security=SSPI;";
  QVRcfp parameters = create<QVRcfp>();

  // A file that is not there yet is written once; Crear then reads it into a new object.
  void open_parameters() {
    const bool there = parameters.Crear(id, folder, file);
    say(there ? L"Connection file: there already" : L"Connection file: created");
    if (!there) {
      write_parameters();
      parameters = create<QVRcfp>();
      expect(parameters.Crear(id, folder, file), "Crear");
    }
    say(L"Opened: " + parameters.Archivo() + L", engine " + std::to_wstring(parameters.MotorBD()));
  }

  void write_parameters() const {
    const QVRcfp made = create<QVRcfp>();
    expect(made.Asignar(id, MotorBDSQLServer, provider, L"(local)", L"tempdb", L"", L"", L"", L"", options), "Asignar");
    expect(made.Guardar(id, folder, file), "Guardar");
  }

  void show_query() const {
    const cSQL20 query = create<cSQL20>();
    expect(query.Crear(parameters.MotorBD(), L"Clientes", false,
                       {L"C.Nombre", L"T+", L"P.Fecha", L"F+", L"P.Importe", L"N>Total"}, L"Clientes C, Pedidos P",
                       {L"C.Id", L"P.IdCliente", L"L"}),
           "Crear");
    say(L"Search understood: " + yes_no(query.InterpretarBusqueda(L"Nombre", L"ana; luis")));
    query.AmpliarOrden(2);  // columns count from 1; the answer is always false
    say(L"Criterion: " + query.CriterioActual());
    say(L"SQL: " + query.SQL());
  }

  void run_script() const {
    const QVRScr script = create<QVRScr>();
    const ScriptEventsConnection events(script, {[](const std::wstring& message) { say(L"Progress: " + message); },
                                                 [](bool success) { say(L"Finished: " + yes_no(success)); }});
    std::wstring shown;
    const bool ran = script.EjecutarComandos(
        id, parameters.MotorBD(), L"CREATE TABLE Avisos (Numero INTEGER)\r\nGO\r\nDROP TABLE Avisos\r\nGO\r\n",
        parameters.CadenaADO(id, true), &shown);
    say(L"Script ran: " + yes_no(ran));
    // A text to show that is empty comes back as the one that was shown.
    say(L"By reference: [" + shown + L"]");
  }

  // A list does not tell the types of its values: who reads it knows them. ValorATexto writes them alike everywhere.
  void show_properties() const {
    constexpr const wchar_t* kKinds[] = {L"T", L"N", L"F"};
    constexpr Date kFirstOfMarch2024{45352};
    const QVRprp properties = create<QVRprp>();
    properties.CreaPropiedad(L"T", L"Titulo", L"Pedidos");
    properties.CreaPropiedad(L"N", L"Margen", 12.5);
    properties.CreaPropiedad(L"F", L"Desde", kFirstOfMarch2024);
    for (long i = 0; i < properties.NumPropiedades(); ++i) {
      say(L"Property " + std::to_wstring(i) + L": " + properties.NombrePropiedad(i) + L" = " +
          parameters.ValorATexto(kKinds[i], properties.Item(i)));
    }
  }
};

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 2 && count != 4) {
    std::cerr << "usage: hosts_early FOLDER [PROVIDER OPTIONS]\n";
    return 2;
  }
  int outcome = 0;
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  try {
    Program program;
    program.folder = arguments[1];
    if (count == 4) {
      program.provider = arguments[2];
      program.options = arguments[3];
    }
    program.open_parameters();
    program.show_query();
    program.run_script();
    program.show_properties();
  } catch (const Failure& refused) {
    std::cerr << "automation failed with 0x" << std::hex << refused.code() << '\n';
    outcome = 1;
  } catch (const std::exception& failed) {
    std::cerr << failed.what() << '\n';
    outcome = 1;
  }
  CoUninitialize();
  return outcome;
}
