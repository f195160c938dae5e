#include "frame/global.h"

#include "frame/failure.h"
#include "frame/number_text.h"
#include "frame/thread_state.h"
#include "frame/value_convert.h"

namespace qvr {
namespace {

double read_default_language(ThreadState& state) {
  const Text system = decimal(state.idioma.IdiomaDesdeSOP());
  const Text setting = state.platform().settings.read(u"QVR", u"Idioma", u"IdiomaOmision", system);
  return or_default(0.0, [&] { return number_prefix(setting); });
}

}  // namespace

void InicializarComun() noexcept {
  or_default(false, [] {
    ThreadState& state = thread_state();
    if (state.idioma.Creado()) return true;
    CtesMensajes(state.mensajes);
    const std::int32_t omision = IdiomaOmision();
    std::vector<Value> carried;
    for (std::int32_t number = 0; number < language::kCarried; ++number) carried.emplace_back(number);
    return state.idioma.CargarEnMemoria(omision, std::move(carried), state.mensajes);
  });
}

std::int32_t IdiomaOmision() noexcept {
  return or_default(language::kSpanish, [] {
    ThreadState& state = thread_state();
    if (!state.idioma_omision) state.idioma_omision = read_default_language(state);
    return to_long(*state.idioma_omision);
  });
}

bool ExisteArchivo(TextView path, std::int32_t attributes) noexcept {
  return or_default(false,
                    [&] { return !path.empty() && thread_state().platform().files.any_entry(path, attributes); });
}

}  // namespace qvr
