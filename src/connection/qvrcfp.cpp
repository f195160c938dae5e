#include "connection/qvrcfp.h"

#include "base/failure.h"
#include "connection/cfp_file.h"
#include "connection/connection_string.h"
#include "connection/typed_text.h"
#include "session/global.h"
#include "session/thread_state.h"

namespace qvr {

void wipe(ConnectionParameters& parameters) noexcept {
  wipe(parameters.ClaveAdm);
  wipe(parameters.ClaveCli);
  parameters = ConnectionParameters();
}

QVRcfp::QVRcfp() noexcept { InicializarComun(); }

QVRcfp::~QVRcfp() { clear(); }

void QVRcfp::clear() noexcept {
  wipe(fields_);
  created_ = false;
}

void QVRcfp::require_parameters() const {
  if (!created_) throw RuntimeFailure(failure_number::kObjectNotSet, u"No connection parameters were read or assigned");
}

bool QVRcfp::Asignar(TextView, const ConnectionParameters& parameters) noexcept {
  return or_default(kClass, false, [&] {
    ConnectionParameters copy = parameters;
    copy.Archivo = fields_.Archivo;
    std::swap(fields_, copy);
    wipe(copy);
    return created_ = true;
  });
}

bool QVRcfp::Crear(TextView ID, TextView R, TextView A) noexcept {
  const bool done = or_default(kClass, false, [&] {
    // Copied first: the arguments may refer to this object's own fields, which are cleared next.
    const Text key(ID), path = cfp_path(R, A);
    Text name(A);
    clear();
    ThreadState& state = thread_state();
    const auto file = state.platform().files.open(path);
    fields_ = read_cfp(*file, state.platform().files, state.text_protection(), key);
    fields_.Archivo = std::move(name);
    return created_ = true;
  });
  if (!done) clear();
  return done;
}

bool QVRcfp::Guardar(TextView ID, TextView R, TextView A) noexcept {
  return or_default(kClass, false, [&] {
    require_parameters();
    ThreadState& state = thread_state();
    Files& files = state.platform().files;
    // Before the file is created: deriving a key takes a moment, during which no other saver has to wait, and a
    // protection that fails leaves the existing file as it is.
    const std::string bytes = cfp_bytes(fields_, files, state.text_protection(), ID);
    const auto file = files.create(cfp_path(R, A));
    if (fields_.Archivo.empty()) fields_.Archivo = A;
    file->write(bytes);
    file->close();
    return true;
  });
}

Text QVRcfp::CadenaADO(TextView, bool Adm) const noexcept {
  return or_built_so_far(kClass, [&](Text& built) {
    require_parameters();
    const bool administrator = Adm && !fields_.UsuarioAdm.empty();
    built = connection_string(fields_, administrator ? Account{fields_.UsuarioAdm, fields_.ClaveAdm}
                                                     : Account{fields_.UsuarioCli, fields_.ClaveCli});
  });
}

Text QVRcfp::CadenaADOUsuario(TextView Usuario, TextView Clave) const noexcept {
  return or_built_so_far(kClass, [&](Text& built) {
    require_parameters();
    built = connection_string(fields_, {Usuario, Clave});
  });
}

Value QVRcfp::TextoAValor(TextView TipoTNFL, TextView Texto) const noexcept {
  return or_default(kClass, Value(), [&] { return value_from_typed_text(TipoTNFL, Texto); });
}

Text QVRcfp::ValorATexto(TextView TipoTNFL, const Value& Valor) const noexcept {
  return or_default(kClass, Text(), [&] { return typed_text_from_value(TipoTNFL, Valor); });
}

}  // namespace qvr
