// The interface of all queries: a statement as it was created, and what was added to it since.
#pragma once

#include <cstdint>

#include "base/engine.h"
#include "base/value.h"

namespace qvr {

// The arguments of `Crear`. Columns are a flat list of (expression, descriptor), relations one of (field, field,
// letter); clauses are without their keyword.
struct QueryRequest {
  Engine MotorBD = Engine::None;
  Text NombreObjeto;
  bool UsarDistinct = false;
  Value ColumnasSELECT;
  Text TablasFROM;
  Value RelacionTablas = Missing{};
  Text CondicionWHEREInicial;
  std::int16_t NumColumnasGROUPBY = 0;
  Text CondicionHAVINGInicial;
  Text TextoORDERBYInicial;
  std::int32_t TOP = 0;
  std::int32_t Idioma = 0;
};

// The members do not fail: they answer false, an empty text or 0. In the order of the contract.
class iSQL20 {
 public:
  virtual ~iSQL20() = default;

  // What was added (conditions, order, criterion) serialised as one text. Writing an invalid text changes nothing; an
  // empty one removes everything added.
  virtual Text CriterioActualCompleto() const noexcept = 0;
  virtual void CriterioActualCompleto(TextView value) noexcept = 0;

  // Makes what was added part of the original statement.
  virtual void AdoptaComoOriginal(bool AdoptarWhere, bool AdoptarHaving, bool AdoptarOrder) noexcept = 0;
  // Adds a condition, with its text for the user; false for an empty condition and for one that was added already.
  virtual bool AmpliarCondicionWhere(TextView Condicion, TextView Criterio) noexcept = 0;
  // Sorts by this column (from 1) first; again reverses the direction. Always answers false.
  virtual bool AmpliarOrden(std::int16_t NuevaColumna) noexcept = 0;
  virtual void CambiaOrden(TextView NuevoOrden) noexcept = 0;
  virtual bool Creado() const noexcept = 0;
  virtual bool Crear(const QueryRequest& request) noexcept = 0;
  // The whole query serialised as one text, and back.
  virtual bool CrearDesdeTextoDefinicion(TextView TextoDefinicion) noexcept = 0;
  virtual Text TextoDefinicion() const noexcept = 0;
  // What was added, as a text for the user.
  virtual Text CriterioActual() const noexcept = 0;
  // Adds the condition that a user typed for a column; false for an invalid search.
  virtual bool InterpretarBusqueda(TextView NombreCampoRS, TextView TextoBusqueda, TextView Criterio) noexcept = 0;
  virtual Text ParteOrder(bool SinClausula) const noexcept = 0;
  virtual void RestauraOriginal(bool RestaurarWhereYHaving, bool RestaurarOrder) noexcept = 0;

  // The current and the original statement, each with and without ORDER BY.
  virtual Text SQL() const noexcept = 0;
  virtual Text SQLOriginal() const noexcept = 0;
  virtual Text SQLOriginalSinOrden() const noexcept = 0;
  virtual Text SQLSinOrden() const noexcept = 0;

  // Columns by their name in the record set: type letter, position from 1 (0: none).
  virtual Text TipoCampo(TextView NombreCampoRS) const noexcept = 0;
  virtual std::int16_t NumColumna(TextView NombreCampoRS) const noexcept = 0;
  virtual std::int16_t NumColumnas() const noexcept = 0;

  virtual Text Tag() const noexcept = 0;
  virtual void Tag(TextView value) noexcept = 0;
  virtual void TOP(std::int32_t value) noexcept = 0;  // limit of rows; 0: none
  virtual std::int32_t TOP() const noexcept = 0;
  virtual void Idioma(std::int32_t value) noexcept = 0;  // of the criteria; also sets the library's language
  virtual std::int32_t Idioma() const noexcept = 0;
  virtual void MotorBD(Engine value) noexcept = 0;  // existing texts stay as they are
  virtual Engine MotorBD() const noexcept = 0;
};

}  // namespace qvr
