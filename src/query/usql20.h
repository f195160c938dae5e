// Several SELECT statements joined by UNION, behind the same contract as one of them.
#pragma once

#include <memory>
#include <vector>

#include "query/csql20.h"

namespace qvr {

// Everything does nothing and answers False, an empty text or 0 while there is no member. No member fails.
class uSQL20 final : public iSQL20 {
 public:
  uSQL20() noexcept;
  ~uSQL20() override;
  uSQL20(const uSQL20&) = delete;
  uSQL20& operator=(const uSQL20&) = delete;

  Text Name() const noexcept;

  // Each call that succeeds adds a member, each piece of the text as many as can be read; those that are there stay.
  bool Crear(const QueryRequest& request) noexcept override;
  bool CrearDesdeTextoDefinicion(TextView TextoDefinicion) noexcept override;

  // Of all members, in order.
  Text TextoDefinicion() const noexcept override;
  Text CriterioActualCompleto() const noexcept override;
  void CriterioActualCompleto(TextView value) noexcept override;
  void AdoptaComoOriginal(bool AdoptarWhere, bool AdoptarHaving, bool AdoptarOrder) noexcept override;
  void RestauraOriginal(bool RestaurarWhereYHaving, bool RestaurarOrder) noexcept override;
  bool InterpretarBusqueda(TextView NombreCampoRS, TextView TextoBusqueda, TextView Criterio) noexcept override;
  Text SQL() const noexcept override;
  Text SQLOriginal() const noexcept override;  // in the current order
  Text SQLOriginalSinOrden() const noexcept override;
  Text SQLSinOrden() const noexcept override;
  void TOP(std::int32_t value) noexcept override;
  void Idioma(std::int32_t value) noexcept override;
  void MotorBD(Engine value) noexcept override;

  // Of the last member.
  bool AmpliarCondicionWhere(TextView Condicion, TextView Criterio) noexcept override;

  // Of the first member.
  bool AmpliarOrden(std::int16_t NuevaColumna) noexcept override;
  void CambiaOrden(TextView NuevoOrden) noexcept override;
  Text ParteOrder(bool SinClausula) const noexcept override;
  Text CriterioActual() const noexcept override;
  std::int16_t NumColumna(TextView NombreCampoRS) const noexcept override;
  std::int16_t NumColumnas() const noexcept override;
  Text TipoCampo(TextView NombreCampoRS) const noexcept override;
  std::int32_t TOP() const noexcept override;
  Engine MotorBD() const noexcept override;

  // Not the language: always 0, and every member's limit of rows becomes the first one's language. Hosts have lived
  // with that; the language cannot be read back from a union.
  std::int32_t Idioma() const noexcept override;

  // Of the union itself.
  bool Creado() const noexcept override { return !members_.empty(); }
  Text Tag() const noexcept override;
  void Tag(TextView value) noexcept override;

 private:
  using Member = std::unique_ptr<cSQL20>;

  // The members' texts; throws when one of them cannot be made. A text that lacks one would be another query.
  Text joined(TextView separator, Text (cSQL20::*text)() const) const;
  template <class Use>
  void each(Use&& use) const noexcept;

  std::vector<Member> members_;
  Text tag_;
};

}  // namespace qvr
