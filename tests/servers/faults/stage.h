// A table, a script that fills it, and a fault of the server that comes at one step of the script's run.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "servers/faults/fault_table.h"
#include "servers/session.h"

namespace qvr::tests {

// When and what, in the words of the table.
const std::vector<std::string>& steps_of_a_run();
const std::vector<std::string>& faults_of_a_server();

class Stage {
 public:
  // The table T is made anew, on a server that runs.
  explicit Stage(const FaultCase& played);
  ~Stage();
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  const std::vector<Text>& commands() const { return commands_; }
  Text script() const;
  Text ado_string() const;

  // To be told of each call to ADO before it is made.
  void before_call(TextView call) noexcept;
  // The server is as before, and so is the table but for what the run left. Throws what went wrong meanwhile.
  void end();

  std::string left_by_run() const;  // in the words of the table; behind `end`
  bool has_sessions_of_runs() const;

  // What a fault does before the run and when its moment has come.
  void kill() { server_.kill(); }
  void stop() { server_.stop(); }
  void end_session();
  void lose_answer() { server_.lose_answer(); }
  void make_ballast();
  void fill_disk();
  void ask_for_row_of_run();
  void cancel_command();
  void set_time_limit();
  void defer_a_check();
  void nothing() {}

 private:
  void note_failure() noexcept;
  bool is_moment(TextView call);
  void happen_inside();
  Text many_rows_into(TextView table) const;
  void hold_row();
  void make_commits_wait();
  void release();
  bool is_asked_for(TextView condition_for_mariadb, TextView condition_for_postgresql) const;
  void wait_for_run() const;
  Text session_of_run() const;
  Text ask(TextView query) const;  // of the administrator
  void run(TextView statement) const;
  TextView by_server(TextView mariadb, TextView postgresql) const;

  const DatabaseServer& server_ = DatabaseServer::here();
  const FaultCase& played_;
  std::vector<Text> commands_;
  int executed_ = 0;
  bool has_happened_ = false;
  std::unique_ptr<Session> holder_;  // of what the second command or the commit waits for
  std::thread beside_;
  std::string went_wrong_;
};

// Until the condition holds; throws std::runtime_error with what was waited for where that takes too long.
void wait_until(const char* what, const std::function<bool()>& condition);

}  // namespace qvr::tests
