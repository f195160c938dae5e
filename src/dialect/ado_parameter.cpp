#include "dialect/ado_parameter.h"

#include <algorithm>
#include <iterator>

#include "base/failure.h"
#include "session/global.h"
#include "session/message_box.h"
#include "session/thread_state.h"

namespace qvr::dialect {
namespace {

using services::DataType;

struct Setting {
  DataType type;
  std::uint8_t precision = 0;           // 0: not set
  bool whole = false;                   // sets a scale of 0
  std::int32_t size_per_character = 0;  // 0: not set
};

struct TypeRow {
  TextView name;
  Setting sql_server, oracle;
};

// Oracle counts the size of texts in bytes, hence two for each character.
constexpr TypeRow kTypes[] = {
    {u"INT", {DataType::Integer, 10}, {DataType::Numeric, 15, true}},
    {u"BIT", {DataType::Boolean}, {DataType::Numeric, 15, true}},
    {u"REAL", {DataType::Single}, {DataType::Double, 15}},
    {u"NVARCHAR", {DataType::VarWChar, 0, false, 1}, {DataType::VarChar, 0, false, 2}},
    {u"DATETIME", {DataType::DbTimeStamp}, {DataType::DbTimeStamp}},
};

const Setting* setting_for(Engine engine, TextView type_name) {
  const auto* row = std::ranges::find_if(kTypes,
                                         [&](const TypeRow& each) { return equal_no_case(each.name, type_name); });
  if (row == std::end(kTypes)) return nullptr;
  return engine == Engine::Oracle ? &row->oracle : &row->sql_server;
}

std::int32_t size_of(const Setting& setting, std::int32_t width) {
  const std::int64_t size = std::int64_t{width} * setting.size_per_character;
  if (size > INT32_MAX || size < INT32_MIN) throw RuntimeFailure(failure_number::kOverflow);
  return static_cast<std::int32_t>(size);
}

void apply(const Setting& setting, std::int32_t width, services::AdoParameter& parameter) {
  parameter.set_type(setting.type);
  if (setting.precision != 0) parameter.set_precision(setting.precision);
  if (setting.whole) parameter.set_numeric_scale(0);
  if (setting.size_per_character != 0) parameter.set_size(size_of(setting, width));
}

bool unexpected_type(const ParameterRequest& request) {
  tell(message(MsgTipoInesperado, {{Text(request.Nombre), Text(request.TipoSQLServer)}}));
  return false;
}

}  // namespace

bool AgregarParametroADO(Engine engine, services::AdoCommand* Comando, const ParameterRequest& request) {
  if (request.Direction == kReturnValue && engine == Engine::Oracle) return true;
  const auto ado = thread_state().new_ado();
  const auto parameter = ado->new_parameter();
  if (engine == Engine::SqlServer || engine == Engine::Oracle) {
    const Setting* setting = setting_for(engine, request.TipoSQLServer);
    if (setting == nullptr) return unexpected_type(request);
    apply(*setting, request.Ancho, *parameter);
  }
  parameter->set_name(request.Nombre);
  parameter->set_direction(request.Direction);
  if (!request.Valor.is<Missing>()) parameter->set_value(request.Valor);
  if (Comando == nullptr) throw RuntimeFailure(failure_number::kObjectNotSet);
  Comando->append_parameter(*parameter);
  return true;
}

}  // namespace qvr::dialect
