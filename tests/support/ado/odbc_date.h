// Dates between the automation form and ODBC's.
#pragma once

#include "frame/value.h"
#include "support/ado/odbc_api.h"

namespace qvr::tests::odbc {

// To the millisecond.
SQL_TIMESTAMP_STRUCT to_timestamp(Date date);
Date from_timestamp(const SQL_TIMESTAMP_STRUCT& stamp);

}  // namespace qvr::tests::odbc
