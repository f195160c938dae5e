// Execution of one statement.
#pragma once

#include <cstdint>
#include <vector>

#include "base/value.h"
#include "odbc/odbc.h"

namespace qvr::odbc {

// The rows are fetched at once, as an open cursor can block a commit.
struct ResultSet {
  bool has_rows = false;  // the statement has a result set, maybe an empty one
  std::vector<Text> columns;
  std::vector<std::vector<Value>> rows;  // numbers, texts, dates, Booleans and nulls
  std::int64_t affected = -1;            // row count; -1: not available
};

// What becomes of a statement's rows. Passed over they are fetched all the same: an engine may fail in any of them.
enum class ResultRows { Kept, PassedOver };

// `parameters` are bound to the `?` of the text, in order, input only. `timeout` in seconds, 0: no limit. Results and
// diagnostics of a command never affect the next one. Meanwhile other threads may cancel it through `under_way`.
ResultSet execute(Connection& connection, TextView text, const std::vector<Value>& parameters, std::int32_t timeout,
                  UnderWay& under_way, ResultRows rows = ResultRows::Kept);
ResultSet execute(Connection& connection, TextView text, const std::vector<Value>& parameters, std::int32_t timeout);

}  // namespace qvr::odbc
