// What a script waits for: the first list on the screen, and a run of 20,000 INSERTs beside a host that executes the
// same commands itself, one by one in one transaction, and looks for messages of its windows after each, as a run does.
// ADO is the one of the tests, into a SQLite file.
#include <cstdio>
#include <cstdlib>

#include "automation/arrays.h"
#include "automation/boxes.h"
#include "automation/database.h"
#include "automation/library.h"
#include "automation/timing.h"

namespace {

using namespace qvr::tests;
using qvr::bench::Times;

constexpr int kCommands = 20000, kRounds = 3;

// Ends the program when a call fails: its time would mean nothing.
void require(const LateAnswer& answer, bool also = true) {
  if (SUCCEEDED(answer.result) && also) return;
  std::fprintf(stderr, "a call failed: %s\n", narrow(answer.description).c_str());
  std::exit(1);
}

void require_true(const LateAnswer& answer) { require(answer, answer.value.raw().boolVal == VARIANT_TRUE); }

void first_list() {
  const LateObject query(L"QVRlib21.cSQL20");
  require_true(query.call(
      L"iSQL20_Crear",
      {2, L"Clientes", false,
       array_of({L"C.Nombre", L"T>Nombre", L"P.Nombre", L"T>Pa\u00eds", L"C.Alta", L"F>Alta", L"C.Saldo", L"N>Saldo"}),
       L"Clientes C, Paises P", array_of({L"C.Pais", L"P.Codigo", L"I"}), L"C.Baja=0"}));
  require_true(query.call(L"iSQL20_InterpretarBusqueda", {L"Nombre", L"ana l\u00f3pez; *S.L."}));
  require(query.get(L"iSQL20_SQL"));
}

std::wstring command(int number) {
  return number == 0
             ? L"CREATE TABLE Articulos (Codigo INTEGER, Nombre VARCHAR(40), Precio REAL)"
             : L"INSERT INTO Articulos VALUES ( " + std::to_wstring(number) + L", 'Tornillo de cabeza plana', 12.5)";
}

void check_rows(const Database& database) {
  if (database.ask(L"select count(*) from Articulos") == std::to_string(kCommands)) return;
  std::fprintf(stderr, "not all rows are there\n");
  std::exit(1);
}

void process_messages() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
}

void own_loop() {
  const Database database;
  const LateObject connection = database.open();
  require(connection.call(L"BeginTrans"));
  for (int i = 0; i <= kCommands; ++i) {
    require(connection.call(L"Execute", {command(i)}));
    process_messages();
  }
  require(connection.call(L"CommitTrans"));
  require(connection.call(L"Close"));
  check_rows(database);
}

void run_of_the_library(const std::wstring& script) {
  const Database database;
  const LateObject runner(L"QVRlib21.QVRScr");
  require_true(runner.call(L"EjecutarComandos", {L"bench", 2, script, database.connection_string()}));
  check_rows(database);
}

void measure_all() {
  std::wstring script;
  for (int i = 0; i <= kCommands; ++i) script += command(i) + L"\r\nGO\r\n";
  Times times;
  times.take("FirstList", "late", first_list, 200);
  times.take("OwnLoop", std::to_string(kCommands), own_loop, 1, kRounds);
  times.take(
      "EjecutarComandos", std::to_string(kCommands), [&] { run_of_the_library(script); }, 1, kRounds);
  times.print();
}

}  // namespace

int main() {
  OleInitialize(nullptr);
  const Server library(beside_program(L"QVRlib21.dll")), ado(beside_program(L"testado.dll"));
  library.register_it();
  ado.register_it();
  {
    const Person person;
    measure_all();
  }
  ado.unregister_it();
  library.unregister_it();
  return 0;
}
