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

// Executes on a statement whose parameters are bound, and reads all its results. Of a batch the first result counts.
ResultSet execute_bound(const Handle& statement, TextView text, ResultRows rows = ResultRows::Kept);
// The same for a statement that a call of the driver's catalogue has executed.
ResultSet all_results(const Handle& statement, ResultRows rows = ResultRows::Kept);

// `parameters` are bound to the `?` of the text, in order, input only. `timeout` in seconds, 0: no limit. Results and
// diagnostics of a command never affect the next one. Meanwhile other threads may cancel it through `under_way`.
ResultSet execute(Connection& connection, TextView text, const std::vector<Value>& parameters, std::int32_t timeout,
                  UnderWay& under_way, ResultRows rows = ResultRows::Kept);
ResultSet execute(Connection& connection, TextView text, const std::vector<Value>& parameters, std::int32_t timeout);

}  // namespace qvr::odbc
