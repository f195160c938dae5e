#include "support/ado/data_type.h"

#include <algorithm>
#include <iterator>

namespace qvr::tests {
namespace {

constexpr DataType kDataTypes[] = {
    {2, VT_I2, SQL_SMALLINT},
    {3, VT_I4, SQL_INTEGER},
    {4, VT_R4, SQL_REAL},
    {5, VT_R8, SQL_DOUBLE},
    {6, VT_CY, SQL_NUMERIC},
    {7, VT_DATE, SQL_TYPE_TIMESTAMP},
    {8, VT_BSTR, SQL_WVARCHAR},
    {11, VT_BOOL, SQL_BIT},
    {14, VT_DECIMAL, SQL_DECIMAL},
    {16, VT_I2, SQL_TINYINT},
    {17, VT_UI1, SQL_TINYINT},
    {18, VT_I4, SQL_INTEGER},
    {19, VT_I8, SQL_BIGINT},
    {20, VT_I8, SQL_BIGINT},
    {129, VT_BSTR, SQL_CHAR, true},
    {130, VT_BSTR, SQL_WCHAR, true},
    {131, VT_DECIMAL, SQL_NUMERIC},
    {133, VT_DATE, SQL_TYPE_DATE},
    {134, VT_DATE, SQL_TYPE_TIME},
    {135, VT_DATE, SQL_TYPE_TIMESTAMP},
    {200, VT_BSTR, SQL_VARCHAR, true},
    {201, VT_BSTR, SQL_LONGVARCHAR, true},
    {202, VT_BSTR, SQL_WVARCHAR, true},
    {203, VT_BSTR, SQL_WLONGVARCHAR, true},
};

struct Described {
  SQLSMALLINT sql_type;
  std::int32_t number;
};

constexpr Described kDescribed[] = {
    {SQL_BIT, 11},
    {SQL_TINYINT, 16},
    {SQL_SMALLINT, 2},
    {SQL_INTEGER, 3},
    {SQL_BIGINT, 20},
    {SQL_REAL, 4},
    {SQL_FLOAT, 5},
    {SQL_DOUBLE, 5},
    {SQL_DECIMAL, 131},
    {SQL_NUMERIC, 131},
    {SQL_CHAR, 129},
    {SQL_VARCHAR, 200},
    {SQL_WCHAR, 130},
    {SQL_WVARCHAR, 202},
    {SQL_LONGVARCHAR, 201},
    {SQL_WLONGVARCHAR, 203},
    {SQL_TYPE_DATE, 133},
    {SQL_TYPE_TIME, 134},
    {SQL_TYPE_TIMESTAMP, 135},
    {SQL_BINARY, 128},
    {SQL_VARBINARY, 204},
    {SQL_LONGVARBINARY, 205},
    {SQL_GUID, 72},
};

constexpr std::int32_t kVariant = 12;

}  // namespace

const DataType* data_type(std::int32_t number) {
  const auto* found = std::ranges::find(kDataTypes, number, &DataType::number);
  return found == std::end(kDataTypes) ? nullptr : found;
}

std::int32_t described_type(SQLSMALLINT sql_type) {
  const auto* found = std::ranges::find(kDescribed, sql_type, &Described::sql_type);
  return found == std::end(kDescribed) ? kVariant : found->number;
}

}  // namespace qvr::tests
