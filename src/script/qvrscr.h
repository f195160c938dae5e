// The script runner.
#pragma once

#include <cstdint>

#include "frame/text.h"
#include "services/ado.h"

namespace qvr {

// What a run tells its host. Neither may throw.
struct ScriptEvents {
  virtual void Progreso(const Text& Mensaje) noexcept = 0;
  virtual void Terminado(bool Exito) noexcept = 0;

 protected:
  ~ScriptEvents() = default;
};

// Failures of commands go to the error-reporting service; the caller sees false.
class QVRScr {
 public:
  explicit QVRScr(ScriptEvents& events) noexcept;

  // Runs every command of the text on a connection of its own, in one transaction unless ID begins with
  // "EvitarTransaccion". True when the list ran to its end. Exactly one Terminado ends every run; a call on the same
  // object while a run of it is under way, its Terminado included, is refused with false and no events.
  // ID loses the prefix and an empty TextoMostrar becomes the default text, as the caller can see.
  bool EjecutarComandos(Text& ID, std::int32_t MotorBD, TextView TextosComandos, TextView CadenaConexion,
                        Text& TextoMostrar) noexcept;

  // Runs one command on the caller's open connection (null: none); false after the failure was reported.
  bool Ejecutar1Comando(services::AdoConnection* Conexion, TextView TextoComando, std::int32_t MotorBD) noexcept;

  // The engine's built-in administrator account; empty for an unknown engine.
  Text UsuarioSegunMotor(std::int32_t MotorBD) const noexcept;

 private:
  ScriptEvents& events_;
  bool running_ = false;
};

}  // namespace qvr
