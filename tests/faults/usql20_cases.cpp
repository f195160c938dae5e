// uSQL20.
#include <algorithm>

#include "faults/query_stage.h"

namespace qvr::tests {
namespace {

template <class Call>
FaultCase on(const char* name, std::string expected, Texts failures, Call call, Texts methods = {}) {
  return query_case<Union>(name, std::move(expected), std::move(failures), call, std::move(methods));
}

template <class Call>
FaultCase reading(const char* name, Call call, Texts methods = {}) {
  Union joined;
  return on(name, shown(call(joined)), {""}, call, std::move(methods));
}

template <class Call>
FaultCase changing(const char* name, Call call) {
  return on(name, "", {""}, [call](Union& u) { return call(u), Done(); });
}

std::vector<FaultCase> reading_cases() {
  return {
      plain_case(reading("uSQL20.Name", [](Union& u) { return u.query.Name(); })),
      reading("uSQL20.SQL", [](Union& u) { return u.query.SQL(); }),
      reading("uSQL20.SQLSinOrden", [](Union& u) { return u.query.SQLSinOrden(); }),
      reading("uSQL20.SQLOriginal", [](Union& u) { return u.query.SQLOriginal(); }),
      reading("uSQL20.SQLOriginalSinOrden", [](Union& u) { return u.query.SQLOriginalSinOrden(); }),
      reading("uSQL20.ParteOrder", [](Union& u) { return u.query.ParteOrder(false); }, {"ParteOrder"}),
      reading("uSQL20.TextoDefinicion", [](Union& u) { return u.query.TextoDefinicion(); }),
      reading("uSQL20.CriterioActual", [](Union& u) { return u.query.CriterioActual(); }),
      reading("uSQL20.CriterioActualCompleto", [](Union& u) { return u.query.CriterioActualCompleto(); }),
      reading("uSQL20.Tag", [](Union& u) { return u.query.Tag(); }),
      plain_case(reading("uSQL20.TipoCampo", [](Union& u) { return u.query.TipoCampo(u"Nombre"); })),
      plain_case(on("uSQL20.Creado", "True", {}, [](Union& u) { return u.query.Creado(); })),
      plain_case(on("uSQL20.NumColumna", "2", {}, [](Union& u) { return u.query.NumColumna(u"alta"); })),
      plain_case(on("uSQL20.NumColumnas", "2", {}, [](Union& u) { return u.query.NumColumnas(); })),
      plain_case(on("uSQL20.TOP", "0", {}, [](Union& u) { return u.query.TOP(); })),
      plain_case(on("uSQL20.Idioma", "0", {}, [](Union& u) { return u.query.Idioma(); })),
      plain_case(on("uSQL20.MotorBD", "2", {}, [](Union& u) { return u.query.MotorBD(); })),
  };
}

std::vector<FaultCase> changing_cases() {
  static const QueryRequest kRequest = full(Engine::SqlServer);
  std::vector<FaultCase> all = {
      on("uSQL20.Crear", "True", {"False"}, [](Union& u) { return u.query.Crear(kRequest); },
         {"Crear", "ConstruirSelect"}),
      on("uSQL20.AmpliarCondicionWhere", "True", {"False"},
         [](Union& u) { return u.query.AmpliarCondicionWhere(u"C.Clase='A'", u"Clase = A"); },
         {"AmpliarCondicionWhere"}),
      on("uSQL20.AmpliarOrden", "False", {"False"}, [](Union& u) { return u.query.AmpliarOrden(2); }, {"AmpliarOrden"}),
      changing("uSQL20.CambiaOrden", [](Union& u) { u.query.CambiaOrden(u"C.Nombre DESC"); }),
      plain_case(changing("uSQL20.RestauraOriginal", [](Union& u) { u.query.RestauraOriginal(true, true); })),
      plain_case(changing("uSQL20.MotorBD=", [](Union& u) { u.query.MotorBD(3); })),
      changing("uSQL20.Tag=", [](Union& u) { u.query.Tag(u"another tag of the host"); }),
  };
  return all;
}

// A union asks each of its queries by itself: where a change of several of them runs out of memory, some are changed
// and the others are as they were, each of them whole.
struct ByQuery : Union {
  std::string state() { return to_utf8(replace_all(query.TextoDefinicion(), u"<*uSQL_TD*>", u"\n")); }
};

template <class Call>
FaultCase of_each(const char* name, std::string expected, Texts failures, Call call, Texts methods = {}) {
  FaultCase row = query_case<ByQuery>(name, std::move(expected), std::move(failures), call, std::move(methods));
  row.leaves = Failed::LineByLine;
  return row;
}

std::vector<FaultCase> cases_of_each() {
  Union other;
  other.query.InterpretarBusqueda(u"Nombre", u"Mart\u00ednez", u"");
  const Text criterion = other.query.CriterioActualCompleto();
  return {
      of_each("uSQL20.AdoptaComoOriginal, of each", "", {""},
              [](ByQuery& u) { return u.query.AdoptaComoOriginal(true, true, true), Done(); }),
      of_each("uSQL20.CriterioActualCompleto=, of each", "", {""},
              [criterion](ByQuery& u) { return u.query.CriterioActualCompleto(criterion), Done(); }),
      of_each("uSQL20.TOP=, of each", "", {""}, [](ByQuery& u) { return u.query.TOP(1000000), Done(); }),
      of_each("uSQL20.InterpretarBusqueda, of each", "True", {"False"},
              [](ByQuery& u) { return u.query.InterpretarBusqueda(u"Nombre", u"Mart\u00ednez", u""); },
              {"AmpliarCondicionWhere", "TipoCampo(Nombre)"}),
  };
}

// One query, so that a change of all is a change of the whole.
struct Single {
  Single() {
    thread.load_language(u"1");
    thread.boxes.always = BoxAnswer::Ok;
    query.Crear(full(Engine::SqlServer));
    query.AmpliarCondicionWhere(u"C.Provincia='Madrid'", u"Provincia = Madrid");
  }
  std::string state() { return shown_query(query) + Select::text_in_language(); }
  TestThread thread;
  uSQL20 query;
};

template <class Call>
FaultCase changing_single(const char* name, Call call) {
  return query_case<Single>(name, "", {""}, [call](Single& u) { return call(u), Done(); });
}

std::vector<FaultCase> single_cases() {
  Single other;
  const Text definition = Select().query.TextoDefinicion();
  other.query.AmpliarCondicionWhere(u"C.Clase='A'", u"Clase = A");
  const Text criterion = other.query.CriterioActualCompleto();
  return {
      changing_single("uSQL20.AdoptaComoOriginal", [](Single& u) { u.query.AdoptaComoOriginal(true, true, true); }),
      changing_single("uSQL20.CriterioActualCompleto=",
                      [criterion](Single& u) { u.query.CriterioActualCompleto(criterion); }),
      changing_single("uSQL20.TOP=", [](Single& u) { u.query.TOP(1000000); }),
      changing_single("uSQL20.Idioma=", [](Single& u) { u.query.Idioma(3); }),
      query_case<Single>("uSQL20.InterpretarBusqueda", "True", {"False"},
                         [](Single& u) { return u.query.InterpretarBusqueda(u"Nombre", u"Mart\u00ednez", u""); },
                         {"AmpliarCondicionWhere", "TipoCampo(Nombre)"}),
      query_case<Single>("uSQL20.CrearDesdeTextoDefinicion", "True", {"False"},
                         [definition](Single& u) { return u.query.CrearDesdeTextoDefinicion(definition); },
                         {"CreareDesdeTextoDefinicion"}),
  };
}

}  // namespace

std::vector<FaultCase> usql20_cases() {
  std::vector<FaultCase> all = reading_cases();
  for (auto* cases : {changing_cases, single_cases, cases_of_each}) std::ranges::move(cases(), std::back_inserter(all));
  return all;
}

}  // namespace qvr::tests
