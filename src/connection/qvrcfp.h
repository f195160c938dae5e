// The connection parameters of an application: kept in a protected ".cfp" file, turned into connection strings.
#pragma once

#include <cstdint>

#include "frame/text.h"
#include "frame/value.h"

namespace qvr {

struct ConnectionParameters {
  std::int32_t MotorBD = 0;
  Text Archivo;
  Text Provider;
  Text DataSource;
  Text InitialCatalogOTablespace;
  Text UsuarioAdm;
  Text ClaveAdm;
  Text UsuarioCli;
  Text ClaveCli;
  Text OtrosParametros;
};

// Overwrites both passwords and empties all.
void wipe(ConnectionParameters& parameters) noexcept;

// No member fails: what cannot be done is false or an empty result.
class QVRcfp {
 public:
  QVRcfp() noexcept;
  ~QVRcfp();
  QVRcfp(const QVRcfp&) = delete;
  QVRcfp& operator=(const QVRcfp&) = delete;

  // Takes these parameters over as they are, the engine unchecked; Archivo stays as it was, whatever the argument has.
  bool Asignar(TextView ID, const ConnectionParameters& parameters) noexcept;

  // Loads folder R's file A (named without ".cfp"). False, and everything empty, when it is missing or damaged or was
  // written with another identification.
  bool Crear(TextView ID, TextView R, TextView A) noexcept;

  // Writes the parameters to that file. False when there are none or the file cannot be written.
  bool Guardar(TextView ID, TextView R, TextView A) noexcept;

  // OLE DB connection string with the administrator's account (the client's when there is no administrator) or the
  // client's; empty without parameters. Values are inserted verbatim.
  Text CadenaADO(TextView ID, bool Adm) const noexcept;
  Text CadenaADOUsuario(TextView Usuario, TextView Clave) const noexcept;

  // Typed text: "T" text, "N" number with ".", "F" date, "L" logical. Empty for another code or what does not convert.
  Value TextoAValor(TextView TipoTNFL, TextView Texto) const noexcept;
  Text ValorATexto(TextView TipoTNFL, const Value& Valor) const noexcept;

  const Text& Archivo() const noexcept { return fields_.Archivo; }
  const std::int32_t& MotorBD() const noexcept { return fields_.MotorBD; }
  const Text& Provider() const noexcept { return fields_.Provider; }
  const Text& DataSource() const noexcept { return fields_.DataSource; }
  const Text& InitialCatalogOTablespace() const noexcept { return fields_.InitialCatalogOTablespace; }
  const Text& UsuarioAdm() const noexcept { return fields_.UsuarioAdm; }
  const Text& UsuarioCli() const noexcept { return fields_.UsuarioCli; }
  const Text& OtrosParametros() const noexcept { return fields_.OtrosParametros; }
  const Text& ClaveAdm(TextView) const noexcept { return fields_.ClaveAdm; }
  const Text& ClaveCli(TextView) const noexcept { return fields_.ClaveCli; }

 private:
  void clear() noexcept;

  bool created_ = false;
  ConnectionParameters fields_;
};

}  // namespace qvr
