// Runs what was put together, by the library's own runner.
#pragma once

#include <functional>

#include "qvrscript/command_line/requests.h"
#include "qvrscript/run/outcome.h"
#include "qvrscript/surroundings.h"

namespace qvr::script_tool {

// Hears of the commands while they run; numbers from 1.
class RunListener {
 public:
  virtual void begun(std::size_t command) = 0;
  virtual void ended(std::size_t command, double milliseconds) = 0;
  virtual void failed(const RunFailure& failure) = 0;
  // The process ends behind this call, by another thread: the connection was not opened in time, or the user did not
  // wait for it.
  virtual void given_up(const Outcome& outcome) = 0;

 protected:
  ~RunListener() = default;
};

Outcome run_assembly(const Assembly& assembly, TextView connection_string, const RunOptions& options,
                     const Surroundings& surroundings, RunListener& listener);

// Throws ToolFailure where a rollback would not take back everything that the script holds.
void require_rehearsable(const Assembly& assembly, const std::function<Ddl(const Committing& ddl)>& ask);

}  // namespace qvr::script_tool
