// Scripts on a server of either kind, and what its database holds behind them.
#pragma once

#include <initializer_list>

#include "servers/server_run.h"

namespace qvr::tests {

// Each test begins with an empty table T(N int primary key, X varchar(20)).
class EngineRun : public ServerRun {
 protected:
  void SetUp() override;

  // What goes for the server that is beside this program.
  template <class T>
  T by_server(T mariadb, T postgresql) const {
    return server.kind() == ServerKind::MariaDb ? mariadb : postgresql;
  }

  // The answer of a run of these commands. Boxes are refused unless `answer` was called.
  bool runs(std::initializer_list<TextView> commands) { return runs(commands, {}); }
  // With further parts of the driver's connection string, and this identification.
  bool runs(std::initializer_list<TextView> commands, TextView options, Text id = u"app");
  bool runs_text(TextView text, TextView options, Text id = u"app");

  // The user's answer to each question from now on. The trace of the failures is not looked at.
  void answer(BoxAnswer answer);
  std::size_t failures() const;        // told to the user so far, with a question each
  bool was_told(TextView text) const;  // whether a box had it

  Text numbers() const;  // in T, such as "1,2"
  bool has_table(TextView name) const;
};

// Of MariaDB's driver, which else takes one statement a command.
inline constexpr TextView kSeveralStatements = u"OPTION=67108864";

inline constexpr TextView kNoTransaction = u"EvitarTransaccion";

}  // namespace qvr::tests
