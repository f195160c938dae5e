#include "database.h"

namespace gestion {

Database::Database(const std::wstring& connection_string) : connection_(Object::create(L"ADODB.Connection")) {
  connection_.call(L"Open", {connection_string});
}

Database::~Database() {
  try {
    connection_.call(L"Close");
  } catch (const Failure&) {
    // It closes with its last reference as well.
  }
}

Value Database::first_value(const std::wstring& query) const {
  const Object rows = connection_.call(L"Execute", {query}).object();
  expect(!rows.call(L"EOF").truth(), L"There are no rows for " + query);
  const Object column = rows.call(L"Fields").object().call(L"Item", {0}).object();
  const Value value = column.call(L"Value");
  rows.call(L"Close");
  return value;
}

long Database::rows_of(const std::wstring& table) const {
  return first_value(L"SELECT Count(*) FROM [" + table + L"]").number();
}

}  // namespace gestion
