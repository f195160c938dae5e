#include "script/script_run.h"

#include "base/failure.h"
#include "script/command_splitter.h"
#include "script/one_command.h"
#include "session/failure_report.h"
#include "session/global.h"
#include "session/thread_state.h"

namespace qvr {
namespace {

// The member for the trace, whose failures these are.
SourcePlace in_run(SourcePlace place = SourcePlace::here()) {
  place.function = "EjecutarComandos";
  return place;
}

bool user_says_yes(TextView question) {
  return thread_state().platform().message_boxes.show(question, BoxButtons::YesNo) == BoxAnswer::Yes;
}

}  // namespace

bool ScriptRun::run() noexcept {
  const bool success = or_reported(
      QVRScr::kClass, false,
      [this] {
        open();
        if (!run_commands()) return false;
        complete();
        return true;
      },
      [this](const FailureDetail& failure) { report(failure); }, in_run());
  abandon();
  return success;
}

void ScriptRun::open() {
  ado_ = thread_state().new_ado();
  connection_ = ado_->new_connection();
  connection_->set_connection_string(request_.connection_string);
  connection_->open();
  connection_open_ = true;
  if (!request_.use_transaction) return;
  connection_->begin_trans();
  transaction_open_ = true;
}

// False when the user does not want to go on after a failure.
bool ScriptRun::run_commands() {
  ThreadState& state = thread_state();
  events_.Progreso(message(MsgContandoComandos));
  const Text question = message(MsgEjecutarRestantes);
  const Text of_total = u"/" + decimal(count_separators(request_.commands));
  Text progress(request_.progress_text);
  std::int32_t done = 0;
  CommandSplitter commands(request_.commands);
  while (const auto command = commands.next()) {
    progress.resize(request_.progress_text.size());
    events_.Progreso(progress.append(decimal(done)).append(of_total));
    if (run_one_command({connection_.get(), *command, request_.motor}, ado_.get())) {
      ++done;
    } else if (!user_says_yes(question)) {
      return false;
    }
    state.platform().system.process_events();
  }
  return true;
}

void ScriptRun::complete() {
  if (transaction_open_) {
    connection_->commit_trans();
    transaction_open_ = false;
  }
  connection_->close();
  connection_open_ = false;
}

// Each step on its own: a rollback that fails must not leave the connection open.
void ScriptRun::abandon() noexcept {
  const auto reporting = [this](const FailureDetail& failure) { report(failure); };
  if (transaction_open_) {
    or_reported(
        QVRScr::kClass, false, [this] { return connection_->rollback_trans(), true; }, reporting, in_run());
    transaction_open_ = false;
  }
  if (connection_open_) {
    or_reported(
        QVRScr::kClass, false, [this] { return connection_->close(), true; }, reporting, in_run());
    connection_open_ = false;
  }
  connection_.reset();
}

void ScriptRun::report(const FailureDetail& failure) {
  if (reported_) return;
  reported_ = true;
  report_failure(failure, {u"EjecutarComandos"}, request_.motor, connection_.get());
}

}  // namespace qvr
