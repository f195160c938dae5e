// A SELECT statement in parts: the original clauses and what was added since.
#pragma once

#include "base/engine.h"
#include "query/added_order.h"
#include "query/column_list.h"
#include "query/condition_chain.h"
#include "query/isql20.h"

namespace qvr {

// The members do not fail: failures are shown in a message box.
class cSQL20 final : public iSQL20 {
 public:
  static constexpr TextView kClass = u"cSQL20";  // in reports and the trace

  cSQL20() noexcept;

  Text Name() const noexcept;

  // Members of this class only. HAVING is extended like WHERE, with the same criterion.
  bool AmpliarCondicionHaving(TextView Condicion, TextView Criterio) noexcept;
  // Replaces the original conditions and drops the added ones.
  void CambiaCondicion(TextView NuevaCondicionWhere, TextView NuevaCondicionHaving) noexcept;
  // The current clauses, with or without their keyword.
  Text ParteWhere(bool SoloCondicion) const noexcept;
  Text ParteHaving(bool SoloCondicion) const noexcept;
  // The column's expression as given to `Crear`.
  Text ExpresionOriginal(TextView NombreCampoRS) const noexcept;

  Text CriterioActualCompleto() const noexcept override;
  void CriterioActualCompleto(TextView value) noexcept override;
  void AdoptaComoOriginal(bool AdoptarWhere, bool AdoptarHaving, bool AdoptarOrder) noexcept override;
  bool AmpliarCondicionWhere(TextView Condicion, TextView Criterio) noexcept override;
  bool AmpliarOrden(std::int16_t NuevaColumna) noexcept override;
  void CambiaOrden(TextView NuevoOrden) noexcept override;
  bool Creado() const noexcept override { return fields_.created; }
  bool Crear(const QueryRequest& request) noexcept override;
  bool CrearDesdeTextoDefinicion(TextView TextoDefinicion) noexcept override;
  Text TextoDefinicion() const noexcept override;
  Text CriterioActual() const noexcept override;
  bool InterpretarBusqueda(TextView NombreCampoRS, TextView TextoBusqueda, TextView Criterio) noexcept override;
  Text ParteOrder(bool SinClausula) const noexcept override;
  void RestauraOriginal(bool RestaurarWhereYHaving, bool RestaurarOrder) noexcept override;
  Text SQL() const noexcept override;
  Text SQLOriginal() const noexcept override;
  Text SQLOriginalSinOrden() const noexcept override;
  Text SQLSinOrden() const noexcept override;
  Text TipoCampo(TextView NombreCampoRS) const noexcept override;
  std::int16_t NumColumna(TextView NombreCampoRS) const noexcept override;
  std::int16_t NumColumnas() const noexcept override;
  Text Tag() const noexcept override;
  void Tag(TextView value) noexcept override;
  void TOP(std::int32_t value) noexcept override;
  std::int32_t TOP() const noexcept override { return fields_.top; }
  void Idioma(std::int32_t value) noexcept override;
  std::int32_t Idioma() const noexcept override { return fields_.language; }
  void MotorBD(Engine value) noexcept override { fields_.engine = value; }
  Engine MotorBD() const noexcept override { return fields_.engine; }

  // The texts of the members named in the comments, for unions. They throw: a union must not lack the text of one
  // query.
  Text current_statement() const;                                     // SQLSinOrden
  Text original_statement() const;                                    // SQLOriginalSinOrden
  Text current_order_clause() const { return current_order(false); }  // ParteOrder
  Text definition() const;                                            // TextoDefinicion
  Text complete_criterion() const;                                    // CriterioActualCompleto

 private:
  struct Fields {
    Text name;
    Text select;                 // with keyword
    std::size_t columns_at = 0;  // offset of the column list in it
    query::ColumnList columns;
    Text from;      // with keyword, a blank at both ends
    Text where;     // without keyword
    Text group_by;  // with keyword
    std::int16_t grouped = 0;
    Text having;
    Text order;
    bool distinct = false;
    Text tag;
    std::int32_t top = 0;
    Engine engine = Engine::None;
    std::int32_t language = 0;
    query::ConditionChain added_where;
    Text criterion;
    query::ConditionChain added_having;
    query::AddedOrder added_order;
    bool created = false;
  };

  Text current_where(bool condition_only) const;
  Text current_having(bool condition_only) const;
  Text current_order(bool list_only) const;

  // Append the current clauses, or the statement up to HAVING, to a text with reserved capacity.
  void append_where(Text& statement, bool condition_only) const;
  void append_having(Text& statement, bool condition_only) const;
  void append_order(Text& statement, bool list_only) const;
  void append_statement(Text& statement) const;
  // Upper bound of the statement's length, for reserve().
  std::size_t longest_statement() const;

  bool build_select(const Value& pairs) noexcept;
  void build_from_and_where(const QueryRequest& request);
  void build_group_by(std::int16_t grouped);
  void insert_top(std::int32_t value);
  void replace_top(std::int32_t value);
  void remove_top();

  bool extend(query::ConditionChain& chain, TextView condition, TextView criterion);
  std::size_t existing_column(TextView field) const;
  Fields read_definition(TextView text) const;
  // Every field as in a new object, except those that belong to the object and not to the query.
  void clear_definition() noexcept;

  Fields fields_;
};

}  // namespace qvr
