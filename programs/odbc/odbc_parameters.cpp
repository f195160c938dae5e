#include "odbc/odbc_parameters.h"

#include <cstring>
#include <type_traits>

#include "base/number_text.h"
#include "odbc/ado_failure.h"
#include "odbc/odbc_date.h"

namespace qvr::odbc {
namespace {

template <class T>
BoundValue fixed(SQLSMALLINT c_type, SQLSMALLINT sql_type, SQLULEN column_size, const T& value) {
  BoundValue bound;
  bound.c_type = c_type;
  bound.sql_type = sql_type;
  bound.column_size = column_size;
  bound.indicator = 0;
  bound.bytes.resize(sizeof(T));
  std::memcpy(bound.bytes.data(), &value, sizeof(T));
  return bound;
}

BoundValue text(TextView value) {
  BoundValue bound;
  bound.c_type = SQL_C_WCHAR;
  bound.sql_type = SQL_WVARCHAR;
  bound.column_size = value.empty() ? 1 : value.size();
  bound.indicator = static_cast<SQLLEN>(value.size() * sizeof(char16_t));
  bound.bytes.resize((value.size() + 1) * sizeof(char16_t));  // never empty, NUL-terminated
  std::memcpy(bound.bytes.data(), value.data(), value.size() * sizeof(char16_t));
  return bound;
}

BoundValue number(double value) { return fixed<SQLDOUBLE>(SQL_C_DOUBLE, SQL_DOUBLE, 15, value); }

// One overload for each supported type; the template rejects the others.
struct Binder {
  BoundValue operator()(Null) const { return {}; }
  BoundValue operator()(Empty) const { return {}; }
  BoundValue operator()(bool value) const {
    return fixed<SQLCHAR>(SQL_C_BIT, SQL_BIT, 1, static_cast<SQLCHAR>(value ? 1 : 0));
  }
  BoundValue operator()(float value) const { return number(static_cast<double>(value)); }
  BoundValue operator()(double value) const { return number(value); }
  BoundValue operator()(std::uint64_t value) const { return number(static_cast<double>(value)); }
  BoundValue operator()(Currency value) const { return number(number_of(value)); }
  BoundValue operator()(const Decimal& value) const { return number(number_of(value)); }
  BoundValue operator()(const Text& value) const { return text(value); }
  BoundValue operator()(Date value) const {
    BoundValue bound = fixed<SQL_TIMESTAMP_STRUCT>(SQL_C_TYPE_TIMESTAMP, SQL_TYPE_TIMESTAMP, 23, to_timestamp(value));
    bound.decimal_digits = 3;
    return bound;
  }
  template <class T>
  BoundValue operator()(const T& value) const {
    if constexpr (std::is_integral_v<T> && sizeof(T) <= sizeof(SQLINTEGER)) {
      return fixed<SQLINTEGER>(SQL_C_SLONG, SQL_INTEGER, 10, static_cast<SQLINTEGER>(value));
    } else if constexpr (std::is_integral_v<T>) {
      return fixed<std::int64_t>(SQL_C_SBIGINT, SQL_BIGINT, 19, value);
    } else {
      fail_ado(ado_number::kInvalidArgument, u"ADODB.Command");
    }
  }
};

}  // namespace

BoundValue bound_value(const Value& value) { return std::visit(Binder{}, value.storage()); }

std::list<BoundValue> bind(const Handle& statement, const std::vector<Value>& values) {
  std::list<BoundValue> bound;
  SQLUSMALLINT position = 0;
  for (const Value& each : values) {
    BoundValue& last = bound.emplace_back(bound_value(each));
    const SQLPOINTER data = last.bytes.empty() ? nullptr : last.bytes.data();
    statement.check(api().SQLBindParameter(statement.get(), ++position, SQL_PARAM_INPUT, last.c_type, last.sql_type,
                                           last.column_size, last.decimal_digits, data,
                                           static_cast<SQLLEN>(last.bytes.size()), &last.indicator));
  }
  return bound;
}

}  // namespace qvr::odbc
