// One argument of a procedure in a buffer that the driver reads and writes.
#pragma once

#include <string>
#include <vector>

#include "odbc/odbc_api.h"
#include "support/ado/data_type.h"
#include "support/ado/stored_procedure.h"

namespace qvr::tests {

class BoundArgument {
 public:
  // Throws ADO's errors for a type that is not bound here and for a value of another type.
  explicit BoundArgument(const ProcedureArgument& argument);

  // The argument must neither move nor end before the statement.
  void bind(const odbc::Handle& statement, SQLUSMALLINT position);
  Value value() const;  // after the call

 private:
  SQLSMALLINT driver_direction() const;
  SQLSMALLINT digits() const;
  SQLULEN column_size() const;
  std::size_t bytes_told() const;
  template <class T>
  T fixed() const;
  template <class Unit>
  std::basic_string<Unit> text() const;

  const ProcedureArgument& argument_;
  const DataType& type_;
  const SQLSMALLINT c_type_;
  std::vector<unsigned char> buffer_;
  SQLLEN indicator_ = SQL_NULL_DATA;
};

}  // namespace qvr::tests
