// The behaviour of an ADO command, native or through automation.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "base/text.h"
#include "odbc/ado_session.h"

namespace qvr::odbc {

// Values of CommandTypeEnum.
namespace command_type {
inline constexpr std::int32_t kUnspecified = -1;
inline constexpr std::int32_t kText = 1;
inline constexpr std::int32_t kTable = 2;
inline constexpr std::int32_t kStoredProc = 4;
inline constexpr std::int32_t kUnknown = 8;
}  // namespace command_type

// The SQL for a command text of this type; `parameters` is the number of a procedure's arguments.
Text statement_for(std::int32_t type, TextView text, std::size_t parameters);

class AdoCommandState {
 public:
  const std::shared_ptr<AdoSession>& session() const { return session_; }
  void set_session(std::shared_ptr<AdoSession> session);  // an open one, or null for none
  std::int32_t type() const { return type_; }
  void set_type(std::int32_t type);
  const Text& text() const { return text_; }
  void set_text(TextView text) { text_ = Text(text); }
  std::int32_t timeout() const { return timeout_; }
  void set_timeout(std::int32_t seconds);  // 0: no limit

  AdoSession& open_session() const;  // error 3709 when there is none
  ResultSet execute(const std::vector<Value>& parameters);
  void execute_for_effect();  // without parameters, its rows passed over
  ResultSet execute_as(std::int32_t type, const std::vector<Value>& parameters);

 private:
  ResultSet executed(std::int32_t type, const std::vector<Value>& parameters, ResultRows rows);

  std::shared_ptr<AdoSession> session_;
  std::int32_t type_ = command_type::kUnknown;
  Text text_;
  std::int32_t timeout_ = 30;  // independent of the connection's
};

}  // namespace qvr::odbc
