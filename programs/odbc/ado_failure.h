// Errors of ADO and of the provider.
#pragma once

#include <cstdint>
#include <vector>

#include "base/failure.h"
#include "services/ado.h"

namespace qvr::odbc {

// Documented error numbers of ADO; a caller receives them as 0x800A0000 | number.
namespace ado_number {
inline constexpr std::uint16_t kInvalidArgument = 3001;
inline constexpr std::uint16_t kNoCurrentRecord = 3021;
inline constexpr std::uint16_t kInTransaction = 3246;
inline constexpr std::uint16_t kFeatureNotAvailable = 3251;
inline constexpr std::uint16_t kItemNotFound = 3265;
inline constexpr std::uint16_t kObjectInCollection = 3367;
inline constexpr std::uint16_t kDataConversion = 3421;
inline constexpr std::uint16_t kObjectClosed = 3704;
inline constexpr std::uint16_t kObjectOpen = 3705;
inline constexpr std::uint16_t kProviderNotFound = 3706;
inline constexpr std::uint16_t kInvalidParamInfo = 3708;
inline constexpr std::uint16_t kInvalidConnection = 3709;
}  // namespace ado_number

// Results of OLE DB and of transactions.
namespace hresult {
constexpr std::int32_t of(std::uint32_t bits) { return static_cast<std::int32_t>(bits); }
inline constexpr std::int32_t kFail = of(0x80004005);
inline constexpr std::int32_t kCannotConvert = of(0x80040E07);
inline constexpr std::int32_t kNoCommandText = of(0x80040E0C);
inline constexpr std::int32_t kErrorsInCommand = of(0x80040E14);
inline constexpr std::int32_t kIntegrity = of(0x80040E2F);
inline constexpr std::int32_t kTimeout = of(0x80040E31);
inline constexpr std::int32_t kNoTable = of(0x80040E37);
inline constexpr std::int32_t kTableExists = of(0x80040E3F);
inline constexpr std::int32_t kLoginFailed = of(0x80040E4D);
inline constexpr std::int32_t kParametersUnavailable = of(0x80040E51);
inline constexpr std::int32_t kOverflow = of(0x80040E57);
inline constexpr std::int32_t kBadInitString = of(0x80040E73);
inline constexpr std::int32_t kNoTransaction = of(0x8004D00E);
inline constexpr std::int32_t kTransactionExists = of(0x8004D013);
}  // namespace hresult

inline constexpr TextView kProviderSource = u"Microsoft OLE DB Provider for ODBC Drivers";

// Throws an error of ADO itself; `source` is the class, such as "ADODB.Connection".
[[noreturn]] void fail_ado(std::uint16_t number, TextView source);

// Throws an error of the provider.
[[noreturn]] void fail_provider(std::int32_t result, TextView description);

// The HRESULT for an SQLSTATE; `otherwise` for all others.
std::int32_t result_of_sql_state(TextView sql_state, std::int32_t otherwise);

// The diagnostic records as entries of an Errors collection.
std::vector<services::AdoError> provider_errors(std::vector<services::AdoError> records, std::int32_t otherwise);

}  // namespace qvr::odbc
