// The database server that with_server.py has started beside this program, natively or under Wine.
#pragma once

#include "base/text.h"

namespace qvr::tests {

enum class ServerKind { MariaDb, PostgreSql };

class DatabaseServer {
 public:
  static const DatabaseServer& here();  // throws std::runtime_error where the program was started without one

  ServerKind kind() const { return kind_; }
  const Text& odbc_string() const { return user_; }  // of an ordinary user, owner of the database
  const Text& administrator_string() const { return administrator_; }
  Text ado_string() const;  // of the ordinary user, for ADO

  // Each returns when it is done, or throws std::runtime_error with what went wrong.
  void start() const { ask("start"); }  // does nothing where it runs
  void stop() const { ask("stop"); }    // in good order; it ends all sessions
  void kill() const { ask("kill"); }    // all its processes at once
  void fill_disk() const { ask("fill"); }
  void free_disk() const { ask("free"); }

 private:
  DatabaseServer();
  void ask(const char* what) const;

  ServerKind kind_;
  Text user_, administrator_;
};

}  // namespace qvr::tests
