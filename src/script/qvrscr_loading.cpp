// The members that put scripts together.
#include "base/failure.h"
#include "script/qvrscr.h"
#include "script/script_files.h"
#include "script/script_preparation.h"
#include "session/thread_state.h"

namespace qvr {
namespace {

void require_files(const std::vector<Text>& names) {
  if (names.empty()) throw RuntimeFailure(failure_number::kFile, u"No script file has such a name");
}

}  // namespace

// On any failure the text is empty: a partial installation is worse than none.
template <class Body>
Text QVRScr::load(Body&& body, SourcePlace place) noexcept {
  if (refused_as_busy(place)) return {};
  running_ = true;
  Text text = or_default(kClass, Text(), std::forward<Body>(body), place);
  finish(!text.empty());
  return text;
}

Text QVRScr::joined_files(TextView ID, TextView Ruta, const std::vector<Text>& names) {
  std::vector<Text> texts;
  std::size_t size = 0;
  for (const Text& name : names) {
    events_.Progreso(join({u"Procesando ", name}));
    auto read = thread_state().script_reader().Leer(ID, join({Ruta, u"\\", name}));
    if (!read || read->empty()) throw RuntimeFailure(failure_number::kFile);
    size += read->size() + kLineBreak.size();
    texts.push_back(std::move(*read));
  }
  Text joined;
  joined.reserve(size);  // reserved at once: reallocation would need several times the memory
  for (const Text& each : texts) joined.append(each).append(kLineBreak);
  return joined;
}

Text QVRScr::prepared(Text text, Engine MotorBD, const ScriptAccounts& accounts, bool Encri) {
  if (Encri && MotorBD == Engine::SqlServer) text = with_encryption(std::move(text), events_);
  return with_accounts(std::move(text), MotorBD, accounts, events_);
}

Text QVRScr::CargarDefinicion(TextView ID, Engine MotorBD, TextView Ruta, TextView NombreDefinicion,
                              const ScriptAccounts& accounts, bool Encri) noexcept {
  return load([&] {
    const auto names = definition_files(Ruta, NombreDefinicion, MotorBD);
    Text text = prepared(joined_files(ID, Ruta, names), MotorBD, accounts, Encri);
    require_files(names);  // behind the steps, which the host sees all the same
    return text;
  });
}

Text QVRScr::CargarActualizacion(TextView ID, Engine MotorBD, TextView Ruta, TextView Aplicacion,
                                 std::int32_t VersionActual, const ScriptAccounts& accounts, bool Encri) noexcept {
  return load([&] {
    if (!has_update_from(Ruta, Aplicacion, VersionActual, MotorBD)) {
      throw RuntimeFailure(failure_number::kFile, u"No update script begins with this version");
    }
    const auto names = update_files(Ruta, Aplicacion, VersionActual, MotorBD);
    require_files(names);
    return prepared(joined_files(ID, Ruta, names), MotorBD, accounts, Encri);
  });
}

}  // namespace qvr
