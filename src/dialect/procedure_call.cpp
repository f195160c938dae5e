#include "dialect/procedure_call.h"

#include "base/failure.h"
#include "dialect/lists.h"
#include "session/thread_state.h"
#include "session/value_convert.h"

namespace qvr::dialect {
namespace {

// The ADO parameter of an element. Parameter 0 is the return value, so that element i is parameter i + 1.
std::int32_t parameter_of(const Array& list, std::size_t position) {
  const std::int64_t index = list.lower + static_cast<std::int64_t>(position) + 1;
  if (index > INT32_MAX) throw RuntimeFailure(failure_number::kOverflow);
  return static_cast<std::int32_t>(index);
}

// Traced only: these answers are no errors to be reported.
bool refuse(TextView reason, SourcePlace place = SourcePlace::here()) {
  trace({u"QVRcfp", place.function, failure_number::kInvalidArgument, reason, place});
  return false;
}

bool is_zero(const Value& returned) { return !returned.is<Null>() && to_number(returned) == 0; }

}  // namespace

bool EjecutarProcSQL7(Engine engine, services::AdoConnection* Conexion, TextView NombreProc, Value& Parametros,
                      const GiveBack& give_back) {
  if (engine != Engine::SqlServer) return refuse(u"The engine is not SQL Server");
  const auto ado = thread_state().new_ado();
  const auto command = ado->new_command();
  if (Conexion == nullptr) throw RuntimeFailure(failure_number::kObjectNotSet);
  command->set_active_connection(*Conexion);
  command->set_command_text(NombreProc);
  command->set_command_type(services::CommandType::StoredProcedure);
  command->refresh_parameters();
  Array list = list_in(Parametros);
  for (std::size_t i = 0; i < list.items.size(); ++i) {
    command->set_parameter_value(parameter_of(list, i), list.items[i]);
  }
  command->execute();
  if (!is_zero(command->parameter_value(0))) return refuse(u"The procedure did not return 0");
  for (std::size_t i = 0; i < list.items.size(); ++i) {
    list.items[i] = command->parameter_value(parameter_of(list, i));
  }
  Parametros = std::move(list);
  if (give_back) give_back(Parametros);
  return true;
}

}  // namespace qvr::dialect
