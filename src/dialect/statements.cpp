#include "dialect/statements.h"

#include "base/failure.h"
#include "dialect/lists.h"
#include "dialect/literals.h"
#include "session/value_convert.h"

namespace qvr::dialect {
namespace {

// The last separator is cut off at the end. Without elements this cuts the end of the opening instead ("... VALUES)"):
// the contract's text, which every engine rejects.
void drop_last(Text& text, std::size_t units) { text.resize(text.size() - units); }

// Each field's name with its index.
template <class Use>
void each_field(const Value& fields, Use&& use) {
  const Array& names = list_in(fields);
  std::int64_t index = names.lower;
  for (const Value& name : names.items) use(to_text(name), index++);
}

// Also where there are no fields, whose values nobody would look at.
void require_arrays(const Value& fields, const Value& values) {
  if (!fields.is<Array>() || !values.is<Array>()) throw RuntimeFailure(failure_number::kTypeMismatch);
}

Text literal_at(Engine engine, const Value& values, std::int64_t index) {
  return ExpSQL(engine, element_at(list_in(values), index));
}

}  // namespace

Text SqlINSERT(Engine engine, TextView NombreTabla, const Value& MValores) {
  Text text = join({u"INSERT INTO ", NombreTabla, u" VALUES ("});
  for (const Value& value : list_in(MValores).items) text.append(ExpSQL(engine, value)).append(u", ");
  drop_last(text, 2);
  return text += u")";
}

Text SqlUPDATE(Engine engine, TextView NombreTabla, TextView NombreCampoClave, std::int32_t Clave_cd,
               const Value& MCampos, const Value& MValores) {
  Text text = join({u"UPDATE ", NombreTabla, u" SET "});
  each_field(MCampos, [&](const Text& field, std::int64_t i) {
    if (equal_no_case(field, NombreCampoClave)) return;
    text.append(field).append(u"=").append(literal_at(engine, MValores, i)).append(u", ");
  });
  drop_last(text, 2);
  return text += join({u" WHERE ", NombreCampoClave, u"=", decimal(Clave_cd)});
}

Text SqlInsert2(Engine engine, TextView NombreTabla, const Value& MCampos, const Value& MValores) {
  require_arrays(MCampos, MValores);
  Text columns = join({u"INSERT INTO ", NombreTabla, u"("}), literals = u") VALUES(";
  each_field(MCampos, [&](const Text& field, std::int64_t i) {
    columns.append(field).append(u",");
    literals.append(literal_at(engine, MValores, i)).append(u",");
  });
  drop_last(columns, 1);
  drop_last(literals, 1);
  return join({columns, literals, u")"});
}

Text SqlUpdate2(Engine engine, TextView NombreTabla, const Value& MCampos, const Value& MValores, TextView Condicion) {
  require_arrays(MCampos, MValores);
  Text text = join({u"UPDATE ", NombreTabla, u" SET "});
  each_field(MCampos, [&](const Text& field, std::int64_t i) {
    text.append(field).append(u"=").append(literal_at(engine, MValores, i)).append(u",");
  });
  drop_last(text, 1);
  if (!Condicion.empty()) text += join({u" WHERE ", Condicion});
  return text;
}

}  // namespace qvr::dialect
