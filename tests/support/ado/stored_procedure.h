// Stored procedures for a database that has none: tables of its own describe them.
#pragma once

#include <cstdint>
#include <vector>

#include "support/ado/behaviour.h"

namespace qvr::tests {

struct ProcedureParameter {
  Text name;
  std::int32_t type = 0;  // ADO's numbers
  std::int32_t size = 0;
  std::int32_t direction = 0;
};

class StoredProcedure {
 public:
  // Reads the description; throws in the provider's name when there is none.
  StoredProcedure(AdoSession& session, TextView name, std::int32_t timeout);

  // The first one is the return value.
  const std::vector<ProcedureParameter>& parameters() const { return parameters_; }

  // Runs the statements. There is a value for each parameter, and it is the parameter's afterwards.
  void call(std::vector<Value>& values) const;

 private:
  odbc::ResultSet ask(TextView text, const std::vector<Value>& values) const {
    return session_.execute(text, values, timeout_);
  }
  std::size_t parameter_at(TextView statement) const;

  AdoSession& session_;
  Text name_;
  std::int32_t timeout_;
  std::vector<ProcedureParameter> parameters_;
};

}  // namespace qvr::tests
