#include "query/csql20.h"

#include "base/failure.h"
#include "dialect/clauses.h"
#include "dialect/table_relations.h"
#include "query/joins.h"
#include "session/global.h"
#include "session/message_box.h"
#include "session/thread_state.h"

namespace qvr {
namespace {

// Traced only: this answer of `Crear` has no box.
void trace_missing_columns() {
  trace(
      {cSQL20::kClass, "Crear", failure_number::kTypeMismatch, u"ColumnasSELECT is not an array", SourcePlace::here()});
}

}  // namespace

cSQL20::cSQL20() noexcept {
  InicializarComun();
  fields_.language = or_default(kClass, language::kSpanish, [] { return thread_state().idioma.Idioma(); });
}

Text cSQL20::Name() const noexcept {
  return or_default(kClass, Text(), [] { return Text(kClass); });
}

bool cSQL20::Crear(const QueryRequest& request) noexcept {
  fields_ = {};
  return or_shown(kClass, u"Crear", [&] {
    fields_.engine = request.MotorBD;
    fields_.language = request.Idioma;
    fields_.name = request.NombreObjeto;
    fields_.distinct = request.UsarDistinct;
    fields_.top = request.TOP;
    const bool listed = request.ColumnasSELECT.is<Array>();
    if (!listed) trace_missing_columns();
    if (!listed || !build_select(request.ColumnasSELECT)) return false;
    build_from_and_where(request);
    build_group_by(request.NumColumnasGROUPBY);
    fields_.having = request.CondicionHAVINGInicial;
    fields_.order = request.TextoORDERBYInicial;
    return fields_.created = true;
  });
}

bool cSQL20::build_select(const Value& pairs) noexcept {
  const auto build = [&] {
    fields_.columns = query::ColumnList::from_pairs(pairs);
    const Text limit = dialect::ClausulaTop(fields_.engine, fields_.top);
    fields_.select = join({u"SELECT ", fields_.distinct ? u"DISTINCT " : u"", limit});
    fields_.columns_at = fields_.select.size();
    fields_.columns.append_select_list(fields_.select, fields_.engine);
    // Without columns this cuts the end of the opening: the contract's text, which every engine rejects.
    if (fields_.columns.size() == 0) fields_.select.resize(fields_.select.size() - 2);
    return true;
  };
  // The box names the step, the trace the member.
  return or_shown(kClass, u"ConstruirSelect", build, SourcePlace::here(__builtin_FILE(), __builtin_LINE(), "Crear"));
}

void cSQL20::build_from_and_where(const QueryRequest& request) {
  const bool relations = request.RelacionTablas.is<Array>();
  const bool joined = relations && (fields_.engine == Engine::Jet || fields_.engine == Engine::SqlServer);
  const Text joins = joined ? query::ConstruirJoins(request.TablasFROM, request.RelacionTablas) : Text();
  fields_.from = join({u" FROM ", joined ? joins : request.TablasFROM, u" "});
  fields_.where = request.CondicionWHEREInicial;
  if (!relations || joined) return;
  const Text condition = dialect::CondicionWhereRelacionTablas(fields_.engine, request.RelacionTablas);
  fields_.where = fields_.where.empty() ? condition : join({condition, u" And (", fields_.where, u")"});
}

void cSQL20::build_group_by(std::int16_t grouped) {
  if (grouped < 1) return;
  fields_.grouped = grouped;
  fields_.group_by = join({u"GROUP BY ", fields_.columns.group_list(static_cast<std::size_t>(grouped))});
}

// Throws failure 5 when no column has this name.
std::size_t cSQL20::existing_column(TextView field) const {
  const std::size_t position = fields_.columns.position_of(field);
  if (position == 0) throw RuntimeFailure(failure_number::kInvalidArgument);
  return position;
}

Text cSQL20::TipoCampo(TextView NombreCampoRS) const noexcept {
  if (!fields_.created) return {};
  return or_reported(
      kClass, Text(),
      [&] {
        const TextView type = fields_.columns.at(static_cast<std::int64_t>(existing_column(NombreCampoRS))).type;
        if (type.empty()) throw RuntimeFailure(failure_number::kInvalidArgument);
        return Text(type);
      },
      [&](const FailureDetail& failure) {
        show_failure(kClass, join({u"TipoCampo(", NombreCampoRS, u")"}), failure);
      });
}

Text cSQL20::ExpresionOriginal(TextView NombreCampoRS) const noexcept {
  if (!fields_.created) return {};
  return or_shown(kClass, u"ExpresionOriginal", [&] {
    return Text(fields_.columns.at(static_cast<std::int64_t>(existing_column(NombreCampoRS))).expression);
  });
}

std::int16_t cSQL20::NumColumna(TextView NombreCampoRS) const noexcept {
  const std::size_t position = fields_.columns.position_of(NombreCampoRS);
  return position > INT16_MAX ? std::int16_t{0} : static_cast<std::int16_t>(position);
}

std::int16_t cSQL20::NumColumnas() const noexcept {
  const std::size_t count = fields_.created ? fields_.columns.size() : 0;
  return count > INT16_MAX ? std::int16_t{0} : static_cast<std::int16_t>(count);
}

Text cSQL20::CriterioActual() const noexcept {
  return or_default(kClass, Text(), [&] { return fields_.criterion; });
}

Text cSQL20::Tag() const noexcept {
  return or_default(kClass, Text(), [&] { return fields_.tag; });
}

void cSQL20::Tag(TextView value) noexcept {
  or_default(kClass, false, [&] { return fields_.tag = value, true; });
}

void cSQL20::Idioma(std::int32_t value) noexcept {
  fields_.language = value;
  or_default(kClass, false, [&] { return thread_state().idioma.Idioma(value), true; });
}

}  // namespace qvr
