// The members that write SQL: each names its failure policy and calls the dialect with this object's engine.
#include "base/failure.h"
#include "connection/qvrcfp.h"
#include "dialect/clauses.h"
#include "dialect/like_pattern.h"
#include "dialect/literals.h"
#include "dialect/procedure_call.h"
#include "dialect/statements.h"
#include "dialect/table_relations.h"
#include "session/failure_report.h"
#include "session/message_box.h"

namespace qvr {
namespace {

constexpr std::int32_t kParameterImproperlyDefined = 3708;

// Most members: the text, or the empty text on failure. Never "Null" instead of a value: engines reject a statement
// with a missing piece, but would store the Null.
template <class Body>
Text or_no_text(Body&& body, SourcePlace place = SourcePlace::here()) noexcept {
  return or_default(QVRcfp::kClass, Text(), std::forward<Body>(body), place);
}

}  // namespace

Text QVRcfp::ComillasSQL(TextView Cadena) const noexcept {
  return or_no_text([&] { return dialect::ComillasSQL(Cadena); });
}
Text QVRcfp::ExpSQL(const Value& Valor) const noexcept {
  return or_no_text([&] { return dialect::ExpSQL(fields_.MotorBD, Valor); });
}
Text QVRcfp::FechaSQL(const Value& Fecha) const noexcept {
  return or_no_text([&] { return dialect::FechaSQL(fields_.MotorBD, Fecha); });
}
Text QVRcfp::HoraSQL(const Value& Fecha) const noexcept {
  return or_no_text([&] { return dialect::HoraSQL(fields_.MotorBD, Fecha); });
}
Text QVRcfp::FechaHoraSQL(const Value& Fecha) const noexcept {
  return or_no_text([&] { return dialect::FechaHoraSQL(fields_.MotorBD, Fecha); });
}
Text QVRcfp::FechaSQLv(const Value& Fecha) const noexcept {
  return or_no_text([&] { return dialect::FechaSQLv(fields_.MotorBD, Fecha); });
}
Text QVRcfp::LogicoSQL(bool Valor) const noexcept {
  return or_no_text([&] { return dialect::LogicoSQL(fields_.MotorBD, Valor); });
}
Text QVRcfp::AhoraSQL() const noexcept {
  return or_no_text([&] { return dialect::AhoraSQL(fields_.MotorBD); });
}
Text QVRcfp::sqlEsTrue(TextView Campo) const noexcept {
  return or_no_text([&] { return dialect::sqlEsTrue(Campo); });
}
Text QVRcfp::sqlEsFalse(TextView Campo) const noexcept {
  return or_no_text([&] { return dialect::sqlEsFalse(Campo); });
}
Text QVRcfp::sqlFalse() const noexcept {
  return or_no_text([] { return dialect::sqlFalse(); });
}
Text QVRcfp::CadenaParaLikeSQL(TextView Cadena, bool ComodinInicial, bool ComodinFinal) const noexcept {
  return or_no_text([&] { return dialect::PatronLikeMotor(fields_.MotorBD, Cadena, ComodinInicial, ComodinFinal); });
}
Text QVRcfp::sqlFechaSistema() const noexcept {
  return or_no_text([&] { return dialect::sqlFechaSistema(fields_.MotorBD); });
}

Text QVRcfp::sqlTOP(std::int32_t Numero) const noexcept {
  return or_no_text([&] { return dialect::ClausulaTop(fields_.MotorBD, Numero); });
}
Text QVRcfp::sqlRowNum(std::int32_t Numero, bool AnteponerAndSiProcede) const noexcept {
  return or_no_text([&] { return dialect::sqlRowNum(fields_.MotorBD, Numero, AnteponerAndSiProcede); });
}
Text QVRcfp::sqlWhereRelacionTablas(const Value& mCampo1Campo2Relacion) const {
  return or_raised(kClass, Text(),
                   [&] { return dialect::CondicionWhereRelacionTablas(fields_.MotorBD, mCampo1Campo2Relacion); });
}
Text QVRcfp::sqlAlias(TextView Alias) const noexcept {
  return or_no_text([&] { return dialect::ClausulaAlias(fields_.MotorBD, Alias); });
}
Text QVRcfp::sqlConcatenar(const Value& Cadenas) const { return dialect::sqlConcatenar(fields_.MotorBD, Cadenas); }
Text QVRcfp::sqlEsNulo(TextView CampoComprobar, TextView CampoAlternativo) const noexcept {
  return or_no_text([&] { return dialect::sqlEsNulo(fields_.MotorBD, CampoComprobar, CampoAlternativo); });
}
Text QVRcfp::sqlCASE(TextView Campo, const Value& ParejasValoresMasOmision) const noexcept {
  return or_no_text([&] { return dialect::sqlCASE(fields_.MotorBD, Campo, ParejasValoresMasOmision); });
}

Text QVRcfp::SqlINSERT(TextView NombreTabla, const Value& MValores) const noexcept {
  return or_no_text([&] { return dialect::SqlINSERT(fields_.MotorBD, NombreTabla, MValores); });
}
Text QVRcfp::SqlUPDATE(TextView NombreTabla, TextView NombreCampoClave, std::int32_t Clave_cd, const Value& MCampos,
                       const Value& MValores) const noexcept {
  return or_no_text(
      [&] { return dialect::SqlUPDATE(fields_.MotorBD, NombreTabla, NombreCampoClave, Clave_cd, MCampos, MValores); });
}
Text QVRcfp::SqlInsert2(TextView NombreTabla, const Value& MCampos, const Value& MValores) const noexcept {
  return or_no_text([&] { return dialect::SqlInsert2(fields_.MotorBD, NombreTabla, MCampos, MValores); });
}
Text QVRcfp::SqlUpdate2(TextView NombreTabla, const Value& MCampos, const Value& MValores,
                        TextView Condicion) const noexcept {
  return or_no_text([&] { return dialect::SqlUpdate2(fields_.MotorBD, NombreTabla, MCampos, MValores, Condicion); });
}

bool QVRcfp::EjecutarProcSQL7(services::AdoConnection* Conexion, TextView NombreProc, Value& Parametros,
                              const dialect::GiveBack& give_back) const noexcept {
  return or_reported(
      kClass, false,
      [&] { return dialect::EjecutarProcSQL7(fields_.MotorBD, Conexion, NombreProc, Parametros, give_back); },
      [&](const FailureDetail& failure) {
        report_failure(failure, {u"EjecutarProc", Text(NombreProc)}, fields_.MotorBD, Conexion);
      });
}

bool QVRcfp::AgregarParametroADO(services::AdoCommand* Comando,
                                 const dialect::ParameterRequest& request) const noexcept {
  return or_reported(
      kClass, false,
      [&] {
        require_parameters();
        return dialect::AgregarParametroADO(fields_.MotorBD, Comando, request);
      },
      [&](const FailureDetail& failure) {
        if (failure.number != kParameterImproperlyDefined) return;
        const Text detail = join({u"AgregarParametroADO: ", request.Nombre, u"(", request.TipoSQLServer, u")"});
        show_failure(u"QVRcfp", detail, failure);
      });
}

}  // namespace qvr
