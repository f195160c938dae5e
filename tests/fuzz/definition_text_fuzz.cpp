// Texts as queries: each is refused and leaves nothing behind, or gives a query whose own text gives it again.
#include "query/definition_text.h"

#include "fuzz/fuzz_input.h"
#include "fuzz/fuzz_thread.h"
#include "query/csql20.h"
#include "query/usql20.h"

namespace qvr::tests {
namespace {

// A line end stands between the fields of a text, so that it can be read.
Text in_one_line(const Text& text) { return replace_all(text, u"\n", u""); }

Text sealed(TextView text) { return query::DefinitionWriter(text).finished(); }

Text described(const iSQL20& query) {
  return join({query.SQL(), u"|", query.SQLOriginal(), u"|", query.ParteOrder(true), u"|", query.CriterioActual(), u"|",
               query.CriterioActualCompleto(), u"|", decimal(number_of(query.MotorBD())), u"|", decimal(query.TOP()),
               u"|", decimal(query.NumColumnas())});
}

void require_empty(const cSQL20& query) {
  require(!query.Creado() && query.NumColumnas() == 0 && query.TextoDefinicion().empty(), "nothing is left");
  require(query.SQL() == u"     " && query.SQLOriginal() == u"     ", "not in the statements either");
}

void check_definition(const Text& text) {
  cSQL20 query;
  query.CrearDesdeTextoDefinicion(sealed(u"cSQL20 1"));
  static_cast<void>(fuzz_thread().take_boxes());
  if (!query.CrearDesdeTextoDefinicion(text)) {
    require(fuzz_thread().take_boxes().size() == 1, "what is refused is told once", {text});
    return require_empty(query);
  }
  require(fuzz_thread().take_boxes().empty(), "what is read is not told", {text});
  const Text kept = query.TextoDefinicion();
  cSQL20 copy;
  require(copy.CrearDesdeTextoDefinicion(kept), "the query's own text is read", {text, kept});
  require(copy.TextoDefinicion() == kept, "and is the same again", {text, kept});
  require(described(copy) == described(query), "of an equal query", {described(query), described(copy)});
}

void check_union(const Text& text) {
  uSQL20 query;
  const bool any = query.CrearDesdeTextoDefinicion(text);
  require(any == query.Creado(), "it has members when it says so", {text});
  require(any || query.TextoDefinicion().empty(), "without members no text", {text});
  static_cast<void>(fuzz_thread().take_boxes());
  if (!any) return;
  uSQL20 copy;
  const Text kept = query.TextoDefinicion();
  require(copy.CrearDesdeTextoDefinicion(kept), "the union's own text is read", {text, kept});
  require(fuzz_thread().take_boxes().empty(), "every piece of it", {text, kept});
  require(copy.TextoDefinicion() == kept && described(copy) == described(query), "and is the same again", {kept});
}

QueryRequest two_columns() {
  QueryRequest request;
  request.MotorBD = Engine::SqlServer;
  request.ColumnasSELECT = Array{{Value(u"Nombre"), Value(u"T"), Value(u"Alta"), Value(u"F")}, 0, 1};
  request.TablasFROM = u"Clientes";
  return request;
}

// `Query` with these members.
template <class Query>
void check_criterion(const Text& text, int members) {
  Query query, copy;
  for (int i = 0; i < members; ++i) require(query.Crear(two_columns()) && copy.Crear(two_columns()), "created");
  const Text before = described(query);
  query.CriterioActualCompleto(text);
  const Text kept = query.CriterioActualCompleto(), after = described(query);
  copy.CriterioActualCompleto(kept);
  require(copy.CriterioActualCompleto() == kept, "the complete criterion is stable", {text, kept});
  require(described(copy) == after, "and gives an equal query", {text, after, described(copy)});
  query.RestauraOriginal(true, true);
  require(described(query) == before, "all of it can be taken away", {text});
  require(fuzz_thread().take_boxes().empty(), "nothing is told", {text});
}

}  // namespace

// What the text is to be: a definition as it stands or with a right end mark, a union of such pieces, or a criterion.
void fuzz(FuzzInput& input) {
  fuzz_thread().speak(0);
  const std::size_t kind = input.choice("dsucv");
  if (kind == 2) {
    Text pieces;
    while (input.more()) pieces.append(pieces.empty() ? u"" : u"<*uSQL_TD*>").append(sealed(in_one_line(input.text())));
    return check_union(pieces);
  }
  const Text text = in_one_line(input.text());
  if (kind == 0) return check_definition(text);
  if (kind == 1) return check_definition(sealed(text));
  if (kind == 3) return check_criterion<cSQL20>(text, 1);
  check_criterion<uSQL20>(text, 2);
}

}  // namespace qvr::tests
