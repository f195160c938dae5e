// ADO for one run, which tells how far the connection came.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "base/failure.h"
#include "qvrscript/surroundings.h"

namespace qvr::script_tool {

// What the run's connection went through.
struct Course {
  bool opened = false, begun = false, committed = false, rolled_back = false;
  std::optional<FailureDetail> rollback_failure;
};

struct ObservedHooks {
  std::function<void()> opening, opened;  // around the opening; the second one only where it succeeded
  std::function<void()> executing;
  std::function<void(bool success)> executed;
  std::function<bool()> interrupted;  // whether the run has to end: the next call of it fails then
};

// `rehearse`: what the run commits is rolled back instead.
std::unique_ptr<services::Ado> observed(RunAdo& ado, Course& course, const ObservedHooks& hooks, bool rehearse);

}  // namespace qvr::script_tool
