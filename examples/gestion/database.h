// The business's own look into its database, past the library.
#pragma once

#include <string>
#include <vector>

#include "automation.h"

namespace gestion {

class Database {
 public:
  explicit Database(const std::wstring& connection_string);
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  void execute(const std::wstring& command) const { connection_.call(L"Execute", {command}); }
  // The first column of the first row.
  Value first_value(const std::wstring& query) const;
  // Hands over each row as its columns' texts; an empty text stands for Null.
  template <class Use>
  long each_row(const std::wstring& query, int columns, Use&& use) const;
  long rows_of(const std::wstring& table) const;

 private:
  Object connection_;
};

template <class Use>
long Database::each_row(const std::wstring& query, int columns, Use&& use) const {
  const Object rows = connection_.call(L"Execute", {query}).object();
  long count = 0;
  for (; !rows.call(L"EOF").truth(); rows.call(L"MoveNext"), ++count) {
    const Object fields = rows.call(L"Fields").object();
    std::vector<std::wstring> texts;
    for (int column = 0; column < columns; ++column) {
      const Value value = fields.call(L"Item", {column}).object().call(L"Value");
      texts.push_back(value.variant().vt == VT_NULL ? std::wstring() : value.text());
    }
    use(texts);
  }
  rows.call(L"Close");
  return count;
}

}  // namespace gestion
