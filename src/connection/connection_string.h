// OLE DB connection strings.
#pragma once

#include "connection/qvrcfp.h"

namespace qvr {

struct Account {
  TextView user, password;
};

// The connection string with this account. A password is written only together with a user.
Text connection_string(const ConnectionParameters& parameters, Account account);

}  // namespace qvr
