// One statement executed, and its rows read.
#pragma once

#include <cstdint>
#include <vector>

#include "base/value.h"
#include "odbc/odbc.h"

namespace qvr::odbc {

// The rows are read at once, so that no open cursor stands in the way of a commit.
struct ResultSet {
  bool has_rows = false;  // whether the statement is one that gives rows, be there any or not
  std::vector<Text> columns;
  std::vector<std::vector<Value>> rows;  // numbers, texts, dates, truth values and nulls
  std::int64_t affected = -1;            // rows changed; -1 where that means nothing
};

// `parameters` stand for the `?` of the text, in order, as input only. `timeout` in seconds, 0: no limit.
// What a command leaves behind, results and failure, never meets the next one.
ResultSet execute(Connection& connection, TextView text, const std::vector<Value>& parameters, std::int32_t timeout);

}  // namespace qvr::odbc
