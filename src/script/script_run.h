// One run of a command list, with its connection and its transaction.
#pragma once

#include <memory>

#include "base/failure.h"
#include "script/qvrscr.h"

namespace qvr {

struct RunRequest {
  Engine motor;
  TextView commands;
  TextView connection_string;
  TextView progress_text;
  bool use_transaction;
};

class ScriptRun {
 public:
  ScriptRun(ScriptEvents& events, const RunRequest& request) : events_(events), request_(request) {}

  // True when the list ran to its end and was committed. No transaction and no connection stays open, whatever fails.
  bool run() noexcept;

 private:
  void open();
  bool run_commands();
  void complete();
  void abandon() noexcept;
  void report(const FailureDetail& failure);

  ScriptEvents& events_;
  const RunRequest& request_;
  std::unique_ptr<services::Ado> ado_;
  std::unique_ptr<services::AdoConnection> connection_;
  bool connection_open_ = false;
  bool transaction_open_ = false;
  bool reported_ = false;  // only the first failure of a run is reported; later ones follow from it
};

}  // namespace qvr
