// Stored procedures over ODBC.
#pragma once

#include <cstdint>
#include <vector>

#include "support/ado/behaviour.h"

namespace qvr::tests {

// Values of ParameterDirectionEnum.
namespace direction {
inline constexpr std::int32_t kInput = 1;
inline constexpr std::int32_t kOutput = 2;
inline constexpr std::int32_t kInputOutput = 3;
inline constexpr std::int32_t kReturnValue = 4;
}  // namespace direction

struct ProcedureParameter {
  Text name;
  std::int32_t type = 0;  // ADO's numbers
  std::int32_t size = 0;  // of texts, in characters
  std::int32_t direction = 0;
  std::int32_t precision = 0, scale = 0;  // of numbers
};

struct ProcedureArgument {
  std::int32_t type = 0;
  std::int32_t size = 0;
  std::int32_t direction = 0;
  std::int32_t precision = 0, scale = 0;
  Value value;
};

// As the driver tells them, in order; throws in the provider's name when there is none.
std::vector<ProcedureParameter> procedure_parameters(AdoSession& session, TextView name, std::int32_t timeout);

// The first result. When all are read, the values of what is no input are the procedure's. A return value is the first
// argument.
odbc::ResultSet call_procedure(AdoSession& session, TextView name, std::int32_t timeout,
                               std::vector<ProcedureArgument>& arguments);

}  // namespace qvr::tests
