// Parameter binding.
#pragma once

#include <list>
#include <vector>

#include "base/value.h"
#include "odbc/odbc.h"
#include "odbc/odbc_api.h"

namespace qvr::odbc {

// A value as ODBC reads it. Must not move until the statement has been executed.
struct BoundValue {
  SQLSMALLINT c_type = SQL_C_CHAR;
  SQLSMALLINT sql_type = SQL_VARCHAR;
  SQLULEN column_size = 1;
  SQLSMALLINT decimal_digits = 0;
  SQLLEN indicator = SQL_NULL_DATA;
  std::vector<unsigned char> bytes;
};

// Throws RuntimeFailure (3001) for other types than number, text, date, Boolean and null.
BoundValue bound_value(const Value& value);

// Owns the bound values while the statement can read them.
std::list<BoundValue> bind(const Handle& statement, const std::vector<Value>& values);

}  // namespace qvr::odbc
