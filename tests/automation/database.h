// Databases through the test ADO.
#pragma once

#include <string>

#include "automation/host.h"

namespace qvr::tests {

class AdoDatabase {
 public:
  explicit AdoDatabase(std::wstring connection_string) : connection_string_(std::move(connection_string)) {}

  const std::wstring& connection_string() const { return connection_string_; }
  // Runs a statement on a connection of its own.
  void run(const std::wstring& statement) const;
  // First column of the first row, asked on a connection of its own.
  std::string ask(const wchar_t* query) const;
  // An open connection, for members that take one.
  LateObject open() const;

 private:
  std::wstring connection_string_;
};

// Of SQLite, in a file of one test's own.
class Database : public AdoDatabase {
 public:
  Database();
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

 private:
  explicit Database(const std::wstring& file);

  std::wstring file_;
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
