// A run of 20,000 INSERTs.
#include "automation/by_hand.h"
#include "automation/database.h"
#include "automation/measures.h"

namespace qvr::bench {
namespace {

using namespace qvr::tests;

constexpr int kCommands = 20000, kRounds = 3;

std::wstring command(int number) {
  return number == 0
             ? L"CREATE TABLE Articulos (Codigo INTEGER, Nombre VARCHAR(40), Precio REAL)"
             : L"INSERT INTO Articulos VALUES ( " + std::to_wstring(number) + L", 'Tornillo de cabeza plana', 12.5)";
}

void check_rows(const Database& database) {
  require(database.ask(L"select count(*) from Articulos") == std::to_string(kCommands), "not all rows are there");
}

void process_messages() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
}

void by_hand() {
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

void by_library(const std::wstring& script) {
  const Database database;
  const LateObject runner(L"QVRlib21.QVRScr");
  require_true(runner.call(L"EjecutarComandos", {L"bench", 2, script, database.connection_string()}));
  check_rows(database);
}

}  // namespace

void measure_inserts(Times& times) {
  std::wstring script;
  for (int i = 0; i <= kCommands; ++i) script += command(i) + L"\r\nGO\r\n";
  times.beside(
      "Inserts", [&] { by_library(script); }, by_hand, 1, kRounds);
}

}  // namespace qvr::bench
