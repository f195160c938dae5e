#include "script/script_files.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/wildcards.h"
#include "session/global.h"
#include "session/thread_state.h"

namespace qvr {
namespace {

constexpr ByEngine kTags{u"JET", u"SQL", u"ORA"};
constexpr std::size_t kVersionDigits = 5;

std::vector<Text> sorted_names(TextView Ruta, TextView pattern) {
  std::vector<Text> names = thread_state().platform().files.names(Ruta);
  // FindFirstFile lets "?" match no character at the end of a name.
  std::erase_if(names, [&](const Text& name) { return !matches_wildcards(name, pattern); });
  std::ranges::sort(names, less_no_case);
  return names;
}

}  // namespace

TextView engine_tag(Engine MotorBD) { return pick(MotorBD, kTags).value_or(TextView()); }

std::vector<Text> definition_files(TextView Ruta, TextView NombreDefinicion, Engine MotorBD) {
  return sorted_names(Ruta, join({NombreDefinicion, engine_tag(MotorBD), u"?.cfc"}));
}

bool has_update_from(TextView Ruta, TextView Aplicacion, std::int32_t version, Engine MotorBD) {
  const Text pattern = join({Aplicacion, decimal(version), u"a?????", engine_tag(MotorBD), u".cfc"});
  constexpr std::int32_t kHiddenAndSystemFiles = 2 | 4;  // attributes: those are files like others
  // The folder is listed only if the system's wildcard search finds something, which may match less than our pattern.
  return ExisteArchivo(join({Ruta, u"\\", pattern}), kHiddenAndSystemFiles) && !sorted_names(Ruta, pattern).empty();
}

std::vector<Text> update_files(TextView Ruta, TextView Aplicacion, std::int32_t version, Engine MotorBD) {
  std::vector<Text> names = sorted_names(Ruta, join({Aplicacion, u"?????a?????", engine_tag(MotorBD), u".cfc"}));
  std::erase_if(names, [&](const Text& name) {
    return number_prefix(TextView(name).substr(std::min(Aplicacion.size(), name.size()), kVersionDigits)) < version;
  });
  return names;
}

}  // namespace qvr
