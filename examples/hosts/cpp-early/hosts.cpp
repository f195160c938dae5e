// The library from C++ through the slots of its interfaces: hosts_early FOLDER [PROVIDER OPTIONS]
// QVRlib21.h and adodb25.h are the headers that the build makes from the library's IDL. The contract's arguments go by
// reference: each is a variable here, and a text has an owner, since the library may put another in its place.

#include <windows.h>

#include <QVRlib21.h>
#include <comdef.h>
#include <wrl/client.h>

#include <iostream>

#include "sink.h"

namespace {

using Microsoft::WRL::ComPtr;

void say(const std::wstring& line) { std::wcout << line << L'\n'; }
std::wstring yes_no(VARIANT_BOOL truth) { return truth != VARIANT_FALSE ? L"yes" : L"no"; }

void expect(VARIANT_BOOL done, const char* member) {
  if (done == VARIANT_FALSE) throw std::runtime_error(std::string(member) + " answered False");
}

// A text that goes by reference: the value stays this variable's to free.
class Text {
 public:
  Text(const wchar_t* text = L"") : text_(text) {}
  operator BSTR*() { return &text_.GetBSTR(); }
  std::wstring read() const { return {static_cast<const wchar_t*>(text_), text_.length()}; }

 private:
  _bstr_t text_;
};

// Reads a property or calls a member whose only argument is the text that it answers.
template <class Interface>
std::wstring text_of(Interface* object, HRESULT (STDMETHODCALLTYPE Interface::*member)(BSTR*)) {
  Text answer;
  check((object->*member)(answer));
  return answer.read();
}

template <class Coclass, class Interface>
ComPtr<Interface> create() {
  ComPtr<Interface> object;
  check(CoCreateInstance(__uuidof(Coclass), nullptr, CLSCTX_INPROC_SERVER, __uuidof(Interface),
                         reinterpret_cast<void**>(object.GetAddressOf())));
  return object;
}

_variant_t list(std::initializer_list<const wchar_t*> texts) {
  _variant_t owner;
  owner.parray = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(texts.size()));
  if (owner.parray == nullptr) throw _com_error(E_OUTOFMEMORY);
  owner.vt = VT_ARRAY | VT_VARIANT;
  LONG index = 0;
  for (const wchar_t* text : texts) {
    _variant_t item(text);
    check(SafeArrayPutElement(owner.parray, &index, &item));
    ++index;
  }
  return owner;
}

struct Program {
  Text id = L"hosts of QVRlib21";
  Text folder, provider = L"SQLOLEDB", options = L"Integrated Security=SSPI;";
  Text file = L"hosts";
  ComPtr<_QVRcfp> parameters = create<QVRcfp, _QVRcfp>();
  long engine = 0;

  // A file that is not there yet is written once; Crear then reads it into a new object.
  void open_parameters() {
    VARIANT_BOOL done = VARIANT_FALSE;
    check(parameters->Crear(id, folder, file, &done));
    say(done != VARIANT_FALSE ? L"Connection file: there already" : L"Connection file: created");
    if (done == VARIANT_FALSE) {
      write_parameters();
      parameters = create<QVRcfp, _QVRcfp>();
      check(parameters->Crear(id, folder, file, &done));
      expect(done, "Crear");
    }
    MotoresBD stored{};
    check(parameters->get_MotorBD(&stored));
    engine = stored;
    say(L"Opened: " + text_of(parameters.Get(), &_QVRcfp::get_Archivo) + L", engine " + std::to_wstring(engine));
  }

  void write_parameters() {
    const ComPtr<_QVRcfp> made = create<QVRcfp, _QVRcfp>();
    MotoresBD sql_server = MotorBDSQLServer;
    Text source = L"(local)", catalogue = L"tempdb", none;
    VARIANT_BOOL done = VARIANT_FALSE;
    check(made->Asignar(id, &sql_server, provider, source, catalogue, none, none, none, none, options, &done));
    expect(done, "Asignar");
    check(made->Guardar(id, folder, file, &done));
    expect(done, "Guardar");
  }

  // Held by the contract, the members have their own names; cSQL20's own interface puts iSQL20_ in front.
  void show_query() {
    const ComPtr<_iSQL20> query = create<cSQL20, _iSQL20>();
    _variant_t columns = list({L"C.Nombre", L"T+", L"P.Fecha", L"F+", L"P.Importe", L"N>Total"});
    _variant_t relations = list({L"C.Id", L"P.IdCliente", L"L"});
    Text name = L"Clientes", tables = L"Clientes C, Pedidos P", column = L"Nombre", search = L"ana; luis";
    VARIANT_BOOL distinct = VARIANT_FALSE, done = VARIANT_FALSE, always_false;
    short date = 2;  // columns count from 1
    // A null pointer leaves an argument out.
    check(query->Crear(&engine, name, &distinct, &columns, tables, &relations, nullptr, nullptr, nullptr, nullptr,
                       nullptr, nullptr, &done));
    expect(done, "Crear");
    check(query->InterpretarBusqueda(column, search, nullptr, &done));
    say(L"Search understood: " + yes_no(done));
    check(query->AmpliarOrden(&date, &always_false));
    say(L"Criterion: " + text_of(query.Get(), &_iSQL20::get_CriterioActual));
    say(L"SQL: " + text_of(query.Get(), &_iSQL20::get_SQL));
  }

  void run_script() {
    Text commands = L"CREATE TABLE Avisos (Numero INTEGER)\r\nGO\r\nDROP TABLE Avisos\r\nGO\r\n";
    Text connection, shown;
    VARIANT_BOOL administrator = VARIANT_TRUE, ran = VARIANT_FALSE;
    check(parameters->CadenaADO(id, &administrator, connection));
    const ComPtr<_QVRScr> script = create<QVRScr, _QVRScr>();
    Sink sink([](const std::wstring& message) { say(L"Progress: " + message); },
              [](VARIANT_BOOL success) { say(L"Finished: " + yes_no(success)); });
    const Subscription subscription(script.Get(), sink);
    check(script->EjecutarComandos(id, &engine, commands, connection, shown, &ran));
    say(L"Script ran: " + yes_no(ran));
    // A text to show that is empty comes back as the one that was shown.
    say(L"By reference: [" + shown.read() + L"]");
  }

  void add(_QVRprp* properties, const wchar_t* kind, const wchar_t* name, _variant_t value) {
    Text by_kind = kind, by_name = name;
    check(properties->CreaPropiedad(by_kind, by_name, &value));
  }

  // A list does not tell the types of its values: who reads it knows them. ValorATexto writes them alike everywhere.
  void show_properties() {
    constexpr const wchar_t* kKinds[] = {L"T", L"N", L"F"};
    constexpr DATE kFirstOfMarch2024 = 45352;  // days since 30 December 1899
    const ComPtr<_QVRprp> properties = create<QVRprp, _QVRprp>();
    add(properties.Get(), L"T", L"Titulo", L"Pedidos");
    add(properties.Get(), L"N", L"Margen", 12.5);
    add(properties.Get(), L"F", L"Desde", _variant_t(kFirstOfMarch2024, VT_DATE));
    long count = 0;
    check(properties->get_NumPropiedades(&count));
    for (long i = 0; i < count; ++i) {
      Text name, value_text, kind = kKinds[i];
      _variant_t index(i), value;
      check(properties->get_NombrePropiedad(&i, name));
      check(properties->get_Item(&index, &value));
      check(parameters->ValorATexto(kind, &value, value_text));
      say(L"Property " + std::to_wstring(i) + L": " + name.read() + L" = " + value_text.read());
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
