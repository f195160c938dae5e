// ADO's types of parameters.
#pragma once

#include "odbc/odbc_api.h"

#include <oleauto.h>

#include <cstdint>

namespace qvr::tests {

struct DataType {
  std::int32_t number;  // of DataTypeEnum
  VARTYPE held_as;      // what a value of that type is held as
  SQLSMALLINT sql_type;
  bool sized = false;  // needs a size
};

const DataType* data_type(std::int32_t number);  // null: one that no value is converted to

// The type as which ADO describes what has this type for ODBC.
std::int32_t described_type(SQLSMALLINT sql_type);

}  // namespace qvr::tests
