// Connections of the program's own, over ODBC.
#include "odbc/ado_session.h"
#include "qvrscript/system.h"

namespace qvr::script_tool {
namespace {

Ddl ddl_of(std::optional<std::uint16_t> transactions) {
  using namespace odbc::txn_capable;
  if (!transactions) return Ddl::Unknown;
  switch (*transactions) {
    case kAll: return Ddl::RolledBack;
    case kDmlOnly:
    case kDdlIgnored: return Ddl::Refused;
    case kNone:  // each statement stays as it is
    case kDdlCommits: return Ddl::Commits;
    default: return Ddl::Unknown;
  }
}

class OdbcDatabase final : public Database {
 public:
  OdbcDatabase(TextView connection_string, std::int32_t connect_timeout) {
    session_.set_connection_timeout(connect_timeout);
    session_.set_connection_string(connection_string);
    try {
      session_.open();
    } catch (const RuntimeFailure& failure) {
      throw OpenFailure(failure.detail(), session_.errors());
    }
  }

  DatabaseFacts facts() override {
    odbc::DriverFacts told = session_.driver_facts();
    return {std::move(told.product), std::move(told.version), ddl_of(told.transactions)};
  }

  std::vector<std::vector<Value>> rows(TextView query) override {
    return session_.execute(query, {}, session_.command_timeout()).rows;
  }

  std::vector<services::AdoError> errors() override { return session_.errors(); }

 private:
  odbc::AdoSession session_;
};

}  // namespace

std::unique_ptr<Database> open_database(TextView connection_string, std::int32_t connect_timeout) {
  return std::make_unique<OdbcDatabase>(connection_string, connect_timeout);
}

}  // namespace qvr::script_tool
