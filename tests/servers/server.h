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
  // Of the ordinary user, for ADO.
  Text ado_string() const { return for_ado(user_); }
  Text ado_string_through_cable() const { return for_ado(cable_); }  // whose answers can be lost

  // Each returns when it is done, or throws std::runtime_error with what went wrong.
  void start() const { ask("start"); }  // does nothing where it runs
  void stop() const { ask("stop"); }    // in good order; it ends all sessions
  void kill() const { ask("kill"); }    // all its processes at once
  void fill_disk() const { ask("fill"); }
  void free_disk() const { ask("free"); }
  // Of each connection through the cable the next answer, with which it ends.
  void lose_answer() const { ask("lose"); }

 private:
  DatabaseServer();
  static Text for_ado(const Text& odbc_string);
  void ask(const char* what) const;

  ServerKind kind_;
  Text user_, administrator_, cable_;
};

}  // namespace qvr::tests
