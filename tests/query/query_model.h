// Reference models of queries: naive, on whole texts. They have the members of the real classes, so that a test can do
// the same to both and compare.
#pragma once

#include <utility>
#include <vector>

#include "query/isql20.h"

namespace qvr::tests {

// What a query's statements are made of.
struct SelectParts {
  struct Column {
    Text expression, type, field;
  };

  std::vector<Column> columns;
  Text select, list, from, where, group_by, having, order;  // `list` is the end of `select`
  Text added_where, added_having, criterion;
  std::vector<std::pair<int, bool>> clicks;
  Text tag;
  bool created = false, distinct = false;
  std::int32_t top = 0, language = 0;
  Engine engine = Engine::None;
};

// What models share as queries share a thread. Their texts of definitions and criteria are positions in here.
struct ModelThread {
  std::int32_t language = 0;
  std::vector<Text> boxes;  // that have to appear
  std::vector<SelectParts> kept;
};

class SelectModel {
 public:
  explicit SelectModel(ModelThread& thread) : thread_(&thread) { parts_.language = thread.language; }

  bool Crear(const QueryRequest& request);
  bool Creado() const { return parts_.created; }
  bool AmpliarCondicionWhere(TextView condition, TextView criterion);
  bool AmpliarCondicionHaving(TextView condition, TextView criterion);
  bool AmpliarOrden(std::int16_t column);
  void CambiaCondicion(TextView where, TextView having);
  void CambiaOrden(TextView order);
  void RestauraOriginal(bool conditions, bool order);
  void AdoptaComoOriginal(bool where, bool having, bool order);

  Text ParteWhere(bool alone) const;
  Text ParteHaving(bool alone) const;
  Text ParteOrder(bool alone) const;
  Text SQL() const;
  Text SQLSinOrden() const;
  Text SQLOriginal() const;
  Text SQLOriginalSinOrden() const;

  Text TipoCampo(TextView field) const;
  Text ExpresionOriginal(TextView field) const;
  int NumColumna(TextView field) const;
  int NumColumnas() const;

  Text TextoDefinicion() const;
  bool CrearDesdeTextoDefinicion(TextView text);
  Text CriterioActualCompleto() const;
  void CriterioActualCompleto(TextView text);
  Text CriterioActual() const { return parts_.criterion; }

  Text Tag() const { return parts_.tag; }
  void Tag(TextView tag) { parts_.tag = tag; }
  std::int32_t TOP() const { return parts_.top; }
  void TOP(std::int32_t top);
  std::int32_t Idioma() const { return parts_.language; }
  void Idioma(std::int32_t language) { parts_.language = thread_->language = language; }
  Engine MotorBD() const { return parts_.engine; }
  void MotorBD(Engine engine) { parts_.engine = engine; }

 private:
  bool extend(Text& added, TextView condition, TextView criterion);
  Text shown(TextView procedure, int number) const;

  ModelThread* thread_;
  SelectParts parts_;
};

class UnionModel {
 public:
  explicit UnionModel(ModelThread& thread) : thread_(&thread) {}

  bool Crear(const QueryRequest& request);
  bool Creado() const { return !members_.empty(); }
  bool AmpliarCondicionWhere(TextView condition, TextView criterion);
  bool AmpliarOrden(std::int16_t column);
  void CambiaOrden(TextView order);
  void RestauraOriginal(bool conditions, bool order);
  void AdoptaComoOriginal(bool where, bool having, bool order);
  Text ParteOrder(bool alone) const;
  Text SQL() const;
  Text SQLSinOrden() const;
  Text SQLOriginal() const;
  Text SQLOriginalSinOrden() const;
  Text TipoCampo(TextView field) const;
  int NumColumna(TextView field) const;
  int NumColumnas() const;
  Text TextoDefinicion() const;
  bool CrearDesdeTextoDefinicion(TextView text);
  Text CriterioActualCompleto() const;
  void CriterioActualCompleto(TextView text);
  Text CriterioActual() const;
  Text Tag() const { return tag_; }
  void Tag(TextView tag) { tag_ = tag; }
  std::int32_t TOP() const;
  void TOP(std::int32_t top);
  std::int32_t Idioma() const;
  void Idioma(std::int32_t language);
  Engine MotorBD() const;
  void MotorBD(Engine engine);

 private:
  ModelThread* thread_;
  mutable std::vector<SelectModel> members_;  // reading the language changes them
  Text tag_;
};

}  // namespace qvr::tests
