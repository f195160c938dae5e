// All calls on a query as steps, chosen at random, which the reference model makes as well.
#pragma once

#include <array>
#include <vector>

#include "query/query_model.h"

namespace qvr::tests {

// Where the choices come from: a seed, or bytes.
class Choices {
 public:
  virtual ~Choices() = default;
  virtual std::uint32_t below(std::uint32_t count) = 0;

  template <class T, std::size_t kCount>
  const T& of(const T (&choices)[kCount]) {
    return choices[below(kCount)];
  }
  bool flip() { return below(2) == 1; }
};

// One call, chosen once and made on the query and on its model.
struct Step {
  explicit Step(Choices& choices);

  std::uint32_t kind;
  std::array<bool, 3> flags;
  TextView first, second;
  int column;
  std::int32_t top, language;
  Engine engine;
  std::size_t slot;
  QueryRequest request;
};

// The names that a state asks for.
inline constexpr TextView kStepFields[] = {u"nombre", u"TOTAL", u"c.Notas", u"Alta", u"nada"};

// A query or its model, with the texts that were taken from it.
template <class Query>
struct Subject {
  template <class... Args>
  explicit Subject(Args&... args) : query(args...) {}

  static constexpr bool kSelect = requires(Query & q) { q.ParteWhere(true); };

  // What the call gives; nothing for those that give nothing.
  int make(const Step& step) {
    switch (step.kind) {
      case 0: return query.Crear(step.request);
      case 1:
      case 2:
      case 3: return query.AmpliarCondicionWhere(step.first, step.second);
      case 4:
      case 5:
      case 6:
      case 7: return query.AmpliarOrden(static_cast<std::int16_t>(step.column));
      case 8: return query.CambiaOrden(step.first), 0;
      case 9: return query.RestauraOriginal(step.flags[0], step.flags[1]), 0;
      case 10: return query.AdoptaComoOriginal(step.flags[0], step.flags[1], step.flags[2]), 0;
      case 11:
      case 12: return query.TOP(step.top), 0;
      case 13: return query.Idioma(step.language), 0;
      case 14: return query.MotorBD(step.engine), 0;
      case 15: return query.Tag(step.first), 0;
      case 16: return definitions[step.slot] = query.TextoDefinicion(), 0;
      case 17: return query.CrearDesdeTextoDefinicion(definitions[step.slot]);
      case 18:
      case 19: return criteria[step.slot] = query.CriterioActualCompleto(), 0;
      case 20: return query.CriterioActualCompleto(criteria[step.slot]), 0;
      case 21: return query.Idioma();
      default: return make_of_select(step);
    }
  }

  int make_of_select(const Step& step) {
    if constexpr (kSelect) {
      if (step.kind == 22) return query.AmpliarCondicionHaving(step.first, step.second);
      if (step.flags[0]) query.CambiaCondicion(step.first, step.second);
    }
    return 0;
  }

  // Every getter that changes nothing, one to a line.
  Text state() const {
    std::vector<Text> lines = {query.SQL(),
                               query.SQLSinOrden(),
                               query.SQLOriginal(),
                               query.SQLOriginalSinOrden(),
                               query.ParteOrder(false),
                               query.ParteOrder(true),
                               query.CriterioActual(),
                               query.Tag(),
                               decimal(query.TOP()),
                               decimal(number_of(query.MotorBD())),
                               decimal(query.NumColumnas()),
                               query.Creado() ? u"created" : u"none"};
    for (const TextView field : kStepFields) {
      lines.push_back(decimal(query.NumColumna(field)));
      lines.push_back(query.TipoCampo(field));
      if constexpr (kSelect) lines.push_back(query.ExpresionOriginal(field));
    }
    if constexpr (kSelect) {
      lines.insert(lines.end(), {query.ParteWhere(false), query.ParteWhere(true), query.ParteHaving(false),
                                 query.ParteHaving(true), decimal(query.Idioma())});
    }
    return join(lines, u"\n");
  }

  Query query;
  std::array<Text, 2> definitions, criteria;
};

}  // namespace qvr::tests
