#include "odbc/odbc_statement.h"

#include <array>
#include <limits>
#include <memory>
#include <utility>

#include "odbc/odbc_api.h"
#include "odbc/odbc_date.h"
#include "odbc/odbc_parameters.h"

namespace qvr::odbc {
namespace {

using ReadColumn = Value (*)(const Handle& statement, SQLUSMALLINT column);

template <class T>
bool read_fixed(const Handle& statement, SQLUSMALLINT column, SQLSMALLINT c_type, T& into) {
  SQLLEN indicator = 0;
  statement.check(api().SQLGetData(statement.get(), column, c_type, &into, sizeof(into), &indicator));
  return indicator != SQL_NULL_DATA;
}

Value read_integer(const Handle& statement, SQLUSMALLINT column) {
  std::int64_t number = 0;
  if (!read_fixed(statement, column, SQL_C_SBIGINT, number)) return Null{};
  using Long = std::numeric_limits<std::int32_t>;
  if (number < Long::min() || number > Long::max()) return number;
  return static_cast<std::int32_t>(number);
}

Value read_number(const Handle& statement, SQLUSMALLINT column) {
  SQLDOUBLE number = 0;
  if (!read_fixed(statement, column, SQL_C_DOUBLE, number)) return Null{};
  return number;
}

Value read_truth(const Handle& statement, SQLUSMALLINT column) {
  SQLCHAR bit = 0;
  if (!read_fixed(statement, column, SQL_C_BIT, bit)) return Null{};
  return bit != 0;
}

Value read_date(const Handle& statement, SQLUSMALLINT column) {
  SQL_TIMESTAMP_STRUCT stamp{};
  if (!read_fixed(statement, column, SQL_C_TYPE_TIMESTAMP, stamp)) return Null{};
  return from_timestamp(stamp);
}

// SQLGetData returns a long text in chunks, each NUL-terminated.
Value read_text(const Handle& statement, SQLUSMALLINT column) {
  Text text;
  std::array<char16_t, 2048> piece{};
  for (;;) {
    SQLLEN rest = 0;
    const SQLRETURN result = api().SQLGetData(statement.get(), column, SQL_C_WCHAR, piece.data(), sizeof(piece), &rest);
    statement.check(result);
    if (result == SQL_NO_DATA) return text;
    if (rest == SQL_NULL_DATA) return Null{};
    const std::size_t most = piece.size() - 1;
    const std::size_t left = rest == SQL_NO_TOTAL ? most : static_cast<std::size_t>(rest) / sizeof(char16_t);
    text.append(piece.data(), std::min(left, most));
    if (result == SQL_SUCCESS) return text;
  }
}

ReadColumn reader_for(SQLSMALLINT sql_type) {
  switch (sql_type) {
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT: return read_integer;
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
    case SQL_DECIMAL:
    case SQL_NUMERIC: return read_number;
    case SQL_BIT: return read_truth;
    case SQL_TYPE_DATE:
    case SQL_TYPE_TIME:
    case SQL_TYPE_TIMESTAMP: return read_date;
    default: return read_text;
  }
}

ReadColumn describe(const Handle& statement, SQLUSMALLINT column, Text& name) {
  std::array<char16_t, 256> buffer{};
  SQLSMALLINT length = 0, sql_type = 0, digits = 0, nullable = 0;
  SQLULEN size = 0;
  statement.check(api().SQLDescribeColW(statement.get(), column, wide(buffer.data()), short_units(buffer.size()),
                                        &length, &sql_type, &size, &digits, &nullable));
  name = buffer.data();
  return reader_for(sql_type);
}

void read_rows(const Handle& statement, SQLUSMALLINT count, ResultSet& result) {
  std::vector<ReadColumn> readers;
  for (SQLUSMALLINT column = 1; column <= count; ++column) {
    readers.push_back(describe(statement, column, result.columns.emplace_back()));
  }
  for (;;) {
    const SQLRETURN fetched = api().SQLFetch(statement.get());
    statement.check(fetched);
    if (fetched == SQL_NO_DATA) return;
    std::vector<Value>& row = result.rows.emplace_back();
    for (SQLUSMALLINT column = 1; column <= count; ++column) {
      row.push_back(readers[column - 1u](statement, column));
    }
  }
}

void pass_over_rows(const Handle& statement) {
  SQLRETURN fetched = SQL_SUCCESS;
  do {
    fetched = api().SQLFetch(statement.get());
    statement.check(fetched);
  } while (fetched != SQL_NO_DATA);
}

// Of a batch the first result counts, as in ADO; but the server runs the other statements, and reports their errors,
// only while SQLMoreResults is called.
void run_to_the_end(const Handle& statement) {
  SQLRETURN more = SQL_SUCCESS;
  do {
    more = api().SQLMoreResults(statement.get());
    statement.check(more);
  } while (more != SQL_NO_DATA);
}

// Tells which statement is executed while it lives.
class Execution {
 public:
  Execution(UnderWay& under_way, const Statement& statement) : under_way_(under_way) { under_way_.begin(statement); }
  ~Execution() { under_way_.end(); }
  Execution(const Execution&) = delete;
  Execution& operator=(const Execution&) = delete;

 private:
  UnderWay& under_way_;
};

}  // namespace

ResultSet all_results(const Handle& statement, ResultRows rows) {
  ResultSet result;
  SQLSMALLINT columns = 0;
  statement.check(api().SQLNumResultCols(statement.get(), &columns));
  result.has_rows = columns > 0;
  if (result.has_rows && rows == ResultRows::PassedOver) {
    pass_over_rows(statement);
  } else if (result.has_rows) {
    read_rows(statement, static_cast<SQLUSMALLINT>(columns), result);
  } else {
    SQLLEN affected = -1;
    statement.check(api().SQLRowCount(statement.get(), &affected));
    result.affected = affected;
  }
  run_to_the_end(statement);
  return result;
}

ResultSet execute_bound(const Handle& statement, TextView text, ResultRows rows) {
  statement.check(api().SQLExecDirectW(statement.get(), wide(text), units(text)));
  return all_results(statement, rows);
}

ResultSet execute(Connection& connection, TextView text, const std::vector<Value>& parameters, std::int32_t timeout,
                  UnderWay& under_way, ResultRows rows) {
  std::unique_ptr<Statement> used = connection.statement(timeout);
  const Handle& statement = used->handle;
  const std::list<BoundValue> bound = bind(statement, parameters);
  ResultSet result;
  {
    const Execution execution(under_way, *used);
    result = execute_bound(statement, text, rows);
  }
  if (parameters.empty()) connection.keep(std::move(used));
  return result;
}

ResultSet execute(Connection& connection, TextView text, const std::vector<Value>& parameters, std::int32_t timeout) {
  UnderWay nobody_cancels;
  return execute(connection, text, parameters, timeout, nobody_cancels);
}

}  // namespace qvr::odbc
