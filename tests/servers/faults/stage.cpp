#include "servers/faults/stage.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <stdexcept>
#include <string_view>

#include "base/utf8.h"

namespace qvr::tests {
namespace {

constexpr auto kNoticedWithin = std::chrono::seconds(20);

constexpr std::string_view kInside = "inside a command";
constexpr std::string_view kInsideCommit = "inside the commit";
constexpr std::string_view kBeforeRollback = "before the rollback";

// The call before which a fault comes; of commands, the position.
struct Step {
  std::string_view name;
  TextView call;
  int command = 0;
};

constexpr std::array kSteps = {
    Step{"before opening", u"Open"},
    Step{"before the transaction", u"BeginTrans"},
    Step{"before the first command", u"Execute", 1},
    Step{"between commands", u"Execute", 2},
    Step{kInside, u"Execute", 2},
    Step{kBeforeRollback, u"RollbackTrans"},
    Step{"before the commit", u"CommitTrans"},
    Step{kInsideCommit, u"CommitTrans"},
    Step{"before closing", u"Close"},
};

struct Fault {
  std::string_view name;
  void (Stage::*prepare)();
  void (Stage::*happen)();
};

constexpr std::array kFaults = {
    Fault{"server killed", &Stage::nothing, &Stage::kill},
    Fault{"server stopped", &Stage::nothing, &Stage::stop},
    Fault{"session ended", &Stage::nothing, &Stage::end_session},
    Fault{"answer lost", &Stage::nothing, &Stage::lose_answer},
    Fault{"disk full", &Stage::make_ballast, &Stage::fill_disk},
    Fault{"lock held", &Stage::nothing, &Stage::nothing},
    Fault{"deadlock", &Stage::nothing, &Stage::ask_for_row_of_run},
    Fault{"command cancelled", &Stage::nothing, &Stage::cancel_command},
    Fault{"time limit", &Stage::set_time_limit, &Stage::nothing},
    Fault{"commit refused", &Stage::defer_a_check, &Stage::nothing},
};

template <class Rows>
const auto& row_of(const Rows& rows, std::string_view name) {
  const auto found = std::ranges::find(rows, name, [](const auto& row) { return row.name; });
  if (found == rows.end()) throw std::runtime_error("the table has unknown words: " + std::string(name));
  return *found;
}

template <class Rows>
std::vector<std::string> names_of(const Rows& rows) {
  std::vector<std::string> names;
  for (const auto& each : rows) names.emplace_back(each.name);
  return names;
}

std::string said(const std::vector<std::string>& commands, std::size_t all) {
  if (commands.empty()) return "nothing";
  return commands.size() == all ? "all" : listed_commands(commands);
}

}  // namespace

const std::vector<std::string>& steps_of_a_run() {
  static const std::vector<std::string> names = names_of(kSteps);
  return names;
}

const std::vector<std::string>& faults_of_a_server() {
  static const std::vector<std::string> names = names_of(kFaults);
  return names;
}

void wait_until(const char* what, const std::function<bool()>& condition) {
  const auto until = std::chrono::steady_clock::now() + kNoticedWithin;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > until) throw std::runtime_error(std::string("no sign of ") + what);
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

Stage::Stage(const FaultCase& played) : played_(played) {
  commands_ = {u"insert into T values(1, '')", u"insert into T values(2, '')", u"insert into T values(3, '')"};
  if (played.when == kBeforeRollback) {
    commands_[1] = u"insert into Missing values(2)";
  } else if (played.fault == "disk full") {  // more rows than the table has room for
    commands_[1] = many_rows_into(u"T");
  }
  server_.start();
  Session owner(server_.odbc_string());
  for (const TextView table : {u"T", u"Allowed", u"Ballast"}) {
    owner.run(join({u"drop table if exists ", table, by_server(u"", u" cascade")}));
  }
  // The row makes room for a few more of them.
  owner.run(u"create table T(N int primary key, Filler varchar(100))");
  owner.run(u"insert into T values(0, '')");
  if (played.fault != "lock held") {
    // On a busy machine the fault may need its time.
    run(by_server(u"set global innodb_lock_wait_timeout = 60", u"alter role qvr set lock_timeout = '60s'"));
  }
  (this->*row_of(kFaults, played.fault).prepare)();
  if (played.when == kInside) hold_row();
  if (played.when == kInsideCommit) make_commits_wait();
}

Stage::~Stage() {
  if (beside_.joinable()) beside_.join();
}

Text Stage::script() const {
  Text script;
  for (const Text& command : commands_) script += join({command, u"\r\nGO\r\n"});
  return script;
}

Text Stage::ado_string() const {
  return played_.fault == "answer lost" ? server_.ado_string_through_cable() : server_.ado_string();
}

void Stage::note_failure() noexcept {
  try {
    throw;
  } catch (const odbc::Failure& failure) {
    went_wrong_ = to_utf8(failure.records().front().description);
  } catch (const std::exception& failure) {
    went_wrong_ = failure.what();
  }
}

bool Stage::is_moment(TextView call) {
  if (call == u"Execute") ++executed_;
  const Step& step = row_of(kSteps, played_.when);
  if (has_happened_ || call != step.call || (step.command != 0 && step.command != executed_)) return false;
  has_happened_ = true;
  return true;
}

void Stage::before_call(TextView call) noexcept {
  try {
    if (!is_moment(call)) return;
    if (played_.when == kInside || played_.when == kInsideCommit) {
      happen_inside();
    } else {
      (this->*row_of(kFaults, played_.fault).happen)();
    }
  } catch (...) {
    note_failure();
  }
}

void Stage::happen_inside() {
  // Both others of a deadlock are there before the command.
  if (played_.fault == "deadlock") return ask_for_row_of_run();
  if (played_.when == kInsideCommit)
    holder_->run(by_server(u"flush tables with read lock", u"select pg_advisory_lock(1)"));
  beside_ = std::thread([this] {
    try {
      wait_for_run();
      (this->*row_of(kFaults, played_.fault).happen)();
      if (played_.fault == "disk full" || played_.fault == "answer lost") release();
    } catch (...) {
      note_failure();
    }
  });
}

void Stage::end() {
  if (beside_.joinable()) beside_.join();
  holder_.reset();
  server_.start();
  server_.free_disk();
  run(by_server(u"set global innodb_lock_wait_timeout = 1", u"alter role qvr reset all"));
  if (server_.kind() == ServerKind::MariaDb) run(u"set global max_statement_time = 0");
  if (!went_wrong_.empty()) throw std::runtime_error(went_wrong_);
  if (!has_happened_) throw std::runtime_error("the run did not come to this step");
}

std::string Stage::left_by_run() const {
  std::vector<std::string> found;
  for (const char number : {'1', '2', '3'}) {
    const char16_t digit[] = {static_cast<char16_t>(number), u'\0'};
    if (ask(join({u"select count(*) from T where N = ", digit})) == u"1") found.emplace_back(1, number);
  }
  return said(found, commands_.size());
}

bool Stage::has_sessions_of_runs() const { return session_of_run() != u"0"; }

void Stage::end_session() {
  const Text session = session_of_run();
  run(by_server(join({u"kill ", session}), join({u"select pg_terminate_backend(", session, u")"})));
  wait_until("the session's end", [this] { return !has_sessions_of_runs(); });
}

void Stage::make_ballast() {
  Session owner(server_.odbc_string());
  owner.run(u"create table Ballast(N int, Filler varchar(100))");
}

void Stage::fill_disk() {
  server_.fill_disk();
  try {
    run(many_rows_into(u"Ballast"));
  } catch (const odbc::Failure&) {
    return;
  }
  throw std::runtime_error("the disk is not full");
}

// The first has the number of the second command.
Text Stage::many_rows_into(TextView table) const {
  return join({u"insert into ", table, u" select case when n = 999 then 2 else n end, repeat('x', 100) from ",
               by_server(u"(select seq as n from seq_999_to_40000) as numbers", u"generate_series(999, 40000) as n")});
}

// From a session that has changed much: of two in a deadlock the server ends the one with less.
void Stage::ask_for_row_of_run() {
  beside_ = std::thread([this] {
    try {
      holder_->run(u"insert into T values(1, '')");
    } catch (const odbc::Failure&) {  // the run has committed the row
    }
  });
  wait_until("the second session in the deadlock", [this] {
    return is_asked_for(u"user = 'root' and info like 'insert into T values(1%'",
                        u"usename = 'postgres' and wait_event_type = 'Lock'");
  });
}

void Stage::cancel_command() {
  const Text session = session_of_run();
  run(by_server(join({u"kill query ", session}), join({u"select pg_cancel_backend(", session, u")"})));
}

void Stage::set_time_limit() {
  run(by_server(u"set global max_statement_time = 1", u"alter role qvr set statement_timeout = '1s'"));
}

// Rows without their like in another table are found at the commit.
void Stage::defer_a_check() {
  Session owner(server_.odbc_string());
  owner.run(u"create table Allowed(N int primary key)");
  owner.run(u"insert into Allowed values(0)");
  owner.run(u"alter table T add foreign key(N) references Allowed deferrable initially deferred");
}

void Stage::hold_row() {
  holder_ = std::make_unique<Session>(server_.administrator_string());
  // This one does not give up first.
  holder_->run(by_server(u"set innodb_lock_wait_timeout = 60", u"set lock_timeout = '60s'"));
  if (server_.kind() == ServerKind::PostgreSql) holder_->run(u"set deadlock_timeout = '60s'");
  holder_->connection().set_autocommit(false);
  holder_->run(u"insert into T values(2, '')");
  if (played_.fault == "deadlock") {
    for (Text row = u"100"; row.size() < 6; row += u'0') holder_->run(join({u"insert into T values(", row, u", '')"}));
  }
}

void Stage::make_commits_wait() {
  holder_ = std::make_unique<Session>(server_.administrator_string());
  if (server_.kind() == ServerKind::MariaDb) return;
  holder_->run(
      u"create or replace function waits() returns trigger language plpgsql as "
      u"'begin perform pg_advisory_xact_lock(1); return null; end'");
  holder_->run(
      u"create constraint trigger waits after insert on T deferrable initially deferred for each row "
      u"execute function waits()");
}

void Stage::release() {
  if (played_.when == kInsideCommit) return holder_->run(by_server(u"unlock tables", u"select pg_advisory_unlock(1)"));
  holder_->connection().end_transaction(false);
}

bool Stage::is_asked_for(TextView condition_for_mariadb, TextView condition_for_postgresql) const {
  return ask(join({u"select count(*) from ", by_server(u"information_schema.processlist", u"pg_stat_activity"),
                   u" where ", by_server(condition_for_mariadb, condition_for_postgresql)})) != u"0";
}

void Stage::wait_for_run() const {
  wait_until("the waiting command", [this] {
    return is_asked_for(u"user = 'qvr' and command = 'Query' and (info like 'insert into T %' or info like 'commit%')",
                        u"usename = 'qvr' and wait_event_type = 'Lock'");
  });
}

Text Stage::session_of_run() const {
  return ask(by_server(u"select coalesce(max(id), 0) from information_schema.processlist where user = 'qvr'",
                       u"select coalesce(max(pid), 0) from pg_stat_activity where usename = 'qvr'"));
}

Text Stage::ask(TextView query) const { return Session(server_.administrator_string()).ask(query); }

void Stage::run(TextView statement) const { Session(server_.administrator_string()).run(statement); }

TextView Stage::by_server(TextView mariadb, TextView postgresql) const {
  return server_.kind() == ServerKind::MariaDb ? mariadb : postgresql;
}

}  // namespace qvr::tests
