#include "qvrscript/run/runner.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>

#include "base/failure.h"
#include "qvrscript/connection/connection.h"
#include "qvrscript/connection/opening_watch.h"
#include "qvrscript/output/console.h"
#include "qvrscript/run/committing.h"
#include "qvrscript/run/interruption.h"
#include "qvrscript/run/observed_ado.h"
#include "qvrscript/run/run_thread.h"
#include "qvrscript/tool_failure.h"
#include "script/qvrscr.h"

namespace qvr::script_tool {
namespace {

using Clock = std::chrono::steady_clock;

double milliseconds_since(Clock::time_point begin) {
  return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

// Counts the commands by the events of the run.
class Progress final : public ScriptEvents {
 public:
  static constexpr TextView kCounts = u"commands done: ";

  void Progreso(const Text& Mensaje) noexcept override { command += Mensaje.starts_with(kCounts) ? 1u : 0u; }
  void Terminado(bool) noexcept override {}

  std::size_t command = 0;  // the one that was begun last
};

class Run {
 public:
  Run(const Assembly& assembly, const RunOptions& options, RunListener& listener)
      : assembly_(assembly), options_(options), listener_(listener) {}

  Outcome done(TextView connection_string, const Surroundings& surroundings);

 private:
  ObservedHooks observed_hooks(RunAdo& ado);
  void report(const services::ErrorNotice& notice);
  void give_up(TextView why, bool interrupted);
  void find_ending(const std::function<DatabaseFacts()>& ask);
  DatabaseFacts asked_of_database(TextView connection_string, const Surroundings& surroundings);

  const Assembly& assembly_;
  const RunOptions& options_;
  RunListener& listener_;
  Progress progress_;
  Course course_;
  Outcome outcome_;
  Clock::time_point run_begin_ = Clock::now(), command_begin_;
  std::unique_ptr<Interruption::Ending> ending_;
  std::unique_ptr<OpeningWatch> watch_;
};

// From another thread, while this one is inside the driver: nothing else is done any more.
void Run::give_up(TextView why, bool interrupted) {
  Outcome outcome;
  outcome.interrupted = interrupted;
  if (!interrupted) {
    outcome.failures.push_back({0, {failure_number::kInvalidArgument, Text(why), Text(kOwnSource)}, {}});
    listener_.failed(outcome.failures.back());
  }
  outcome.whole_milliseconds = milliseconds_since(run_begin_);
  listener_.given_up(outcome);
  std::_Exit(interrupted ? exit_code::kInterrupted : exit_code::kFailed);
}

ObservedHooks Run::observed_hooks(RunAdo& ado) {
  ObservedHooks hooks;
  hooks.opening = [this] {
    ending_->replace([this] { give_up({}, true); });
    watch_ = std::make_unique<OpeningWatch>(options_.connection->connect_timeout, [this] {
      give_up(not_opened(options_.connection->connect_timeout), false);
    });
  };
  hooks.opened = [this, &ado] {
    watch_.reset();
    ending_->replace([&ado] { ado.cancel(); });
  };
  hooks.executing = [this] {
    command_begin_ = Clock::now();
    listener_.begun(progress_.command);
  };
  hooks.executed = [this](bool success) {
    outcome_.milliseconds.push_back(milliseconds_since(command_begin_));
    outcome_.executed += success ? 1u : 0u;
    listener_.ended(progress_.command, outcome_.milliseconds.back());
  };
  hooks.interrupted = [] { return interruption().requested(); };
  return hooks;
}

void Run::report(const services::ErrorNotice& notice) {
  if (interruption().requested()) {
    outcome_.interrupted = true;
    return;
  }
  const bool of_command = notice.label.starts_with(u"Ejecutar1Comando");
  outcome_.failures.push_back({of_command ? progress_.command : 0, notice.failure, notice.errors});
  listener_.failed(outcome_.failures.back());
}

Outcome Run::done(TextView connection_string, const Surroundings& surroundings) {
  const auto ado = surroundings.make_ado(options_.connection->connect_timeout);
  ending_ = std::make_unique<Interruption::Ending>(interruption(), [] {});
  const ObservedHooks observed_hooks = this->observed_hooks(*ado);
  RunHooks hooks;
  hooks.make_ado = [&] { return observed(*ado, course_, observed_hooks, options_.rehearse); };
  hooks.report = [this](const services::ErrorNotice& notice) { report(notice); };
  hooks.go_on = [this] { return options_.go_on && !interruption().requested(); };
  {
    const RunThread thread(std::move(hooks));
    Text id = options_.use_transaction ? u"qvrscript" : u"EvitarTransaccion qvrscript";
    Text counts(Progress::kCounts);
    outcome_.success = QVRScr(progress_).EjecutarComandos(id, assembly_.engine(), assembly_.text(), connection_string,
                                                          counts);
  }
  watch_.reset();
  ending_.reset();
  find_ending([&] { return asked_of_database(connection_string, surroundings); });
  outcome_.whole_milliseconds = milliseconds_since(run_begin_);
  return std::move(outcome_);
}

// A failed command ends the transaction of this server, and its COMMIT succeeds all the same; the ODBC driver begins
// another one without a word.
bool may_forget_behind_failures(const DatabaseFacts& facts) { return facts.product == u"PostgreSQL"; }

// While the database is asked, the ending is the one that is told where nothing comes of that.
void Run::find_ending(const std::function<DatabaseFacts()>& ask) {
  if (!course_.opened || (options_.use_transaction && !course_.begun)) return;
  outcome_.rollback_failure = course_.rollback_failure;
  if (!options_.use_transaction) {
    outcome_.ending = Ending::Kept;
  } else if (course_.committed) {
    const bool left_out = std::ranges::any_of(outcome_.failures,
                                              [](const RunFailure& each) { return each.command > 0; });
    outcome_.ending = left_out ? Ending::PerhapsCommitted : Ending::Committed;
    if (left_out && !may_forget_behind_failures(ask())) outcome_.ending = Ending::Committed;
  } else if (!course_.rolled_back) {
    outcome_.ending = Ending::RollbackFailed;
  } else {
    Rollback rollback = judged_rollback(assembly_, progress_.command, [&](const Committing& ddl) {
      outcome_.ending = Ending::PerhapsKept;
      outcome_.kept_up_to = ddl;
      return ask().ddl;
    });
    const bool rehearsed = outcome_.success && rollback.ending == Ending::TakenBack;
    outcome_.ending = rehearsed ? Ending::Rehearsed : rollback.ending;
    outcome_.kept_up_to = std::move(rollback.kept_up_to);
  }
}

// Asked behind the run, as most scripts never need it.
DatabaseFacts Run::asked_of_database(TextView connection_string, const Surroundings& surroundings) {
  const auto give_up = [&](TextView) { listener_.given_up(outcome_); };
  return or_default({}, DatabaseFacts(), [&] {
    return opened_database(connection_string, options_.connection->connect_timeout, surroundings, give_up)->facts();
  });
}

}  // namespace

Outcome run_assembly(const Assembly& assembly, TextView connection_string, const RunOptions& options,
                     const Surroundings& surroundings, RunListener& listener) {
  return Run(assembly, options, listener).done(connection_string, surroundings);
}

void require_rehearsable(const Assembly& assembly, const std::function<Ddl(const Committing& ddl)>& ask) {
  const Rollback rollback = judged_rollback(assembly, assembly.commands().size(), ask);
  if (rollback.ending == Ending::TakenBack) return;
  const Committing& first = *rollback.kept_up_to;
  const Place& place = assembly.commands()[first.command - 1].place;
  const TextView why = rollback.ending == Ending::PartlyKept
                           ? u" commits by itself here, and what ran before it"
                           : u": it is not known whether a rollback takes everything back";
  throw ToolFailure({shown(place), u": ", first.statement, why, u": this cannot be rehearsed, and nothing was run"});
}

}  // namespace qvr::script_tool
