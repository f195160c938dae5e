// Several queries joined by UNION, behind the interface of one.
#pragma once

#include <memory>
#include <vector>

#include "query/csql20.h"

namespace qvr {

// Without members (queries of the union) everything does nothing and answers false, an empty text or 0. Nothing fails.
class uSQL20 final : public iSQL20 {
 public:
  static constexpr TextView kClass = u"uSQL20";  // in reports and the trace

  uSQL20() noexcept;
  ~uSQL20() override;
  uSQL20(const uSQL20&) = delete;
  uSQL20& operator=(const uSQL20&) = delete;

  Text Name() const noexcept;

  // Each successful call adds a member; a definition adds each of its queries that can be read. Existing members stay.
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
  Text SQLOriginal() const noexcept override;  // with the current order
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

  // Reading does not give the language: it sets TOP of every member to the first member's language number and answers
  // 0. That is the contract, whatever its name says.
  std::int32_t Idioma() const noexcept override;

  // Of the union itself.
  bool Creado() const noexcept override { return !members_.empty(); }
  Text Tag() const noexcept override;
  void Tag(TextView value) noexcept override;

 private:
  using Member = std::unique_ptr<cSQL20>;

  // The members' texts; throws when one fails, as a union that lacks a member is another query.
  Text joined(TextView separator, Text (cSQL20::*text)() const) const;
  template <class Use>
  void each(Use&& use) const noexcept;

  std::vector<Member> members_;
  Text tag_;
};

}  // namespace qvr
