#include "odbc/ado_command_state.h"

#include <algorithm>
#include <array>
#include <utility>

#include "odbc/ado_failure.h"

namespace qvr::odbc {
namespace {

constexpr TextView kSource = u"ADODB.Command";

constexpr std::array kTypes = {command_type::kUnspecified, command_type::kText, command_type::kTable,
                               command_type::kStoredProc, command_type::kUnknown};

}  // namespace

Text statement_for(std::int32_t type, TextView text, std::size_t parameters) {
  if (type == command_type::kTable) return join({u"select * from ", text});
  if (type != command_type::kStoredProc) return Text(text);
  Text marks;
  for (std::size_t each = 0; each < parameters; ++each) marks += each == 0 ? u"?" : u", ?";
  return join({u"{ call ", text, parameters == 0 ? u"" : u"(", marks, parameters == 0 ? u" }" : u") }"});
}

void AdoCommandState::set_session(std::shared_ptr<AdoSession> session) {
  if (session != nullptr && !session->is_open()) fail_ado(ado_number::kInvalidConnection, kSource);
  session_ = std::move(session);
}

void AdoCommandState::set_type(std::int32_t type) {
  if (std::find(kTypes.begin(), kTypes.end(), type) == kTypes.end()) fail_ado(ado_number::kInvalidArgument, kSource);
  type_ = type;
}

void AdoCommandState::set_timeout(std::int32_t seconds) {
  if (seconds < 0) fail_ado(ado_number::kInvalidArgument, kSource);
  timeout_ = seconds;
}

AdoSession& AdoCommandState::open_session() const {
  if (session_ == nullptr || !session_->is_open()) fail_ado(ado_number::kInvalidConnection, kSource);
  return *session_;
}

ResultSet AdoCommandState::execute(const std::vector<Value>& parameters) { return execute_as(type_, parameters); }

void AdoCommandState::execute_for_effect() { executed(type_, {}, ResultRows::PassedOver); }

ResultSet AdoCommandState::execute_as(std::int32_t type, const std::vector<Value>& parameters) {
  return executed(type, parameters, ResultRows::Kept);
}

ResultSet AdoCommandState::executed(std::int32_t type, const std::vector<Value>& parameters, ResultRows rows) {
  AdoSession& session = open_session();
  if (text_.empty()) fail_provider(hresult::kNoCommandText, u"The command has no text.");
  return session.execute(statement_for(type, text_, parameters.size()), parameters, timeout_, rows);
}

}  // namespace qvr::odbc
