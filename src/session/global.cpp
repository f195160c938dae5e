#include "session/global.h"

#include "base/failure.h"
#include "base/number_text.h"
#include "session/thread_state.h"
#include "session/value_convert.h"

namespace qvr {
namespace {

constexpr TextView kOwner = u"Global";

double read_default_language(ThreadState& state) {
  const Text system = decimal(state.idioma.IdiomaDesdeSOP());
  return number_prefix(state.platform().system.setting(u"QVR", u"Idioma", u"IdiomaOmision", system));
}

}  // namespace

void InicializarComun() noexcept {
  or_default(kOwner, false, [] {
    ThreadState& state = thread_state();
    if (state.idioma.Creado()) return true;
    CtesMensajes(state.mensajes);
    std::vector<Value> carried;
    for (std::int32_t number = 0; number < language::kCarried; ++number) carried.emplace_back(number);
    return state.idioma.CargarEnMemoria(IdiomaOmision(), std::move(carried), state.mensajes);
  });
}

std::int32_t IdiomaOmision() noexcept {
  return or_default(kOwner, language::kSpanish, [] {
    ThreadState& state = thread_state();
    if (!state.idioma_omision) state.idioma_omision = read_default_language(state);
    return to_long(*state.idioma_omision);
  });
}

Text message(Message row, std::span<const Value> arguments) {
  InicializarComun();
  return thread_state().idioma.filled_text_of(row, arguments);
}

bool ExisteArchivo(TextView path, std::int32_t attributes) noexcept {
  return or_default(kOwner, false,
                    [&] { return !path.empty() && thread_state().platform().files.any_entry(path, attributes); });
}

}  // namespace qvr
