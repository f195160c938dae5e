#include "servers/procedures/server_procedures.h"

namespace qvr::tests {
namespace {

// Truth values as such, and room for texts as long as the tests have them.
constexpr const wchar_t* kPostgreSqlOptions = L";BoolsAsChar=0;MaxLongVarcharSize=200000";

std::wstring ado_string(const DatabaseServer& server) {
  const Text text = server.odbc_string();
  std::wstring options(text.begin(), text.end());
  if (server.kind() == ServerKind::PostgreSql) options += kPostgreSqlOptions;
  return L"Provider=MSDASQL;Extended Properties=\"" + options + L"\"";
}

}  // namespace

const wchar_t* ByServer::here() const {
  return DatabaseServer::here().kind() == ServerKind::MariaDb ? mariadb : postgresql;
}

ServerProcedures::ServerProcedures() : database(ado_string(server)) { connection = database.open(); }

void ServerProcedures::TearDown() {
  for (const Person::Box& box : anybody.boxes()) ADD_FAILURE() << narrow(box.text);
}

void ServerProcedures::run(const std::wstring& statement) const {
  const LateAnswer ran = connection.call(L"Execute", {statement});
  EXPECT_EQ(ran.result, S_OK) << narrow(statement) << ": " << narrow(ran.description);
}

void ServerProcedures::define(const wchar_t* name, const std::wstring& parameters,
                              const std::wstring& statements) const {
  const std::wstring kind = on_mariadb() ? L"procedure " : L"function ";
  run(L"drop " + kind + L"if exists " + name);
  const std::wstring head = L"create " + kind + name + L"(out r int" + (parameters.empty() ? L"" : L", ") + parameters +
                            L") ";
  const std::wstring body = L"begin select 0 into r; " + statements + L" end";
  run(head + (on_mariadb() ? body : L"language plpgsql as $$ " + body + L" $$"));
}

void ServerProcedures::make_table(const wchar_t* name, ByServer columns) const {
  run(std::wstring(L"drop table if exists ") + name);
  run(std::wstring(L"create table ") + name + L"(" + columns.here() + L")");
}

}  // namespace qvr::tests
