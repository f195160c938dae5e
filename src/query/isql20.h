// The contract that every query honours: a statement as it was created beside what was added to it since.
#pragma once

#include <cstdint>

#include "base/engine.h"
#include "base/value.h"

namespace qvr {

// What `Crear` is given. Columns are a flat list of (expression, descriptor), relations one of (field, field, letter);
// texts of clauses come without their keyword.
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

// No member fails: what cannot be done is false, an empty text or 0. Members in the order of the contract.
class iSQL20 {
 public:
  virtual ~iSQL20() = default;

  // What was added (conditions, order, criterion) as one text, to be kept and given back later. A text that is none
  // changes nothing; an empty one takes everything added away.
  virtual Text CriterioActualCompleto() const noexcept = 0;
  virtual void CriterioActualCompleto(TextView value) noexcept = 0;

  // Makes what was added part of the statement as created.
  virtual void AdoptaComoOriginal(bool AdoptarWhere, bool AdoptarHaving, bool AdoptarOrder) noexcept = 0;
  // Narrows the query, with a text for the user; false for an empty condition and for one that is there already.
  virtual bool AmpliarCondicionWhere(TextView Condicion, TextView Criterio) noexcept = 0;
  // Sorts by this column (from 1) first; once more reverses. The answer is always false.
  virtual bool AmpliarOrden(std::int16_t NuevaColumna) noexcept = 0;
  virtual void CambiaOrden(TextView NuevoOrden) noexcept = 0;
  virtual bool Creado() const noexcept = 0;
  virtual bool Crear(const QueryRequest& request) noexcept = 0;
  // The whole query as one text, and back.
  virtual bool CrearDesdeTextoDefinicion(TextView TextoDefinicion) noexcept = 0;
  virtual Text TextoDefinicion() const noexcept = 0;
  // What was added, in the user's words.
  virtual Text CriterioActual() const noexcept = 0;
  // Narrows the query by what a user typed for a column; false for what is no search.
  virtual bool InterpretarBusqueda(TextView NombreCampoRS, TextView TextoBusqueda, TextView Criterio) noexcept = 0;
  virtual Text ParteOrder(bool SinClausula) const noexcept = 0;
  virtual void RestauraOriginal(bool RestaurarWhereYHaving, bool RestaurarOrder) noexcept = 0;

  // The statement as it is now and as it was created, each with and without its order.
  virtual Text SQL() const noexcept = 0;
  virtual Text SQLOriginal() const noexcept = 0;
  virtual Text SQLOriginalSinOrden() const noexcept = 0;
  virtual Text SQLSinOrden() const noexcept = 0;

  // Columns by the name that they have in a record set: type letter, position from 1 (0: none).
  virtual Text TipoCampo(TextView NombreCampoRS) const noexcept = 0;
  virtual std::int16_t NumColumna(TextView NombreCampoRS) const noexcept = 0;
  virtual std::int16_t NumColumnas() const noexcept = 0;

  virtual Text Tag() const noexcept = 0;
  virtual void Tag(TextView value) noexcept = 0;
  virtual void TOP(std::int32_t value) noexcept = 0;  // limit of rows; 0: none
  virtual std::int32_t TOP() const noexcept = 0;
  virtual void Idioma(std::int32_t value) noexcept = 0;  // of the criteria; also sets the library's language
  virtual std::int32_t Idioma() const noexcept = 0;
  virtual void MotorBD(Engine value) noexcept = 0;  // changes no text that is there
  virtual Engine MotorBD() const noexcept = 0;
};

}  // namespace qvr
