#include "script/script_fixture.h"

#include "support/faults_paused.h"

namespace qvr::tests {

void LoggingEvents::Progreso(const Text& Mensaje) noexcept {
  const FaultsPaused paused;
  log_.add("Progreso", Mensaje);
  if (on_progress) on_progress();
}

void LoggingEvents::Terminado(bool Exito) noexcept {
  const FaultsPaused paused;
  log_.add(Exito ? "Terminado: True" : "Terminado: False");
  if (on_end) on_end();
}

bool ScriptTest::run(TextView commands) {
  return runner.EjecutarComandos(id, motor, commands, u"Provider=P;", shown_text);
}

Lines command_lines(const std::string& text) {
  return {"new Command",
          "Command.ActiveConnection",
          "Command.CommandType: 1",
          "Command.CommandText: " + text,
          "Command.CommandTimeout: 0",
          "Command.Execute: " + text,
          "Command released"};
}

Lines opening(bool transaction) {
  Lines lines = {"new Connection", "Connection.ConnectionString: Provider=P;", "Connection.Open"};
  if (transaction) lines.push_back("Connection.BeginTrans");
  lines.push_back("Progreso: Contando comandos...");
  return lines;
}

Lines closing(bool transaction) {
  Lines lines;
  if (transaction) lines.push_back("Connection.CommitTrans");
  for (const char* line : {"Connection.Close", "Connection released", "Terminado: True"}) lines.push_back(line);
  return lines;
}

Lines rolled_back() {
  return {"Connection.RollbackTrans", "Connection.Close", "Connection released", "Terminado: False"};
}

Lines together(std::initializer_list<Lines> parts) {
  Lines all;
  for (const Lines& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

FailureDetail refusal() { return {-2147217900, u"refused", u"Provider"}; }

Lines report_line(const std::string& label, int motor) {
  return {"Report: -2147217900|refused|Provider|" + std::to_string(motor) + "|" + label};
}

}  // namespace qvr::tests
