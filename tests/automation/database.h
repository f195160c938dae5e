// A SQLite database for one test, through the test ADO.
#pragma once

#include <string>

#include "automation/host.h"

namespace qvr::tests {

class Database {
 public:
  Database();
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  const std::wstring& connection_string() const { return connection_string_; }
  // Runs a statement on a connection of its own.
  void run(const std::wstring& statement) const;
  // First column of the first row, asked on a connection of its own.
  std::string ask(const wchar_t* query) const;
  // An open connection, for members that take one.
  LateObject open() const;

 private:
  std::wstring file_;
  std::wstring connection_string_;
};

// Makes the test ADO fail at these calls ("Open", "Execute:3") and log its calls.
class FaultyAdo {
 public:
  explicit FaultyAdo(const wchar_t* failures);
  ~FaultyAdo();
  FaultyAdo(const FaultyAdo&) = delete;
  FaultyAdo& operator=(const FaultyAdo&) = delete;
  std::string calls() const;  // one a line

 private:
  std::wstring log_;
};

}  // namespace qvr::tests
