// Conversion between automation dates and ODBC timestamps.
#pragma once

#include "base/value.h"
#include "odbc/odbc_api.h"

namespace qvr::odbc {

// Rounded to the millisecond.
SQL_TIMESTAMP_STRUCT to_timestamp(Date date);
Date from_timestamp(const SQL_TIMESTAMP_STRUCT& stamp);

}  // namespace qvr::odbc
