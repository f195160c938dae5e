// The files of a definition or an update, by their names.
#pragma once

#include <cstdint>
#include <vector>

#include "base/engine.h"
#include "base/text.h"

namespace qvr {

// "JET", "SQL" or "ORA"; empty for an unknown engine.
TextView engine_tag(Engine MotorBD);

// The names in the folder that belong to the definition, in the order in which they run.
std::vector<Text> definition_files(TextView Ruta, TextView NombreDefinicion, Engine MotorBD);

// Whether the folder has an update from exactly this version.
bool has_update_from(TextView Ruta, TextView Aplicacion, std::int32_t version, Engine MotorBD);

// The names in the folder that update from this version on, in the order in which they run.
std::vector<Text> update_files(TextView Ruta, TextView Aplicacion, std::int32_t version, Engine MotorBD);

}  // namespace qvr
