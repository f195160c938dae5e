// Connection strings as ADO takes them, and what becomes of them for ODBC.
#pragma once

#include "base/text.h"

namespace qvr::odbc {

struct ConnectionString {
  Text provider;     // empty: ADO's default, ODBC
  Text data_source;  // an ODBC data source name
  Text extended;     // "Extended Properties": an ODBC string, passed on as it stands
  Text user;
  Text password;
  Text catalog;
  Text pass_through;  // keywords that are not ADO's own, in ODBC form
};

// Throws RuntimeFailure with 0x80040E73 when the text is no list of `keyword=value`. A text without any `=` is a data
// source name.
ConnectionString parse_connection_string(TextView text);

// The string for SQLDriverConnect. What the extended properties name already is not repeated.
Text odbc_connection_string(const ConnectionString& parts);

}  // namespace qvr::odbc
