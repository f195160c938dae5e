#include "script/qvrscr.h"

#include "base/failure.h"
#include "script/one_command.h"
#include "script/script_run.h"
#include "session/failure_report.h"
#include "session/global.h"
#include "session/thread_state.h"

namespace qvr {
namespace {

constexpr TextView kAvoidTransaction = u"EvitarTransaccion";
// Limits recursion: a host that always starts another run inside Terminado would overflow the stack.
constexpr int kDeepestChain = 32;
constexpr ByEngine kAdministrators{u"Admin", u"sa", u"System"};

}  // namespace

QVRScr::QVRScr(ScriptEvents& events) noexcept : events_(events) { InicializarComun(); }

bool QVRScr::EjecutarComandos(Text& ID, Engine MotorBD, TextView TextosComandos, TextView CadenaConexion,
                              Text& TextoMostrar) noexcept {
  if (refused_as_busy(SourcePlace::here())) return false;
  running_ = true;
  InicializarComun();
  const bool success = or_reported(
      kClass, false,
      [&] {
        if (TextoMostrar.empty()) TextoMostrar = message(MsgComandosEjecutados) + u": ";
        const bool avoid = starts_with_no_case(ID, kAvoidTransaction);
        if (avoid) ID.erase(0, kAvoidTransaction.size());
        return ScriptRun(events_, {MotorBD, TextosComandos, CadenaConexion, TextoMostrar, !avoid}).run();
      },
      [&](const FailureDetail& failure) { report_failure(failure, {u"EjecutarComandos"}, MotorBD, nullptr); });
  finish(success);
  return success;
}

bool QVRScr::busy() const noexcept { return running_ || finishing_ == kDeepestChain; }

bool QVRScr::refused_as_busy(SourcePlace place) const noexcept {
  if (!busy()) return false;
  trace({kClass, place.function, failure_number::kInvalidArgument, u"A run of this object is under way", place});
  return true;
}

// The run ends before the event is fired, so that the host can start the next one in its handler.
void QVRScr::finish(bool success) noexcept {
  running_ = false;
  ++finishing_;
  events_.Terminado(success);
  --finishing_;
}

void QVRScr::end_unbegun() noexcept {
  if (!busy()) finish(false);
}

bool QVRScr::Ejecutar1Comando(services::AdoConnection* Conexion, TextView TextoComando, Engine MotorBD) noexcept {
  return run_one_command({Conexion, TextoComando, MotorBD}, nullptr);
}

Text QVRScr::UsuarioSegunMotor(Engine MotorBD) const noexcept {
  return or_default(kClass, Text(), [&] { return Text(pick(MotorBD, kAdministrators).value_or(TextView())); });
}

}  // namespace qvr
