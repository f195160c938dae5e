// ADO connection strings and their conversion to ODBC.
#pragma once

#include "base/text.h"

namespace qvr::odbc {

struct ConnectionString {
  Text provider;     // empty: ADO's default, ODBC
  Text data_source;  // an ODBC data source name
  Text extended;     // "Extended Properties": an ODBC string, passed on verbatim
  Text user;
  Text password;
  Text catalog;
  Text pass_through;  // keywords that are not ADO's own, in ODBC form
};

// Throws RuntimeFailure 0x80040E73 for an invalid connection string. A text without any `=` is a data source name.
ConnectionString parse_connection_string(TextView text);

// The string for SQLDriverConnect, without repeating keywords of the extended properties.
Text odbc_connection_string(const ConnectionString& parts);

}  // namespace qvr::odbc
