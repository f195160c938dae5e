// A session of the tests' own on the server, beside the one that is tested.
#pragma once

#include "odbc/odbc.h"

namespace qvr::tests {

class Session {
 public:
  explicit Session(TextView odbc_string);

  void run(TextView statement);  // throws odbc::Failure
  Text ask(TextView query);      // first column of the first row as a text
  odbc::Connection& connection() { return connection_; }

 private:
  odbc::Connection connection_;
};

}  // namespace qvr::tests
