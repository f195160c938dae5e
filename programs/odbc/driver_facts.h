// What a driver tells of its database.
#pragma once

#include <cstdint>
#include <optional>

#include "base/text.h"
#include "odbc/odbc.h"

namespace qvr::odbc {

// Empty where the driver tells nothing. `transactions` has ODBC's values of SQL_TXN_CAPABLE.
struct DriverFacts {
  Text product, version;
  std::optional<std::uint16_t> transactions;
};

namespace txn_capable {
inline constexpr std::uint16_t kNone = 0;
inline constexpr std::uint16_t kDmlOnly = 1;
inline constexpr std::uint16_t kAll = 2;
inline constexpr std::uint16_t kDdlCommits = 3;
inline constexpr std::uint16_t kDdlIgnored = 4;
}  // namespace txn_capable

DriverFacts driver_facts(const Handle& connection);

}  // namespace qvr::odbc
