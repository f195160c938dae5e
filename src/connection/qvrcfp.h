// The connection parameters of an application: its protected ".cfp" file, connection strings, and SQL for its engine.
#pragma once

#include <cstdint>

#include "base/engine.h"
#include "base/text.h"
#include "base/value.h"
#include "dialect/ado_parameter.h"
#include "dialect/procedure_call.h"

namespace qvr {

struct ConnectionParameters {
  Engine MotorBD = Engine::None;
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

// Wipes both passwords and clears all fields.
void wipe(ConnectionParameters& parameters) noexcept;

// Temporary parameters, whose passwords are wiped on destruction.
struct PassingParameters {
  ConnectionParameters parameters;
  ~PassingParameters() { wipe(parameters); }
};

// Except for two, the members do not fail: false or an empty result tells of a failure.
class QVRcfp {
 public:
  static constexpr TextView kClass = u"QVRcfp";  // in reports and the trace

  QVRcfp() noexcept;
  ~QVRcfp();
  QVRcfp(const QVRcfp&) = delete;
  QVRcfp& operator=(const QVRcfp&) = delete;

  // Sets these parameters, without checking the engine; `Archivo` of the argument is ignored and keeps its value.
  bool Asignar(TextView ID, const ConnectionParameters& parameters) noexcept;

  // Loads folder R's file A (named without ".cfp"). False, and everything empty, when it is missing or damaged or was
  // written with another identification.
  bool Crear(TextView ID, TextView R, TextView A) noexcept;

  // Writes the parameters to that file. False without parameters or when the file cannot be written.
  bool Guardar(TextView ID, TextView R, TextView A) noexcept;

  // OLE DB connection string with the administrator's account (the client's when there is no administrator) or the
  // client's; empty without parameters. Values are inserted verbatim.
  Text CadenaADO(TextView ID, bool Adm) const noexcept;
  Text CadenaADOUsuario(TextView Usuario, TextView Clave) const noexcept;

  // Typed text: "T" text, "N" number with ".", "F" date, "L" logical. Empty for another code or what does not convert.
  Value TextoAValor(TextView TipoTNFL, TextView Texto) const noexcept;
  Text ValorATexto(TextView TipoTNFL, const Value& Valor) const noexcept;

  // Literals; see dialect/literals.h and dialect/like_pattern.h.
  Text ComillasSQL(TextView Cadena) const noexcept;
  Text ExpSQL(const Value& Valor) const noexcept;
  Text FechaSQL(const Value& Fecha) const noexcept;
  Text HoraSQL(const Value& Fecha) const noexcept;
  Text FechaHoraSQL(const Value& Fecha) const noexcept;
  Text FechaSQLv(const Value& Fecha) const noexcept;
  Text LogicoSQL(bool Valor) const noexcept;
  Text AhoraSQL() const noexcept;
  Text sqlEsTrue(TextView Campo) const noexcept;
  Text sqlEsFalse(TextView Campo) const noexcept;
  Text sqlFalse() const noexcept;
  Text CadenaParaLikeSQL(TextView Cadena, bool ComodinInicial, bool ComodinFinal) const noexcept;
  Text sqlFechaSistema() const noexcept;

  // Pieces of clauses; see dialect/clauses.h and dialect/table_relations.h. Two raise errors.
  // sqlWhereRelacionTablas raises CallerFailure: 5 for a list without elements, 9 for one that cannot be walked or is
  // not whole triples. sqlConcatenar raises every RuntimeFailure: these two, 13 for what is no list and for an element
  // that has no text, 94 for a Null; only Empty is an empty piece.
  Text sqlTOP(std::int32_t Numero) const noexcept;
  Text sqlRowNum(std::int32_t Numero, bool AnteponerAndSiProcede) const noexcept;
  Text sqlWhereRelacionTablas(const Value& mCampo1Campo2Relacion) const;
  Text sqlAlias(TextView Alias) const noexcept;
  Text sqlConcatenar(const Value& Cadenas) const;
  Text sqlEsNulo(TextView CampoComprobar, TextView CampoAlternativo) const noexcept;
  Text sqlCASE(TextView Campo, const Value& ParejasValoresMasOmision) const noexcept;

  // Statements; see dialect/statements.h.
  Text SqlINSERT(TextView NombreTabla, const Value& MValores) const noexcept;
  Text SqlUPDATE(TextView NombreTabla, TextView NombreCampoClave, std::int32_t Clave_cd, const Value& MCampos,
                 const Value& MValores) const noexcept;
  Text SqlInsert2(TextView NombreTabla, const Value& MCampos, const Value& MValores) const noexcept;
  Text SqlUpdate2(TextView NombreTabla, const Value& MCampos, const Value& MValores, TextView Condicion) const noexcept;

  // Stored procedures; see dialect/procedure_call.h and dialect/ado_parameter.h. A failed call is reported to the user,
  // a parameter that ADO finds improperly defined is shown in a box.
  bool EjecutarProcSQL7(services::AdoConnection* Conexion, TextView NombreProc, Value& Parametros,
                        const dialect::GiveBack& give_back = {}) const noexcept;
  bool AgregarParametroADO(services::AdoCommand* Comando, const dialect::ParameterRequest& request) const noexcept;

  const Text& Archivo() const noexcept { return fields_.Archivo; }
  Engine MotorBD() const noexcept { return fields_.MotorBD; }
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
  void require_parameters() const;  // throws failure 91 unless created

  bool created_ = false;
  ConnectionParameters fields_;
};

}  // namespace qvr
