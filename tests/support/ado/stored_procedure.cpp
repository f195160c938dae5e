#include "support/ado/stored_procedure.h"

#include <algorithm>
#include <limits>

#include "base/number_text.h"
#include "support/ado/data_type.h"
#include "support/ado/procedure_binding.h"

namespace qvr::tests {
namespace {

// Columns of SQLProcedureColumns, from 0.
enum Column { kProcedure = 2, kName = 3, kKind = 4, kType = 5, kSize = 7, kDigits = 9 };

Text text_in(const Value& value) {
  const Text* text = value.as<Text>();
  return text != nullptr ? *text : Text();
}

// Drivers have small numbers, large ones and texts in the same column.
double any_number(const Value& value) {
  if (const auto* number = value.as<std::int32_t>()) return *number;
  if (const auto* number = value.as<std::int64_t>()) return static_cast<double>(*number);
  if (const auto* number = value.as<double>()) return *number;
  return number_prefix(text_in(value));
}

std::int32_t number_in(const Value& value) {
  constexpr double kMost = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(std::clamp(any_number(value), -kMost, kMost));
}

// 0 for the columns of results.
std::int32_t direction_of(std::int32_t kind) {
  switch (kind) {
    case SQL_PARAM_INPUT: return direction::kInput;
    case SQL_PARAM_INPUT_OUTPUT: return direction::kInputOutput;
    case SQL_PARAM_OUTPUT: return direction::kOutput;
    case SQL_RETURN_VALUE: return direction::kReturnValue;
    default: return 0;
  }
}

ProcedureParameter described(const std::vector<Value>& row) {
  ProcedureParameter parameter;
  parameter.name = text_in(row[kName]);
  parameter.type = described_type(static_cast<SQLSMALLINT>(number_in(row[kType])));
  parameter.direction = direction_of(number_in(row[kKind]));
  const DataType* type = data_type(parameter.type);
  const bool text = type != nullptr && type->sized;
  (text ? parameter.size : parameter.precision) = number_in(row[kSize]);
  if (!text) parameter.scale = number_in(row[kDigits]);
  return parameter;
}

odbc::ResultSet ask_for_columns(odbc::Connection& connection, TextView name, std::int32_t timeout) {
  const auto statement = connection.statement(timeout);
  statement->handle.check(SQLProcedureColumnsW(statement->handle.get(), nullptr, 0, nullptr, 0, odbc::wide(name),
                                               odbc::short_units(name.size()), nullptr, 0));
  return odbc::all_results(statement->handle);
}

Text call_text(TextView name, const std::vector<ProcedureArgument>& arguments) {
  const bool returns = !arguments.empty() && arguments[0].direction == direction::kReturnValue;
  Text text = join({returns ? u"{? = call " : u"{call ", name, u"("});
  for (std::size_t i = returns ? 1 : 0; i < arguments.size(); ++i) text += text.ends_with(u'(') ? u"?" : u", ?";
  return text + u")}";
}

}  // namespace

std::vector<ProcedureParameter> procedure_parameters(AdoSession& session, TextView name, std::int32_t timeout) {
  const odbc::ResultSet columns = session.on_connection(
      [&](odbc::Connection& connection) { return ask_for_columns(connection, name, timeout); });
  std::vector<ProcedureParameter> parameters;
  for (const std::vector<Value>& row : columns.rows) {
    // The name is a pattern for the driver.
    if (!equal_no_case(text_in(row[kProcedure]), name) || direction_of(number_in(row[kKind])) == 0) continue;
    parameters.push_back(described(row));
  }
  if (!parameters.empty()) return parameters;
  fail_provider(hresult::kParametersUnavailable, u"The provider cannot tell the command's parameters.");
}

odbc::ResultSet call_procedure(AdoSession& session, TextView name, std::int32_t timeout,
                               std::vector<ProcedureArgument>& arguments) {
  std::vector<BoundArgument> bound(arguments.begin(), arguments.end());
  odbc::ResultSet result = session.on_connection([&](odbc::Connection& connection) {
    const auto statement = connection.statement(timeout);
    SQLUSMALLINT position = 0;
    for (BoundArgument& each : bound) each.bind(statement->handle, ++position);
    return odbc::execute_bound(statement->handle, call_text(name, arguments));
  });
  for (std::size_t i = 0; i < bound.size(); ++i) {
    if (arguments[i].direction != direction::kInput) arguments[i].value = bound[i].value();
  }
  return result;
}

}  // namespace qvr::tests
