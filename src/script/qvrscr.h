// The script runner.
#pragma once

#include <cstdint>
#include <vector>

#include "base/engine.h"
#include "base/text.h"
#include "base/trace.h"
#include "services/ado.h"

namespace qvr {

struct ScriptAccounts;

// The events. They must not throw.
struct ScriptEvents {
  virtual void Progreso(const Text& Mensaje) noexcept = 0;
  virtual void Terminado(bool Exito) noexcept = 0;

 protected:
  ~ScriptEvents() = default;
};

// Failures of commands go to the error-reporting service; the member answers false.
class QVRScr {
 public:
  static constexpr TextView kClass = u"QVRScr";  // in reports and the trace

  explicit QVRScr(ScriptEvents& events) noexcept;

  // Runs every command of the text on a connection of its own, in one transaction unless ID begins with
  // "EvitarTransaccion". True when the list ran to its end. Exactly one Terminado ends every run; the next run may
  // begin inside it, at most 32 deep. A call during a run of the same object (re-entrance) is refused with false and no
  // events. Removes the prefix of ID and sets an empty TextoMostrar to the default text; both are by-reference
  // arguments.
  bool EjecutarComandos(Text& ID, Engine MotorBD, TextView TextosComandos, TextView CadenaConexion,
                        Text& TextoMostrar) noexcept;

  // Runs one command on the caller's open connection (null: none); false after the failure was reported.
  bool Ejecutar1Comando(services::AdoConnection* Conexion, TextView TextoComando, Engine MotorBD) noexcept;

  // The text of all scripts "<NombreDefinicion><tag>?.cfc" of the folder in the order of their names, ready to be run:
  // placeholders replaced, with encryption (`Encri`, SQL Server). Empty when there is none or one cannot be read.
  // Exactly one Terminado, as for a run; refused in the same way during one.
  Text CargarDefinicion(TextView ID, Engine MotorBD, TextView Ruta, TextView NombreDefinicion,
                        const ScriptAccounts& accounts, bool Encri) noexcept;

  // The same for the scripts "<Aplicacion><from>a<to><tag>.cfc" from this version on; also empty when none begins with
  // exactly this version.
  Text CargarActualizacion(TextView ID, Engine MotorBD, TextView Ruta, TextView Aplicacion, std::int32_t VersionActual,
                           const ScriptAccounts& accounts, bool Encri) noexcept;

  // For a caller that runs out of memory while converting the arguments of one of these three: fires Terminado(False),
  // unless a run is under way.
  void end_unbegun() noexcept;

  // The engine's built-in administrator account; empty for an unknown engine.
  Text UsuarioSegunMotor(Engine MotorBD) const noexcept;

 private:
  bool busy() const noexcept;
  void finish(bool success) noexcept;
  bool refused_as_busy(SourcePlace place) const noexcept;
  template <class Body>
  Text load(Body&& body, SourcePlace place = SourcePlace::here()) noexcept;
  Text joined_files(TextView ID, TextView Ruta, const std::vector<Text>& names);
  Text prepared(Text text, Engine MotorBD, const ScriptAccounts& accounts, bool Encri);

  ScriptEvents& events_;
  bool running_ = false;
  int finishing_ = 0;  // runs whose Terminado has not returned
};

}  // namespace qvr
