// Passwords, identifications and connection strings, which no output may hold.
#pragma once

#include <vector>

#include "base/text.h"

namespace qvr::script_tool {

class Secrets {
 public:
  Secrets() = default;
  ~Secrets();
  Secrets(const Secrets&) = delete;
  Secrets& operator=(const Secrets&) = delete;

  void add(TextView secret);
  // The passwords that a connection string names, those of its extended properties too.
  void add_passwords_of(TextView connection_string);

  // The text with "***" for every secret, also where its quotes or braces are doubled, and for the value of every
  // keyword of a connection string that means a password. A secret of less than four characters is replaced only where
  // it stands alone: as part of a word it would tell more by being replaced.
  Text left_out(TextView text) const;

 private:
  std::vector<Text> secrets_;  // with their spellings, the longest first
};

// Whether a connection string names a password.
bool names_password(TextView connection_string);

}  // namespace qvr::script_tool
