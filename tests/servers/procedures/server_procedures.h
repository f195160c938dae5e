// Stored procedures of the server that is beside this program, called by both kinds of host through the test ADO.
#pragma once

#include "automation/procedures.h"
#include "servers/server.h"

namespace qvr::tests {

// The same for either server; null where one has no such thing, or its driver cannot do it (see the folder's table).
struct ByServer {
  const wchar_t *mariadb, *postgresql;

  constexpr ByServer(const wchar_t* both) : ByServer(both, both) {}
  constexpr ByServer(const wchar_t* for_mariadb, const wchar_t* for_postgresql)
      : mariadb(for_mariadb), postgresql(for_postgresql) {}

  const wchar_t* here() const;
};

// Calls the body for the rows that this server has; the test fails where it has none of them.
template <class Table, class Body>
void for_rows_here(const Table& rows, Body&& body) {
  int passed = 0;
  for (const auto& row : rows) {
    if (row.type.here() == nullptr) continue;
    SCOPED_TRACE(row.name);
    body(row);
    ++passed;
  }
  EXPECT_GT(passed, 0);
}

class ServerProcedures : public ProcedureCalls {
 protected:
  ServerProcedures();
  void TearDown() override;  // a box that nobody expected fails the test

  // What the server calls so, in place of any of that name. The first parameter, "out r int", is there by itself, and
  // 0; it is where a library that asks for item 0 finds a return value. Statements are those that both servers know.
  void define(const wchar_t* name, const std::wstring& parameters, const std::wstring& statements) const;
  // An empty table in place of any of that name.
  void make_table(const wchar_t* name, ByServer columns) const;
  void run(const std::wstring& statement) const;

  bool on_mariadb() const { return server.kind() == ServerKind::MariaDb; }

  const Person anybody;
  const DatabaseServer& server = DatabaseServer::here();
  AdoDatabase database;
};

}  // namespace qvr::tests
