#include "servers/server_run.h"

#include "odbc/odbc_ado.h"
#include "services/builtin_error_report.h"

namespace qvr::tests {

ServerRun::ServerRun() {
  thread.make_ado = [] { return odbc::make_odbc_ado(); };
  thread.make_error_report = [this] { return std::make_unique<services::BuiltinErrorReport>(thread.boxes); };
}

void ServerRun::SetUp() {
  server.start();
  Session session(server.administrator_string());
  if (server.kind() == ServerKind::PostgreSql) {
    session.run(u"drop schema public cascade");
    session.run(u"create schema public authorization qvr");
  } else {
    session.run(u"drop database gestion");
    session.run(u"create database gestion");
  }
}

bool ServerRun::run(TextView commands, Text id) {
  Text shown = u"Hecho: ";
  return runner.EjecutarComandos(id, Engine::SqlServer, commands, server.ado_string(), shown);
}

}  // namespace qvr::tests
