// Values bound to a statement's placeholders.
#pragma once

#include <list>
#include <vector>

#include "base/value.h"
#include "odbc/odbc.h"
#include "odbc/odbc_api.h"

namespace qvr::odbc {

// A value in the form that ODBC reads it. It must stay where it is until the statement has been executed.
struct BoundValue {
  SQLSMALLINT c_type = SQL_C_CHAR;
  SQLSMALLINT sql_type = SQL_VARCHAR;
  SQLULEN column_size = 1;
  SQLSMALLINT decimal_digits = 0;
  SQLLEN indicator = SQL_NULL_DATA;
  std::vector<unsigned char> bytes;
};

// Throws RuntimeFailure (3001) for a value that is none of number, text, date, truth value or null.
BoundValue bound_value(const Value& value);

// The bound values, for as long as the statement may read them.
std::list<BoundValue> bind(const Handle& statement, const std::vector<Value>& values);

}  // namespace qvr::odbc
