// Passwords, identifications and connection strings, which no output may hold.
#pragma once

#include <vector>

#include "base/secret_text.h"
#include "base/text.h"

namespace qvr::script_tool {

class Secrets {
 public:
  Secrets() = default;
  Secrets(const Secrets&) = delete;
  Secrets& operator=(const Secrets&) = delete;

  // The empty text is none.
  void add(TextView secret);
  // The passwords that a connection string names, those of its extended properties too.
  void add_passwords_of(TextView connection_string);

  // The text with "***" for every secret, also where its quotes or braces are doubled, and for the value of every
  // keyword of a connection string that means a password. A secret of less than four characters is replaced only where
  // it stands alone: as part of a word it would tell more by being replaced.
  Text left_out(TextView text) const;

 private:
  void add_spelling(Text spelling);

  std::vector<SecretText> spellings_;  // wiped at the end
};

// Whether a connection string names a password that is not empty, also in its extended properties.
bool names_password(TextView connection_string);

}  // namespace qvr::script_tool
