// Queries to fail with, and all that they show.
#pragma once

#include "faults/fault_case.h"
#include "query/csql20.h"
#include "query/query_fixture.h"
#include "query/usql20.h"

namespace qvr::tests {

template <class Query>
std::string shown_query(const Query& query) {
  std::string all = shown(query.Creado());
  for (const Text& part :
       {query.SQL(), query.SQLOriginal(), query.SQLOriginalSinOrden(), query.SQLSinOrden(), query.TextoDefinicion(),
        query.CriterioActual(), query.CriterioActualCompleto(), query.ParteOrder(true), query.Tag()}) {
    all += "\n" + shown(part);
  }
  return all + "\n" + std::to_string(query.NumColumnas()) + " " + std::to_string(query.TOP()) + " " +
         std::to_string(query.MotorBD());
}

// A query with every clause, narrowed and sorted, and a thread with this language.
template <Engine engine, char16_t language>
struct SelectOn {
  SelectOn() {
    thread.load_language(TextView(&kLanguage, 1));
    thread.boxes.always = BoxAnswer::Ok;
    query.Crear(full(engine));
    query.AmpliarCondicionWhere(u"C.Provincia='Madrid'", u"Provincia = Madrid");
    query.AmpliarCondicionHaving(u"Sum(P.Imp)<1000", u"Total < 1000");
    query.AmpliarOrden(4);
    query.AmpliarOrden(1);
    query.Tag(u"a tag of the host");
  }
  static constexpr char16_t kLanguage = language;
  std::string state() { return shown_query(query) + " " + std::to_string(query.Idioma()) + text_in_language(); }
  static std::string text_in_language() { return shown(thread_state().idioma.CI(MsgEsComo)); }

  TestThread thread;
  cSQL20 query;
};
using Select = SelectOn<Engine::SqlServer, u'1'>;
using FrenchSelect = SelectOn<Engine::Oracle, u'3'>;

// Three of them with UNION between.
struct Union {
  Union() {
    thread.load_language(u"1");
    thread.boxes.always = BoxAnswer::Ok;
    for (const TextView table : {u"Clientes", u"Proveedores de compras", u"Contactos"}) {
      query.Crear(request(Engine::SqlServer, list({u"C.Nombre de cada uno", u"T>Nombre", u"C.Alta", u"F+"}), Text(table)));
      query.AmpliarCondicionWhere(u"C.Provincia='Madrid'", u"Provincia = Madrid");
    }
    query.AmpliarOrden(1);
    query.Tag(u"a tag of the host");
  }
  std::string state() { return shown_query(query) + Select::text_in_language(); }

  TestThread thread;
  uSQL20 query;
};

inline std::string english_box(const std::string& method) {
  return "Box OK: Object: cSQL20\r\nMethod: " + method + "\r\nError 7: Out of memory";
}

template <class Fixture, class Call>
FaultCase query_case(std::string name, std::string expected, Texts failures, Call call, Texts methods = {}) {
  FaultCase row = fault_case<Fixture>(std::move(name), std::move(expected), std::move(failures), call);
  for (const std::string& method : methods) row.boxes.push_back(english_box(method));
  return row;
}

// What needs no memory.
inline FaultCase plain_case(FaultCase row) {
  row.allocates = false;
  return row;
}

}  // namespace qvr::tests
