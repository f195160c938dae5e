// The model of a union, member by member.
#include "query/query_model.h"

namespace qvr::tests {
namespace {

Text joined(const std::vector<SelectModel>& members, TextView separator, Text (SelectModel::*get)() const) {
  Text text;
  for (const SelectModel& member : members) text.append((member.*get)()).append(separator);
  return members.empty() ? text : text.substr(0, text.size() - separator.size());
}

std::vector<Text> pieces_of(TextView text) {
  std::vector<Text> pieces(1);
  for (const char16_t unit : text) {
    unit == u';' ? pieces.emplace_back() : pieces.back() += unit;
  }
  return pieces;
}

}  // namespace

bool UnionModel::Crear(const QueryRequest& request) {
  SelectModel member(*thread_);
  if (!member.Crear(request)) return false;
  members_.push_back(member);
  return true;
}

bool UnionModel::AmpliarCondicionWhere(TextView condition, TextView criterion) {
  return Creado() && members_.back().AmpliarCondicionWhere(condition, criterion);
}

bool UnionModel::AmpliarOrden(std::int16_t column) { return Creado() && members_.front().AmpliarOrden(column); }

void UnionModel::CambiaOrden(TextView order) {
  if (Creado()) members_.front().CambiaOrden(order);
}

void UnionModel::RestauraOriginal(bool conditions, bool order) {
  for (SelectModel& member : members_) member.RestauraOriginal(conditions, order);
}

void UnionModel::AdoptaComoOriginal(bool where, bool having, bool order) {
  for (SelectModel& member : members_) member.AdoptaComoOriginal(where, having, order);
}

Text UnionModel::ParteOrder(bool alone) const { return Creado() ? members_.front().ParteOrder(alone) : Text(); }

Text UnionModel::SQLSinOrden() const { return joined(members_, u" UNION ", &SelectModel::SQLSinOrden); }

Text UnionModel::SQLOriginalSinOrden() const { return joined(members_, u" UNION ", &SelectModel::SQLOriginalSinOrden); }

Text UnionModel::SQL() const { return Creado() ? SQLSinOrden() + u" " + ParteOrder(false) : Text(); }

Text UnionModel::SQLOriginal() const { return Creado() ? SQLOriginalSinOrden() + u" " + ParteOrder(false) : Text(); }

Text UnionModel::TipoCampo(TextView field) const { return Creado() ? members_.front().TipoCampo(field) : Text(); }

int UnionModel::NumColumna(TextView field) const { return Creado() ? members_.front().NumColumna(field) : 0; }

int UnionModel::NumColumnas() const { return Creado() ? members_.front().NumColumnas() : 0; }

Text UnionModel::TextoDefinicion() const { return joined(members_, u";", &SelectModel::TextoDefinicion); }

bool UnionModel::CrearDesdeTextoDefinicion(TextView text) {
  bool any = false;
  for (const Text& piece : pieces_of(text)) {
    SelectModel member(*thread_);
    if (!member.CrearDesdeTextoDefinicion(piece)) continue;
    members_.push_back(member);
    any = true;
  }
  return any;
}

Text UnionModel::CriterioActualCompleto() const { return joined(members_, u";", &SelectModel::CriterioActualCompleto); }

void UnionModel::CriterioActualCompleto(TextView text) {
  const std::vector<Text> pieces = pieces_of(text);
  if (pieces.size() != members_.size()) return;
  for (std::size_t i = 0; i < pieces.size(); ++i) members_[i].CriterioActualCompleto(pieces[i]);
}

Text UnionModel::CriterioActual() const { return Creado() ? members_.front().CriterioActual() : Text(); }

std::int32_t UnionModel::TOP() const { return Creado() ? members_.front().TOP() : 0; }

void UnionModel::TOP(std::int32_t top) {
  for (SelectModel& member : members_) member.TOP(top);
}

std::int32_t UnionModel::Idioma() const {
  const std::int32_t language = Creado() ? members_.front().Idioma() : 0;
  for (SelectModel& member : members_) member.TOP(language);
  return 0;
}

void UnionModel::Idioma(std::int32_t language) {
  for (SelectModel& member : members_) member.Idioma(language);
}

Engine UnionModel::MotorBD() const { return Creado() ? members_.front().MotorBD() : Engine::None; }

void UnionModel::MotorBD(Engine engine) {
  for (SelectModel& member : members_) member.MotorBD(engine);
}

}  // namespace qvr::tests
