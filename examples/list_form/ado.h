// As much of ADO as the program needs, called by name: it takes no header and no type library of ADO to compile this.
#pragma once

#include <QVRlib21.hpp>

namespace list_form {

using qvrlib21::Value;

// A call that fails throws qvrlib21::Failure with what the object told of it.
class LateObject {
 public:
  explicit LateObject(const wchar_t* class_name);
  explicit LateObject(const Value& object);

  // Calls a method or reads a property.
  Value call(const wchar_t* member, const std::vector<Value>& arguments = {}) const;
  LateObject object(const wchar_t* member, const std::vector<Value>& arguments = {}) const;

 private:
  qvrlib21::detail::Reference<IDispatch> object_;
};

using Row = std::vector<Value>;

class Connection {
 public:
  explicit Connection(const std::wstring& connection_string);
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  void execute(const std::wstring& command) const;
  std::vector<Row> rows(const std::wstring& query, std::size_t columns) const;

 private:
  LateObject connection_{L"ADODB.Connection"};
};

}  // namespace list_form
