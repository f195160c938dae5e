#include "support/ado/procedure_binding.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <type_traits>

#include "base/number_text.h"
#include "odbc/odbc_date.h"

namespace qvr::tests {
namespace {

constexpr TextView kSource = u"ADODB.Command";

// Room for any number and any driver's form of a date.
constexpr std::size_t kLeastBytes = 128;
// The most characters of an output; a type without a limit tells more than memory has.
constexpr std::int32_t kMostCharacters = 1 << 20;

const DataType& known_type(std::int32_t number) {
  if (const DataType* type = data_type(number)) return *type;
  fail_ado(ado_number::kInvalidParamInfo, kSource);
}

// Decimal numbers travel as their digits, of which none is lost.
SQLSMALLINT c_type_of(VARTYPE held_as) {
  switch (held_as) {
    case VT_UI1: return SQL_C_UTINYINT;
    case VT_I2: return SQL_C_SSHORT;
    case VT_I4: return SQL_C_SLONG;
    case VT_I8: return SQL_C_SBIGINT;
    case VT_R4: return SQL_C_FLOAT;
    case VT_R8: return SQL_C_DOUBLE;
    case VT_BOOL: return SQL_C_BIT;
    case VT_DATE: return SQL_C_TYPE_TIMESTAMP;
    case VT_BSTR: return SQL_C_WCHAR;
    default: return SQL_C_CHAR;
  }
}

using Bytes = std::vector<unsigned char>;

template <class T>
Bytes bytes_of(const T& held) {
  Bytes bytes(sizeof(T));
  std::memcpy(bytes.data(), &held, sizeof(T));
  return bytes;
}

Bytes digits_of(const Text& number) { return Bytes(number.begin(), number.end()); }

struct Writer {
  const SQLSMALLINT c_type;

  Bytes operator()(bool held) const { return written<SQLCHAR>(SQL_C_BIT, held ? 1 : 0); }
  Bytes operator()(std::uint8_t held) const { return written(SQL_C_UTINYINT, held); }
  Bytes operator()(std::int16_t held) const { return written(SQL_C_SSHORT, held); }
  Bytes operator()(std::int32_t held) const { return written(SQL_C_SLONG, held); }
  Bytes operator()(std::int64_t held) const { return written(SQL_C_SBIGINT, held); }
  Bytes operator()(float held) const { return written(SQL_C_FLOAT, held); }
  Bytes operator()(double held) const { return written(SQL_C_DOUBLE, held); }
  Bytes operator()(Date held) const { return written(SQL_C_TYPE_TIMESTAMP, odbc::to_timestamp(held)); }
  Bytes operator()(Currency held) const { return only(SQL_C_CHAR, digits_of(shortest_number(held))); }
  Bytes operator()(const Decimal& held) const { return only(SQL_C_CHAR, digits_of(shortest_number(held))); }
  Bytes operator()(const Text& held) const {
    Bytes bytes(held.size() * sizeof(char16_t));
    std::memcpy(bytes.data(), held.data(), bytes.size());
    return only(SQL_C_WCHAR, std::move(bytes));
  }
  template <class T>
  Bytes operator()(const T&) const {
    fail_ado(ado_number::kDataConversion, kSource);
  }

 private:
  Bytes only(SQLSMALLINT as, Bytes bytes) const {
    if (as != c_type) fail_ado(ado_number::kDataConversion, kSource);
    return bytes;
  }
  template <class T>
  Bytes written(SQLSMALLINT as, const T& held) const {
    return only(as, bytes_of(held));
  }
};

Value decimal_of(const std::string& digits) {
  constexpr LCID kUnitedStates = 0x409;
  std::wstring wide(digits.begin(), digits.end());
  DECIMAL number{};
  if (FAILED(VarDecFromStr(wide.data(), kUnitedStates, 0, &number))) fail_ado(ado_number::kDataConversion, kSource);
  return Decimal{number.Hi32, number.Mid32, number.Lo32, number.scale, number.sign != 0};
}

}  // namespace

BoundArgument::BoundArgument(const ProcedureArgument& argument)
    : argument_(argument), type_(known_type(argument.type)), c_type_(c_type_of(type_.held_as)) {
  const Value& value = argument.value;
  const bool none = value.is<Null>() || value.is<Empty>() || value.is<Missing>();
  if (!none) {
    buffer_ = std::visit(Writer{c_type_}, value.storage());
    indicator_ = static_cast<SQLLEN>(buffer_.size());
  }
  // What an output had before is nothing to the driver; told Null, one takes it for a text.
  if (none && argument.direction != direction::kInput && argument.direction != direction::kInputOutput) indicator_ = 0;
  std::size_t room = std::max(kLeastBytes, buffer_.size() + sizeof(char16_t));
  if (argument.direction != direction::kInput && argument.size > 0) {
    room = std::max(room, (static_cast<std::size_t>(std::min(argument.size, kMostCharacters)) + 1) * sizeof(char16_t));
  }
  buffer_.resize(room);
}

SQLSMALLINT BoundArgument::driver_direction() const {
  switch (argument_.direction) {
    case direction::kInput: return SQL_PARAM_INPUT;
    case direction::kInputOutput: return SQL_PARAM_INPUT_OUTPUT;
    default: return SQL_PARAM_OUTPUT;
  }
}

SQLULEN BoundArgument::column_size() const {
  switch (type_.held_as) {
    case VT_BSTR: return (buffer_.size() - sizeof(char16_t)) / sizeof(char16_t);
    case VT_CY: return 19;
    case VT_DECIMAL: return 29;
    case VT_DATE: return type_.sql_type == SQL_TYPE_DATE ? 10 : type_.sql_type == SQL_TYPE_TIME ? 8 : 23;
    case VT_R8: return 15;
    default: return 10;
  }
}

SQLSMALLINT BoundArgument::digits() const {
  if (type_.sql_type == SQL_TYPE_TIMESTAMP) return 3;
  if (type_.held_as == VT_CY) return 4;
  if (const auto* decimal = argument_.value.as<Decimal>()) return decimal->scale;
  return type_.held_as == VT_DECIMAL ? static_cast<SQLSMALLINT>(argument_.scale) : SQLSMALLINT{0};
}

void BoundArgument::bind(const odbc::Handle& statement, SQLUSMALLINT position) {
  statement.check(odbc::api().SQLBindParameter(statement.get(), position, driver_direction(), c_type_, type_.sql_type,
                                               column_size(), digits(), buffer_.data(),
                                               static_cast<SQLLEN>(buffer_.size()), &indicator_));
}

// A value that is longer than its room is cut.
std::size_t BoundArgument::bytes_told() const {
  const std::size_t most = buffer_.size() - sizeof(char16_t);
  return indicator_ == SQL_NO_TOTAL ? most : std::min(most, static_cast<std::size_t>(indicator_));
}

template <class T>
T BoundArgument::fixed() const {
  T held{};
  std::memcpy(&held, buffer_.data(), sizeof(T));
  return held;
}

template <class Unit>
std::basic_string<Unit> BoundArgument::text() const {
  std::basic_string<Unit> units(bytes_told() / sizeof(Unit), Unit());
  std::memcpy(units.data(), buffer_.data(), units.size() * sizeof(Unit));
  return units;
}

Value BoundArgument::value() const {
  if (indicator_ == SQL_NULL_DATA) return Null{};
  switch (c_type_) {
    case SQL_C_UTINYINT: return fixed<std::uint8_t>();
    case SQL_C_SSHORT: return fixed<std::int16_t>();
    case SQL_C_SLONG: return fixed<std::int32_t>();
    case SQL_C_SBIGINT: return fixed<std::int64_t>();
    case SQL_C_FLOAT: return fixed<float>();
    case SQL_C_DOUBLE: return fixed<double>();
    case SQL_C_BIT: return fixed<SQLCHAR>() != 0;
    case SQL_C_TYPE_TIMESTAMP: return odbc::from_timestamp(fixed<SQL_TIMESTAMP_STRUCT>());
    case SQL_C_WCHAR: return text<char16_t>();
    default: return decimal_of(text<char>());
  }
}

}  // namespace qvr::tests
