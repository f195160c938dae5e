#include "query/usql20.h"

#include "base/failure.h"
#include "session/global.h"

namespace qvr {
namespace {

constexpr TextView kUnion = u" UNION ", kDefinitionMark = u"<*uSQL_TD*>", kCriterionMark = u"<*uSQL_CRI*>";

}  // namespace

uSQL20::uSQL20() noexcept { InicializarComun(); }

// From the last to the first.
uSQL20::~uSQL20() {
  while (!members_.empty()) members_.pop_back();
}

Text uSQL20::joined(TextView separator, Text (cSQL20::*text)() const) const {
  std::vector<Text> texts;
  texts.reserve(members_.size());
  for (const Member& member : members_) texts.push_back((*member.*text)());
  return join(texts, separator);
}

template <class Use>
void uSQL20::each(Use&& use) const noexcept {
  // By index: a message box of a member runs a message loop, in which the host can add a member (re-entrance).
  for (std::size_t i = 0; i < members_.size(); ++i) use(*members_[i]);
}

Text uSQL20::Name() const noexcept {
  return or_default(kClass, Text(), [] { return Text(kClass); });
}

bool uSQL20::Crear(const QueryRequest& request) noexcept {
  return or_default(kClass, false, [&] {
    auto member = std::make_unique<cSQL20>();
    if (!member->Crear(request)) return false;
    members_.push_back(std::move(member));
    return true;
  });
}

bool uSQL20::CrearDesdeTextoDefinicion(TextView TextoDefinicion) noexcept {
  bool any = false;
  or_default(kClass, false, [&] {
    for (const TextView piece : split(TextoDefinicion, kDefinitionMark)) {
      auto member = std::make_unique<cSQL20>();
      if (!member->CrearDesdeTextoDefinicion(piece)) continue;
      members_.push_back(std::move(member));
      any = true;
    }
    return true;
  });
  return any;
}

Text uSQL20::TextoDefinicion() const noexcept {
  return or_default(kClass, Text(), [&] { return joined(kDefinitionMark, &cSQL20::definition); });
}

Text uSQL20::CriterioActualCompleto() const noexcept {
  return or_default(kClass, Text(), [&] { return joined(kCriterionMark, &cSQL20::complete_criterion); });
}

void uSQL20::CriterioActualCompleto(TextView value) noexcept {
  or_default(kClass, false, [&] {
    const auto pieces = split(value, kCriterionMark);
    if (pieces.size() != members_.size()) throw RuntimeFailure(failure_number::kTypeMismatch);
    for (std::size_t i = 0; i < pieces.size(); ++i) members_[i]->CriterioActualCompleto(pieces[i]);
    return true;
  });
}

void uSQL20::AdoptaComoOriginal(bool AdoptarWhere, bool AdoptarHaving, bool AdoptarOrder) noexcept {
  each([&](iSQL20& member) { member.AdoptaComoOriginal(AdoptarWhere, AdoptarHaving, AdoptarOrder); });
}

void uSQL20::RestauraOriginal(bool RestaurarWhereYHaving, bool RestaurarOrder) noexcept {
  each([&](iSQL20& member) { member.RestauraOriginal(RestaurarWhereYHaving, RestaurarOrder); });
}

bool uSQL20::InterpretarBusqueda(TextView NombreCampoRS, TextView TextoBusqueda, TextView Criterio) noexcept {
  bool all = !members_.empty();
  each([&](iSQL20& member) {
    const bool understood = member.InterpretarBusqueda(NombreCampoRS, TextoBusqueda, Criterio);
    all = all && understood;
  });
  return all;
}

Text uSQL20::SQL() const noexcept {
  return or_default(kClass, Text(), [&] {
    if (members_.empty()) return Text();
    return join({joined(kUnion, &cSQL20::current_statement), u" ", members_.front()->current_order_clause()});
  });
}

Text uSQL20::SQLOriginal() const noexcept {
  return or_default(kClass, Text(), [&] {
    if (members_.empty()) return Text();
    return join({joined(kUnion, &cSQL20::original_statement), u" ", members_.front()->current_order_clause()});
  });
}

Text uSQL20::SQLOriginalSinOrden() const noexcept {
  return or_default(kClass, Text(), [&] { return joined(kUnion, &cSQL20::original_statement); });
}

Text uSQL20::SQLSinOrden() const noexcept {
  return or_default(kClass, Text(), [&] { return joined(kUnion, &cSQL20::current_statement); });
}

void uSQL20::TOP(std::int32_t value) noexcept {
  each([&](iSQL20& member) { member.TOP(value); });
}

void uSQL20::Idioma(std::int32_t value) noexcept {
  each([&](iSQL20& member) { member.Idioma(value); });
}

void uSQL20::MotorBD(Engine value) noexcept {
  each([&](iSQL20& member) { member.MotorBD(value); });
}

bool uSQL20::AmpliarCondicionWhere(TextView Condicion, TextView Criterio) noexcept {
  return !members_.empty() && members_.back()->AmpliarCondicionWhere(Condicion, Criterio);
}

bool uSQL20::AmpliarOrden(std::int16_t NuevaColumna) noexcept {
  return !members_.empty() && members_.front()->AmpliarOrden(NuevaColumna);
}

void uSQL20::CambiaOrden(TextView NuevoOrden) noexcept {
  if (!members_.empty()) members_.front()->CambiaOrden(NuevoOrden);
}

Text uSQL20::ParteOrder(bool SinClausula) const noexcept {
  return members_.empty() ? Text() : members_.front()->ParteOrder(SinClausula);
}

Text uSQL20::CriterioActual() const noexcept { return members_.empty() ? Text() : members_.front()->CriterioActual(); }

std::int16_t uSQL20::NumColumna(TextView NombreCampoRS) const noexcept {
  return members_.empty() ? std::int16_t{0} : members_.front()->NumColumna(NombreCampoRS);
}

std::int16_t uSQL20::NumColumnas() const noexcept {
  return members_.empty() ? std::int16_t{0} : members_.front()->NumColumnas();
}

Text uSQL20::TipoCampo(TextView NombreCampoRS) const noexcept {
  return members_.empty() ? Text() : members_.front()->TipoCampo(NombreCampoRS);
}

std::int32_t uSQL20::TOP() const noexcept { return members_.empty() ? 0 : members_.front()->TOP(); }

Engine uSQL20::MotorBD() const noexcept { return members_.empty() ? Engine::None : members_.front()->MotorBD(); }

std::int32_t uSQL20::Idioma() const noexcept {
  if (!members_.empty()) each([limit = members_.front()->Idioma()](iSQL20& member) { member.TOP(limit); });
  return 0;
}

void uSQL20::Tag(TextView value) noexcept {
  or_default(kClass, false, [&] { return tag_ = value, true; });
}

Text uSQL20::Tag() const noexcept {
  return or_default(kClass, Text(), [&] { return tag_; });
}

}  // namespace qvr
