// The business's own look into its database, past the library.
#pragma once

#include <string>

#include "automation.h"

namespace gestion {

class Database {
 public:
  explicit Database(const std::wstring& connection_string);
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  // The first column of the first row.
  Value first_value(const std::wstring& query) const;
  long rows_of(const std::wstring& table) const;

 private:
  Object connection_;
};

}  // namespace gestion
