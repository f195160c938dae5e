// cSQL20 and uSQL20.
#include <algorithm>

#include "faults/fault_case.h"
#include "query/query_fixture.h"
#include "query/usql20.h"

namespace qvr::tests {
namespace {

// Each field of each query by itself, and what the thread's language says.
template <class Query>
Lines texts_of(const Query& query) {
  const Text definition = query.TextoDefinicion();
  Lines all = {shown(query.Tag()), shown(query.ParteOrder(true)), shown(thread_state().idioma.CI(MsgEsComo))};
  for (const TextView field : split(definition, u"<*")) {
    if (!field.starts_with(u"fin=")) all.push_back(shown(field));  // it depends on all others
  }
  return all;
}

QueryRequest limited(Engine engine) {
  QueryRequest request = full(engine);
  request.TablasFROM += u", Lineas L";
  request.RelacionTablas = list({u"C.Id", u"P.IdCli", u"L", u"P.Id", u"L.IdPed", u"I"});
  request.UsarDistinct = true;
  request.TOP = 1000000;
  request.Idioma = 3;
  return request;
}

// With every clause, narrowed and sorted, and a thread with this language.
template <class Query, Engine engine, char16_t language>
struct QueryOn {
  QueryOn() {
    thread.load_language(TextView(&kLanguage, 1));
    thread.boxes.always = BoxAnswer::Ok;
    query.Crear(limited(engine));
    if constexpr (std::is_same_v<Query, cSQL20>) {
      query.AmpliarCondicionHaving(u"Sum(P.Imp)<1000", u"Total < 1000");
    } else {
      query.Crear(limited(engine));
    }
    query.AmpliarCondicionWhere(u"C.Provincia='Madrid'", u"Provincia = Madrid");
    query.InterpretarBusqueda(u"Nombre", u"Ana", u"");
    query.AmpliarOrden(4);
    query.AmpliarOrden(1);
    query.Tag(u"a tag of the host");
  }
  Lines texts() { return texts_of(query); }

  static constexpr char16_t kLanguage = language;
  TestThread thread;
  Query query;
};
using Select = QueryOn<cSQL20, Engine::SqlServer, u'1'>;
using FrenchSelect = QueryOn<cSQL20, Engine::Oracle, u'3'>;
using Union = QueryOn<uSQL20, Engine::SqlServer, u'1'>;

// The members of the contract that both classes have.
template <class On>
FaultCases contract_cases(const std::string& name) {
  const auto on = [&name](const char* member, auto call) {
    return fault_case<On>(name + member, [call](On& o) { return call(o.query); });
  };
  const auto changing = [&name](const char* member, auto call) {
    return fault_case_of_change<On>(name + member, [call](On& o) { call(o.query); });
  };
  On other;
  other.query.AmpliarOrden(2);
  other.query.AmpliarCondicionWhere(u"C.Clase='A'", u"Clase = A");
  const Text criterion = other.query.CriterioActualCompleto(), definition = Select().query.TextoDefinicion();
  const QueryRequest plain = full(Engine::SqlServer);
  return {
      on(".Name", [](auto& q) { return q.Name(); }),
      on(".SQL", [](auto& q) { return q.SQL(); }),
      on(".SQLSinOrden", [](auto& q) { return q.SQLSinOrden(); }),
      on(".SQLOriginal", [](auto& q) { return q.SQLOriginal(); }),
      on(".SQLOriginalSinOrden", [](auto& q) { return q.SQLOriginalSinOrden(); }),
      on(".ParteOrder", [](auto& q) { return q.ParteOrder(false); }),
      on(".TextoDefinicion", [](auto& q) { return q.TextoDefinicion(); }),
      on(".CriterioActual", [](auto& q) { return q.CriterioActual(); }),
      on(".CriterioActualCompleto", [](auto& q) { return q.CriterioActualCompleto(); }),
      on(".Tag", [](auto& q) { return q.Tag(); }),
      on(".TipoCampo", [](auto& q) { return q.TipoCampo(u"Total"); }),
      on(".TipoCampo, of no column", [](auto& q) { return q.TipoCampo(u"a column that is not there"); }),
      on(".Creado", [](auto& q) { return q.Creado(); }),
      on(".NumColumna", [](auto& q) { return q.NumColumna(u"total"); }),
      on(".NumColumnas", [](auto& q) { return q.NumColumnas(); }),
      on(".TOP", [](auto& q) { return q.TOP(); }),
      on(".Idioma", [](auto& q) { return q.Idioma(); }),
      on(".MotorBD", [](auto& q) { return q.MotorBD(); }),
      on(".Crear", [plain](auto& q) { return q.Crear(plain); }),
      on(".CrearDesdeTextoDefinicion", [definition](auto& q) { return q.CrearDesdeTextoDefinicion(definition); }),
      on(".InterpretarBusqueda", [](auto& q) { return q.InterpretarBusqueda(u"Nombre", u"Mart\u00ednez", u""); }),
      on(".AmpliarCondicionWhere", [](auto& q) { return q.AmpliarCondicionWhere(u"C.Clase='A'", u"Clase = A"); }),
      on(".AmpliarOrden", [](auto& q) { return q.AmpliarOrden(2); }),
      changing(".CambiaOrden", [](auto& q) { q.CambiaOrden(u"C.Nombre DESC"); }),
      changing(".AdoptaComoOriginal", [](auto& q) { q.AdoptaComoOriginal(true, true, true); }),
      changing(".RestauraOriginal", [](auto& q) { q.RestauraOriginal(true, true); }),
      changing(".CriterioActualCompleto=", [criterion](auto& q) { q.CriterioActualCompleto(criterion); }),
      changing(".Tag=", [](auto& q) { q.Tag(u"another tag of the host"); }),
      changing(".TOP=", [](auto& q) { q.TOP(10); }),
      changing(".Idioma=", [](auto& q) { q.Idioma(0); }),
      changing(".MotorBD=", [](auto& q) { q.MotorBD(Engine::Oracle); }),
  };
}

FaultCases cases_of_the_class() {
  const auto on = [](const char* name, auto call) {
    return fault_case<Select>(name, [call](Select& s) { return call(s.query); });
  };
  return {
      on("cSQL20.ParteWhere", [](cSQL20& q) { return q.ParteWhere(false); }),
      on("cSQL20.ParteHaving", [](cSQL20& q) { return q.ParteHaving(true); }),
      on("cSQL20.ExpresionOriginal", [](cSQL20& q) { return q.ExpresionOriginal(u"Total"); }),
      on("cSQL20.AmpliarCondicionHaving",
         [](cSQL20& q) { return q.AmpliarCondicionHaving(u"Count(*)>10", u"Cuenta > 10"); }),
      fault_case_of_change<Select>("cSQL20.CambiaCondicion",
                                   [](Select& s) { s.query.CambiaCondicion(u"C.Id=1000000", u"Sum(P.Imp)=1"); }),
      on("cSQL20.Crear, Oracle", [request = limited(Engine::Oracle)](cSQL20& q) { return q.Crear(request); }),
  };
}

// The searches of a French user, whose words are the longest: each shape of search on a column of each type.
FaultCase search(const char* column, TextView text) {
  const Text field(column, column + std::char_traits<char>::length(column));
  return fault_case<FrenchSelect>("cSQL20.InterpretarBusqueda, " + std::string(column) + " " + to_utf8(text),
                                  [field, text](FrenchSelect& s) {
                                    return s.query.InterpretarBusqueda(field, text, u"a label of the host");
                                  });
}

FaultCases search_cases() {
  return {
      search("Nombre", u"Mart*nez o \"de la Torre\" y no P\u00e9rez?"),
      search("Nombre", u"= Mart\u00ednez Garc\u00eda; is null"),
      search("Notas", u"una palabra y otra palabra"),
      search("Alta", u"desde 05/01/2011 hasta 31/12/2012"),
      search("Alta", u"!05/01/2011"),
      search("Total", u"entre 1234567.0625 y 2345678.125"),
  };
}

}  // namespace

FaultCases query_cases() {
  FaultCases all = contract_cases<Select>("cSQL20");
  for (FaultCases more : {contract_cases<Union>("uSQL20"), cases_of_the_class(), search_cases()}) {
    std::ranges::move(more, std::back_inserter(all));
  }
  return all;
}

}  // namespace qvr::tests
