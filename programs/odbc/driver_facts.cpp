#include "odbc/driver_facts.h"

#include <array>

#include "odbc/odbc_api.h"

namespace qvr::odbc {
namespace {

static_assert(txn_capable::kNone == SQL_TC_NONE && txn_capable::kDmlOnly == SQL_TC_DML &&
              txn_capable::kAll == SQL_TC_ALL && txn_capable::kDdlCommits == SQL_TC_DDL_COMMIT &&
              txn_capable::kDdlIgnored == SQL_TC_DDL_IGNORE);

Text text_fact(const Handle& connection, SQLUSMALLINT which) {
  std::array<char16_t, 256> buffer{};
  SQLSMALLINT bytes = 0;
  const auto room = static_cast<SQLSMALLINT>(sizeof(buffer) - sizeof(char16_t));  // an end, whatever the driver writes
  if (!SQL_SUCCEEDED(api().SQLGetInfoW(connection.get(), which, buffer.data(), room, &bytes))) return {};
  return buffer.data();
}

}  // namespace

DriverFacts driver_facts(const Handle& connection) {
  DriverFacts facts{text_fact(connection, SQL_DBMS_NAME), text_fact(connection, SQL_DBMS_VER), std::nullopt};
  SQLUSMALLINT transactions = 0;
  const SQLRETURN asked = api().SQLGetInfoW(connection.get(), SQL_TXN_CAPABLE, &transactions, sizeof(transactions),
                                            nullptr);
  if (SQL_SUCCEEDED(asked)) facts.transactions = transactions;
  return facts;
}

}  // namespace qvr::odbc
