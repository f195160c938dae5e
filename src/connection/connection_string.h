// OLE DB connection strings.
#pragma once

#include "connection/qvrcfp.h"

namespace qvr {

struct Account {
  TextView user, password;
};

// The string for these parameters with this account. A password is never written without its user.
Text connection_string(const ConnectionParameters& parameters, Account account);

}  // namespace qvr
