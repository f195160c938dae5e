// QVRScr.
#include <algorithm>

#include "faults/fault_case.h"
#include "faults/run_log.h"
#include "script/script_fixture.h"
#include "script/script_preparation.h"
#include "services/builtin_error_report.h"

namespace qvr::tests {
namespace {

constexpr TextView kFolder = u"C:\\Program Files\\Gestion";
constexpr TextView kCommands = u"CREATE TABLE Clientes (Id int)\r\nGO\r\n\r\nCREATE TABLE Pedidos (Id int)\r\nGO\r\n";

struct Runner {
  Runner() {
    thread.boxes.always = BoxAnswer::No;
    thread.files.keep_in_memory();
    put(u"GestionSQL1.cfc", "USE [NombreBD]\nGO\n");
    put(u"GestionSQL2.cfc", "CREATE PROC Alta\nAS\nSELECT '[UsuarioQVRAdm]'\nGO\n");
    put(u"Gestion10001a10002SQL.cfc", "ALTER TABLE [NombreBD]..Clientes\nGO\n");
    put(u"Gestion10002a10003SQL.cfc", "DROP TABLE Pedidos\nGO\n");
  }
  void put(TextView name, std::string bytes) { thread.files.memory[join({kFolder, u"\\", name})] = std::move(bytes); }
  Lines texts() { return {}; }

  TestThread thread;
  LoggingEvents events{thread.log};
  QVRScr runner{events};
  Text id = u"EvitarTransaccionthe identification", shown_text;
  std::unique_ptr<services::AdoConnection> connection = thread.ado.new_connection();
  const ScriptAccounts accounts{u"Ventas del a\u00f1o", u"administrator", u"a password", u"a client", u"its password"};
};

struct RunnerWithTransaction : Runner {
  RunnerWithTransaction() { id = u"the identification"; }
};

// The library's own report of a command that the provider refuses.
struct ReportingRunner : Runner {
  ReportingRunner() {
    thread.make_error_report = [this] { return std::make_unique<services::BuiltinErrorReport>(thread.boxes); };
    for (int n = 1; n <= 3; ++n) thread.ado.fail("Command.Execute", n, refusal());
  }
};

bool run(Runner& r) {
  return r.runner.EjecutarComandos(r.id, Engine::SqlServer, kCommands, u"Provider=P;", r.shown_text);
}
bool run_one(Runner& r) {
  return r.runner.Ejecutar1Comando(r.connection.get(), u"DELETE FROM Clientes", Engine::SqlServer);
}

void check_run(const Lines& log, const std::string& result) { expect_whole_run(log, result == "True"); }

void check_load(const Lines& log, const std::string& result) {
  EXPECT_EQ(lines_that_begin(log, "Terminado"), 1u);
  EXPECT_EQ(log.back(), result.empty() ? "Terminado: False" : "Terminado: True");
  EXPECT_EQ(log.size(), 1 + lines_that_begin(log, "Progreso: Procesando "));
}

void check_command(const Lines& log, const std::string&) {
  EXPECT_EQ(lines_that_begin(log, "Command released"), lines_that_begin(log, "Command.Active"));
}

FaultCase telling(FaultCase row, void (*check_log)(const Lines&, const std::string&)) {
  row.check_log = check_log;
  row.lasting = true;
  return row;
}

FaultCase loading(FaultCase row) {
  row.may_succeed = true;
  return telling(std::move(row), check_load);
}

}  // namespace

FaultCases qvrscr_cases() {
  return {
      telling(fault_case<RunnerWithTransaction>("QVRScr.EjecutarComandos", run), check_run),
      telling(fault_case<Runner>("QVRScr.EjecutarComandos, without a transaction", run), check_run),
      telling(fault_case<Runner>("QVRScr.Ejecutar1Comando", run_one), check_command),
      telling(fault_case<ReportingRunner>("QVRScr.Ejecutar1Comando, refused", run_one), check_command),
      loading(fault_case<Runner>("QVRScr.CargarDefinicion",
                                 [](Runner& r) {
                                   return r.runner.CargarDefinicion(u"id", Engine::SqlServer, kFolder, u"Gestion",
                                                                    r.accounts, true);
                                 })),
      loading(fault_case<Runner>("QVRScr.CargarActualizacion",
                                 [](Runner& r) {
                                   return r.runner.CargarActualizacion(u"id", Engine::SqlServer, kFolder, u"Gestion",
                                                                       10001, r.accounts, false);
                                 })),
      fault_case<Runner>("QVRScr.UsuarioSegunMotor",
                         [](Runner& r) { return r.runner.UsuarioSegunMotor(Engine::Oracle); }),
  };
}

}  // namespace qvr::tests
