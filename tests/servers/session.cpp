#include "servers/session.h"

#include "odbc/odbc_statement.h"
#include "session/value_convert.h"

namespace qvr::tests {
namespace {

constexpr std::int32_t kLoginTimeout = 10;  // seconds

}  // namespace

Session::Session(TextView odbc_string) { connection_.open(odbc_string, kLoginTimeout); }

void Session::run(TextView statement) { odbc::execute(connection_, statement, {}, 0); }

Text Session::ask(TextView query) { return to_text(odbc::execute(connection_, query, {}, 0).rows.at(0).at(0)); }

}  // namespace qvr::tests
