#include "odbc/ado_failure.h"

#include <algorithm>
#include <array>

namespace qvr::odbc {
namespace {

struct Description {
  std::uint16_t number;
  TextView text;
};

constexpr std::array kDescriptions = {
    Description{ado_number::kInvalidArgument, u"An argument has a wrong type, is out of range or contradicts another."},
    Description{ado_number::kNoCurrentRecord, u"There is no current record."},
    Description{ado_number::kInTransaction, u"The connection cannot be closed while it is in a transaction."},
    Description{ado_number::kFeatureNotAvailable, u"The object or its provider cannot do this."},
    Description{ado_number::kItemNotFound, u"The collection has no item of this name or position."},
    Description{ado_number::kObjectInCollection, u"The collection already has this object."},
    Description{ado_number::kDataConversion, u"The value does not fit the type it is meant for."},
    Description{ado_number::kObjectClosed, u"The object is closed."},
    Description{ado_number::kObjectOpen, u"The object is open."},
    Description{ado_number::kProviderNotFound, u"There is no such provider."},
    Description{ado_number::kInvalidParamInfo, u"The parameter is not defined completely or not consistently."},
    Description{ado_number::kInvalidConnection, u"The connection is closed, or not valid for this operation."},
};

struct StateResult {
  TextView state;  // SQLSTATE, or its class
  std::int32_t result;
};

// The first entry that is a prefix of the SQLSTATE counts.
constexpr std::array kStateResults = {
    StateResult{u"22001", hresult::kOverflow},     StateResult{u"22003", hresult::kOverflow},
    StateResult{u"22", hresult::kCannotConvert},   StateResult{u"23", hresult::kIntegrity},
    StateResult{u"28", hresult::kLoginFailed},     StateResult{u"37", hresult::kErrorsInCommand},
    StateResult{u"42S01", hresult::kTableExists},  StateResult{u"42S02", hresult::kNoTable},
    StateResult{u"42", hresult::kErrorsInCommand}, StateResult{u"HYT00", hresult::kTimeout},
};

}  // namespace

void fail_ado(std::uint16_t number, TextView source) {
  const auto found = std::find_if(kDescriptions.begin(), kDescriptions.end(),
                                  [&](const Description& each) { return each.number == number; });
  FailureDetail detail;
  detail.number = hresult::of(0x800A0000u | number);
  detail.description = found == kDescriptions.end() ? Text(u"ADO error.") : Text(found->text);
  detail.source = Text(source);
  throw RuntimeFailure(std::move(detail));
}

void fail_provider(std::int32_t result, TextView description) {
  throw RuntimeFailure(FailureDetail{result, Text(description), Text(kProviderSource)});
}

std::int32_t result_of_sql_state(TextView sql_state, std::int32_t otherwise) {
  for (const StateResult& each : kStateResults) {
    if (sql_state.substr(0, each.state.size()) == each.state) return each.result;
  }
  return otherwise;
}

std::vector<services::AdoError> provider_errors(std::vector<services::AdoError> records, std::int32_t otherwise) {
  for (services::AdoError& each : records) {
    each.number = result_of_sql_state(each.sql_state, otherwise);
    each.source = Text(kProviderSource);
  }
  return records;
}

}  // namespace qvr::odbc
