// What the program has of the system and tests replace.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "base/failure.h"
#include "base/value.h"
#include "services/ado.h"

namespace qvr::script_tool {

// ADO for one run.
class RunAdo : public services::Ado {
 public:
  // Ends the command that another thread executes, where the provider can; harmless where none is executed.
  virtual void cancel() noexcept = 0;
};

// What a transaction may hold, as the provider tells it.
enum class Ddl { Unknown, RolledBack, Commits, Refused };

struct DatabaseFacts {
  Text product, version;  // as the provider tells them
  Ddl ddl = Ddl::Unknown;
};

// A connection of the program's own, outside any transaction. Failures throw RuntimeFailure as ADO's do.
class Database {
 public:
  virtual ~Database() = default;
  virtual DatabaseFacts facts() = 0;
  virtual std::vector<std::vector<Value>> rows(TextView query) = 0;
  virtual std::vector<services::AdoError> errors() = 0;  // of the last failure
};

// A connection that could not be opened, with all that the provider told.
class OpenFailure : public RuntimeFailure {
 public:
  OpenFailure(const FailureDetail& detail, std::vector<services::AdoError> errors)
      : RuntimeFailure(detail), errors_(std::move(errors)) {}
  const std::vector<services::AdoError>& errors() const { return errors_; }

 private:
  std::vector<services::AdoError> errors_;
};

struct Surroundings {
  // `connect_timeout` in seconds, 0: no limit.
  std::unique_ptr<RunAdo> (*make_ado)(std::int32_t connect_timeout);
  // Throws OpenFailure.
  std::unique_ptr<Database> (*open_database)(TextView connection_string, std::int32_t connect_timeout);
  // Nothing where it is not set. Throws UsageFailure where it is no Unicode.
  std::optional<Text> (*environment_variable)(TextView name);
  // A line from the terminal without echo; nothing where there is no terminal, or where its user ends the input.
  std::optional<Text> (*ask_secret)(TextView prompt);
  // The first line of the standard input; nothing where that is a terminal, closed or empty. Throws UsageFailure where
  // it is too long or no Unicode.
  std::optional<Text> (*standard_input_line)();
};

}  // namespace qvr::script_tool
