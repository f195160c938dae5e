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
const char* const kReport = "Report: 7|Out of memory|QVRlib21|2|";

struct Runner {
  Runner() {
    thread.boxes.always = BoxAnswer::No;
    thread.files.keep_in_memory();
    put(u"GestionSQL1.cfc", "USE [NombreBD]\nGO\n");
    put(u"GestionSQL2.cfc", "CREATE PROC Alta\nAS\nSELECT '[UsuarioQVRAdm]'\nGO\n");
    put(u"Gestion10001a10002SQL.cfc", "ALTER TABLE [NombreBD]..Clientes\nGO\n");
    put(u"Gestion10002a10003SQL.cfc", "DROP TABLE Pedidos\nGO\n");
    for (Text* text : {&id, &shown_text}) text->reserve(100);
  }
  void put(TextView name, std::string bytes) { thread.files.memory[join({kFolder, u"\\", name})] = std::move(bytes); }
  std::string state() { return ""; }

  TestThread thread;
  LoggingEvents events{thread.log};
  QVRScr runner{events};
  Text id, shown_text;
  std::unique_ptr<services::AdoConnection> connection = thread.ado.new_connection();
  const ScriptAccounts accounts{u"Ventas del a\u00f1o", u"administrator", u"a password", u"a client", u"its password"};
};

// The answer of a run with what its caller then finds in the two arguments.
struct RunAnswer {
  bool success;
  const Runner* runner;
};
std::string shown(const RunAnswer& answer) {
  return tests::shown(answer.success) + "|" + to_utf8(answer.runner->id) + "|" + to_utf8(answer.runner->shown_text);
}

// The caller's texts have room for what they are given, so that it is the run that wants memory.
RunAnswer run(Runner& r, TextView id) {
  r.id.assign(id);
  r.shown_text.clear();
  const bool success = r.runner.EjecutarComandos(r.id, 2, kCommands, u"Provider=P;", r.shown_text);
  return {success, &r};
}

// A failure that comes alone is reported once, and with a command's the user is asked; where memory stays away there
// may be nothing left to report with.
void check_run(const Lines& log, const std::string& result, std::optional<Shortage> shortage) {
  const bool success = result.starts_with("True");
  expect_whole_run(log, success);
  const std::size_t reports = lines_that_begin(log, "Report");
  EXPECT_EQ(reports, lines_that_begin(log, kReport));
  EXPECT_LE(lines_that_begin(log, "Box Yes/No: \u00bfDesea que se ejecuten los restantes comandos?"), 1u);
  EXPECT_EQ(lines_that_begin(log, "Box"), lines_that_begin(log, "Box Yes/No: \u00bf"));
  EXPECT_TRUE(success || shortage != Shortage::Once || reports == 1) << ::testing::PrintToString(log);
}

std::vector<FaultCase> running_cases() {
  std::vector<FaultCase> all = {
      fault_case<Runner>("QVRScr.EjecutarComandos", "True|the identification|Comandos ejecutados: ",
                         {"False|the identification|", "False|the identification|Comandos ejecutados: "},
                         [](Runner& r) { return run(r, u"the identification"); }),
      fault_case<Runner>(
          "QVRScr.EjecutarComandos, without a transaction", "True|the identification|Comandos ejecutados: ",
          {"False|EvitarTransaccionthe identification|", "False|the identification|Comandos ejecutados: "},
          [](Runner& r) { return run(r, u"EvitarTransaccionthe identification"); }),
      fault_case<Runner>("QVRScr.EjecutarComandos, going on", "True|the identification|Comandos ejecutados: ",
                         {"False|the identification|", "False|the identification|Comandos ejecutados: "},
                         [](Runner& r) {
                           r.thread.boxes.always = BoxAnswer::Yes;
                           return run(r, u"the identification");
                         }),
  };
  for (FaultCase& row : all) row.check_log = check_run;
  return all;
}

FaultCase command_case() {
  FaultCase row = fault_case<Runner>("QVRScr.Ejecutar1Comando", "True", {"False"}, [](Runner& r) {
    return r.runner.Ejecutar1Comando(r.connection.get(), u"DELETE FROM Clientes", 2);
  });
  row.check_log = [](const Lines& log, const std::string& result, std::optional<Shortage> shortage) {
    EXPECT_EQ(lines_that_begin(log, "Report"),
              lines_that_begin(log, kReport + std::string("Ejecutar1Comando: DELETE")));
    EXPECT_LE(lines_that_begin(log, "Report"), 1u);
    EXPECT_TRUE(result == "True" || shortage != Shortage::Once || lines_that_begin(log, "Report") == 1);
    EXPECT_EQ(lines_that_begin(log, "Command released"), lines_that_begin(log, "Command.Active"));
  };
  return row;
}

// The library's own report of a command that the provider refuses: one box with the whole text, or none.
FaultCase shown_case() {
  struct Shown : Runner {
    Shown() {
      thread.make_error_report = [this] { return std::make_unique<services::BuiltinErrorReport>(thread.boxes); };
      for (int n = 1; n <= 3; ++n) thread.ado.fail("Command.Execute", n, refusal());
    }
  };
  FaultCase row = fault_case<Shown>("QVRScr.Ejecutar1Comando, shown", "False", {"False"}, [](Shown& r) {
    return r.runner.Ejecutar1Comando(r.connection.get(), u"DELETE FROM Clientes", 2);
  });
  row.check_log = [](const Lines& log, const std::string&, auto) {
    const std::string begin = "Box OK: Error indeterminado\r\n\r\nError ",
                      end = "\r\n\r\nM\u00e9todo: Ejecutar1Comando: DELETE FROM Clientes";
    const std::size_t boxes = lines_that_begin(log, "Box");
    EXPECT_LE(boxes, 1u);
    EXPECT_EQ(boxes, lines_that_begin(log, begin + "-2147217900: refused (Provider)" + end) +
                         lines_that_begin(log, begin + "7: Out of memory (QVRlib21)" + end));
  };
  return row;
}

std::vector<FaultCase> loading_cases() {
  std::vector<FaultCase> all = {
      fault_case<Runner>(
          "QVRScr.CargarDefinicion",
          "USE Ventas del a\u00f1o\r\nGO\r\n\r\nCREATE PROC Alta\r\nWITH ENCRYPTION AS\r\n"
          "SELECT 'administrator'\r\nGO\r\n\r\n",
          {""}, [](Runner& r) { return r.runner.CargarDefinicion(u"id", 2, kFolder, u"Gestion", r.accounts, true); }),
      fault_case<Runner>("QVRScr.CargarActualizacion",
                         "ALTER TABLE Ventas del a\u00f1o..Clientes\r\nGO\r\n\r\nDROP TABLE Pedidos\r\nGO\r\n\r\n",
                         {""},
                         [](Runner& r) {
                           return r.runner.CargarActualizacion(u"id", 2, kFolder, u"Gestion", 10001, r.accounts, false);
                         }),
  };
  for (FaultCase& row : all) {
    row.check_log = [](const Lines& log, const std::string& result, auto) {
      EXPECT_EQ(lines_that_begin(log, "Terminado"), 1u);
      EXPECT_EQ(log.back(), result.empty() ? "Terminado: False" : "Terminado: True");
      EXPECT_EQ(log.size(), 1 + lines_that_begin(log, "Progreso: Procesando "));
    };
  }
  return all;
}

}  // namespace

std::vector<FaultCase> qvrscr_cases() {
  std::vector<FaultCase> all = running_cases();
  std::ranges::move(loading_cases(), std::back_inserter(all));
  all.push_back(command_case());
  all.push_back(shown_case());
  all.push_back(fault_case<Runner>("QVRScr.UsuarioSegunMotor", "System", {""},
                                   [](Runner& r) { return r.runner.UsuarioSegunMotor(3); }));
  all.back().allocates = false;
  return all;
}

}  // namespace qvr::tests
