// cSQL20 but for its searches.
#include <algorithm>

#include "faults/query_stage.h"

namespace qvr::tests {
namespace {

template <class Call>
FaultCase on(const char* name, std::string expected, Texts failures, Call call, Texts methods = {}) {
  return query_case<Select>(name, std::move(expected), std::move(failures), call, std::move(methods));
}

// A text that the query has without any failure.
template <class Call>
FaultCase reading(const char* name, Call call, Texts methods = {}) {
  Select select;
  return on(name, shown(call(select)), {""}, call, std::move(methods));
}

// A change without a result.
template <class Call>
FaultCase changing(const char* name, Call call) {
  return on(name, "", {""}, [call](Select& s) { return call(s), Done(); });
}

// The box about a column that is not there is shown whole or not at all.
FaultCase failing_look_up() {
  FaultCase row = on("cSQL20.TipoCampo, of no column", "", {""},
                     [](Select& s) { return s.query.TipoCampo(u"a column that is not there"); },
                     {"TipoCampo(a column that is not there)"});
  row.log = {
      "Box OK: Object: cSQL20\r\nMethod: TipoCampo(a column that is not there)\r\n"
      "Error 5: Invalid procedure call or argument"};
  row.boxes.push_back(row.log[0]);
  return row;
}

std::vector<FaultCase> reading_cases() {
  return {
      plain_case(reading("cSQL20.Name", [](Select& s) { return s.query.Name(); })),
      reading("cSQL20.SQL", [](Select& s) { return s.query.SQL(); }),
      reading("cSQL20.SQLSinOrden", [](Select& s) { return s.query.SQLSinOrden(); }),
      reading("cSQL20.SQLOriginal", [](Select& s) { return s.query.SQLOriginal(); }),
      reading("cSQL20.SQLOriginalSinOrden", [](Select& s) { return s.query.SQLOriginalSinOrden(); }),
      reading("cSQL20.ParteWhere", [](Select& s) { return s.query.ParteWhere(false); }, {"ParteWhere"}),
      reading("cSQL20.ParteHaving", [](Select& s) { return s.query.ParteHaving(true); }, {"ParteHaving"}),
      reading("cSQL20.ParteOrder", [](Select& s) { return s.query.ParteOrder(false); }, {"ParteOrder"}),
      reading("cSQL20.TextoDefinicion", [](Select& s) { return s.query.TextoDefinicion(); }),
      reading("cSQL20.CriterioActual", [](Select& s) { return s.query.CriterioActual(); }),
      reading("cSQL20.CriterioActualCompleto", [](Select& s) { return s.query.CriterioActualCompleto(); }),
      reading("cSQL20.Tag", [](Select& s) { return s.query.Tag(); }),
      reading("cSQL20.ExpresionOriginal", [](Select& s) { return s.query.ExpresionOriginal(u"Total"); },
              {"ExpresionOriginal"}),
      plain_case(reading("cSQL20.TipoCampo", [](Select& s) { return s.query.TipoCampo(u"Total"); })),
      failing_look_up(),
      plain_case(on("cSQL20.Creado", "True", {}, [](Select& s) { return s.query.Creado(); })),
      plain_case(on("cSQL20.NumColumna", "4", {}, [](Select& s) { return s.query.NumColumna(u"total"); })),
      plain_case(on("cSQL20.NumColumnas", "4", {}, [](Select& s) { return s.query.NumColumnas(); })),
      plain_case(on("cSQL20.TOP", "0", {}, [](Select& s) { return s.query.TOP(); })),
      plain_case(on("cSQL20.Idioma", "0", {}, [](Select& s) { return s.query.Idioma(); })),
      plain_case(on("cSQL20.MotorBD", "2", {}, [](Select& s) { return s.query.MotorBD(); })),
  };
}

std::vector<FaultCase> changing_cases() {
  std::vector<FaultCase> all = {
      changing("cSQL20.CambiaCondicion", [](Select& s) { s.query.CambiaCondicion(u"C.Id=1000000", u"Sum(P.Imp)=1"); }),
      changing("cSQL20.CambiaOrden", [](Select& s) { s.query.CambiaOrden(u"C.Nombre DESC"); }),
      changing("cSQL20.AdoptaComoOriginal", [](Select& s) { s.query.AdoptaComoOriginal(true, true, true); }),
      plain_case(changing("cSQL20.RestauraOriginal", [](Select& s) { s.query.RestauraOriginal(true, true); })),
      changing("cSQL20.Tag=", [](Select& s) { s.query.Tag(u"another tag of the host"); }),
      changing("cSQL20.TOP=", [](Select& s) { s.query.TOP(1000000); }),
      changing("cSQL20.TOP=, another", [](Select& s) { s.query.TOP(s.query.TOP() == 0 ? 10 : 1000000); }),
      plain_case(changing("cSQL20.MotorBD=", [](Select& s) { s.query.MotorBD(3); })),
      on("cSQL20.AmpliarOrden", "False", {"False"}, [](Select& s) { return s.query.AmpliarOrden(2); },
         {"AmpliarOrden"}),
      on("cSQL20.AmpliarCondicionWhere", "True", {"False"},
         [](Select& s) { return s.query.AmpliarCondicionWhere(u"C.Clase='A'", u"Clase = A"); },
         {"AmpliarCondicionWhere"}),
      on("cSQL20.AmpliarCondicionHaving", "True", {"False"},
         [](Select& s) { return s.query.AmpliarCondicionHaving(u"Count(*)>10", u"Cuenta > 10"); },
         {"AmpliarCondicionHaving"}),
  };
  Select other;
  other.query.AmpliarOrden(2);
  other.query.AmpliarCondicionWhere(u"C.Clase='A'", u"Clase = A");
  const Text criterion = other.query.CriterioActualCompleto();
  all.push_back(changing("cSQL20.CriterioActualCompleto=",
                         [criterion](Select& s) { s.query.CriterioActualCompleto(criterion); }));
  return all;
}

// So many conditions that they are looked for by an index, which is made in the call.
FaultCase long_case() {
  struct Long : Select {
    Long() {
      cSQL20 other;
      for (int i = 1000000; i < 1000100; ++i) {
        other.AmpliarCondicionWhere(join({u"C.Codigo='", decimal(i), u"' Or C.Codigo Is Null"}), u"");
      }
      query.CriterioActualCompleto(other.CriterioActualCompleto());
    }
  };
  return query_case<Long>("cSQL20.AmpliarCondicionWhere, one more of many", "True", {"False"},
                          [](Long& s) { return s.query.AmpliarCondicionWhere(u"C.Clase='A'", u"Clase = A"); },
                          {"AmpliarCondicionWhere"});
}

// The language of the query is changed in any case, that of the thread only as a whole.
FaultCase language_case() {
  struct InEnglish : Select {
    std::string state() { return text_in_language(); }
  };
  return query_case<InEnglish>("cSQL20.Idioma=", "", {""}, [](InEnglish& s) { return s.query.Idioma(3), Done(); });
}

std::vector<FaultCase> creating_cases() {
  // What a failed creation leaves is no query; more is not promised.
  struct Created : Select {
    std::string state() { return query.Creado() ? Select::state() : "no query"; }
  };
  struct NewOnOracle : Created {
    NewOnOracle() { request.RelacionTablas = list({u"C.Id", u"P.IdCli", u"L"}); }
    QueryRequest request = full(Engine::Oracle);
  };
  static const QueryRequest kRequest = [] {
    QueryRequest request = full(Engine::SqlServer);
    request.TablasFROM += u", Lineas L";
    request.RelacionTablas = list({u"C.Id", u"P.IdCli", u"L", u"P.Id", u"L.IdPed", u"I"});
    request.UsarDistinct = true;
    request.TOP = 1000000;
    return request;
  }();
  const Text definition = Select().query.TextoDefinicion();
  std::vector<FaultCase> all = {
      query_case<Created>("cSQL20.Crear", "True", {"False"}, [](Created& s) { return s.query.Crear(kRequest); },
                          {"Crear", "ConstruirSelect"}),
      query_case<NewOnOracle>("cSQL20.Crear, Oracle", "True", {"False"},
                              [](NewOnOracle& s) { return s.query.Crear(s.request); }, {"Crear", "ConstruirSelect"}),
      query_case<Created>("cSQL20.CrearDesdeTextoDefinicion", "True", {"False"},
                          [definition](Created& s) { return s.query.CrearDesdeTextoDefinicion(definition); },
                          {"CreareDesdeTextoDefinicion"}),
  };
  for (FaultCase& row : all) row.leaves = Failed::Emptied, row.emptied = "no query";
  return all;
}

}  // namespace

std::vector<FaultCase> csql20_cases() {
  std::vector<FaultCase> all = reading_cases();
  for (auto* cases : {changing_cases, creating_cases}) std::ranges::move(cases(), std::back_inserter(all));
  all.push_back(language_case());
  all.push_back(long_case());
  return all;
}

}  // namespace qvr::tests
