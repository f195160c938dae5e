#include "script/one_command.h"

#include "base/failure.h"
#include "script/qvrscr.h"
#include "session/failure_report.h"
#include "session/thread_state.h"

namespace qvr {
namespace {

void execute(const OneCommand& command, services::Ado& ado) {
  const auto created = ado.new_command();
  if (command.connection == nullptr) throw RuntimeFailure(failure_number::kObjectNotSet);
  created->set_active_connection(*command.connection);
  created->set_command_type(services::CommandType::Text);
  created->set_command_text(command.text);
  created->set_command_timeout(0);
  created->execute();
}

SourcePlace in_member(SourcePlace place = SourcePlace::here()) {
  place.function = "Ejecutar1Comando";
  return place;
}

}  // namespace

bool run_one_command(const OneCommand& command, services::Ado* ado) noexcept {
  return or_reported(
      QVRScr::kClass, false,
      [&] {
        if (ado != nullptr) return execute(command, *ado), true;
        return execute(command, *thread_state().new_ado()), true;
      },
      [&](const FailureDetail& failure) {
        report_failure(failure, {join({u"Ejecutar1Comando: ", command.text})}, command.motor, command.connection);
      },
      in_member());
}

}  // namespace qvr
