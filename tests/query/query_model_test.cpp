// Long random sequences of everything that can be done to a query, each step beside a plain model of it.
#include "query/query_model.h"

#include <array>
#include <random>

#include "query/query_fixture.h"
#include "query/usql20.h"

namespace qvr::tests {
namespace {

constexpr TextView kWords[] = {u"",      u" ",           u"a=1",           u"A=1",   u"b=2",
                               u"x=(1)", u"1",           u"a=1) and (b=2", u"C.x<9", u" ROWNUM<=5 ",
                               u"x()",   u" a And b Or ", u"rownum<=7",    u"1,2"};
constexpr TextView kOriginals[] = {u"", u"", u"  ", u"C.Baja=0", u"C.Baja=0 And RowNum<=5 Or b", u"x or ROWNUM<=50 "};
constexpr TextView kFields[] = {u"nombre", u"TOTAL", u"c.Notas", u"Alta", u"nada"};
constexpr std::int32_t kTops[] = {0, 0, 5, 5, 7, 50, -1};
constexpr std::int32_t kLanguages[] = {0, 1, 3};

// A choice of its own, so that a seed gives the same steps with every standard library.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : engine_(seed) {}
  std::uint32_t below(std::uint32_t count) { return static_cast<std::uint32_t>(engine_() % count); }
  template <class T, std::size_t kCount>
  const T& of(const T (&choices)[kCount]) {
    return choices[below(kCount)];
  }
  bool flip() { return below(2) == 1; }

 private:
  std::mt19937 engine_;
};

QueryRequest random_request(Dice& dice) {
  constexpr TextView kColumns[][2] = {{u"C.Nombre", u"T+"}, {u"C.Alta", u"F>Alta"}, {u"C.Notas", u"M"},
                                      {u"Sum(P.Imp)", u"N>Total"}, {u"Nombre", u"F"}, {u"Count(*)", u""},
                                      {u"L.total", u"N+"}};
  constexpr TextView kRelations[][2] = {{u"C.Id", u"P.IdCli"}, {u"P.Id", u"l.IdPed"}, {u"L.Id", u"X.IdLin"}};
  constexpr TextView kLetters[] = {u"I", u"L", u"R", u"A"};
  std::vector<Value> columns, relations;
  const std::uint32_t count = 1 + dice.below(5);
  for (std::uint32_t i = 0; i < count; ++i) {
    const auto& column = dice.of(kColumns);
    columns.insert(columns.end(), {Value(Text(column[0])), Value(Text(column[1]))});
  }
  for (std::uint32_t i = dice.below(4) + 1; i > 0; --i) {
    const auto& relation = dice.of(kRelations);
    for (const TextView text : {relation[0], relation[1], dice.of(kLetters)}) relations.emplace_back(Text(text));
  }
  QueryRequest request;
  request.MotorBD = dice.of(kEngines);
  request.UsarDistinct = dice.flip();
  const std::int32_t lower = static_cast<std::int32_t>(dice.below(3)) - 1;
  request.ColumnasSELECT = dice.below(8) == 0 ? Value(u"Nombre") : list(columns, lower);
  request.TablasFROM = u"Clientes C,Pedidos P,Lineas L";
  if (dice.flip()) request.RelacionTablas = list(relations, lower);
  request.CondicionWHEREInicial = dice.of(kOriginals);
  request.NumColumnasGROUPBY = static_cast<std::int16_t>(dice.below(count + 1));
  request.CondicionHAVINGInicial = dice.of(kOriginals);
  request.TextoORDERBYInicial = dice.of(kOriginals);
  request.TOP = dice.of(kTops);
  request.Idioma = dice.of(kLanguages);
  return request;
}

// One call, chosen once and made on the query and on its model.
struct Step {
  explicit Step(Dice& dice)
      : kind(dice.below(24)), flags{dice.flip(), dice.flip(), dice.flip()}, first(dice.of(kWords)),
        second(dice.of(kWords)), column(static_cast<std::int16_t>(dice.below(8)) - 1), top(dice.of(kTops)),
        language(dice.of(kLanguages)), engine(dice.of(kEngines)), slot(dice.below(2)) {
    if (kind == 0) request = random_request(dice);
  }

  std::uint32_t kind;
  std::array<bool, 3> flags;
  TextView first, second;
  int column;
  std::int32_t top, language;
  Engine engine;
  std::size_t slot;
  QueryRequest request;
};

// A query or its model, with the texts that were taken from it.
template <class Query>
struct Subject {
  template <class... Args>
  explicit Subject(Args&... args) : query(args...) {}

  static constexpr bool kSelect = requires(Query& q) { q.ParteWhere(true); };

  // What the call gives; nothing for those that give nothing.
  int make(const Step& step) {
    switch (step.kind) {
      case 0: return query.Crear(step.request);
      case 1: case 2: case 3: return query.AmpliarCondicionWhere(step.first, step.second);
      case 4: case 5: case 6: case 7: return query.AmpliarOrden(static_cast<std::int16_t>(step.column));
      case 8: return query.CambiaOrden(step.first), 0;
      case 9: return query.RestauraOriginal(step.flags[0], step.flags[1]), 0;
      case 10: return query.AdoptaComoOriginal(step.flags[0], step.flags[1], step.flags[2]), 0;
      case 11: case 12: return query.TOP(step.top), 0;
      case 13: return query.Idioma(step.language), 0;
      case 14: return query.MotorBD(step.engine), 0;
      case 15: return query.Tag(step.first), 0;
      case 16: return definitions[step.slot] = query.TextoDefinicion(), 0;
      case 17: return query.CrearDesdeTextoDefinicion(definitions[step.slot]);
      case 18: case 19: return criteria[step.slot] = query.CriterioActualCompleto(), 0;
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
    std::vector<Text> lines = {query.SQL(), query.SQLSinOrden(), query.SQLOriginal(), query.SQLOriginalSinOrden(),
                               query.ParteOrder(false), query.ParteOrder(true), query.CriterioActual(), query.Tag(),
                               decimal(query.TOP()), decimal(query.MotorBD()), decimal(query.NumColumnas()),
                               query.Creado() ? u"created" : u"none"};
    for (const TextView field : kFields) {
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

class QueryModelTest : public QueryTest {
 protected:
  // The model goes first: it tells which boxes will have to be answered.
  template <class Query, class Model>
  void compare(std::uint32_t seed, int steps) {
    SCOPED_TRACE(seed);
    thread.load_language(u"0");
    Dice dice(seed);
    ModelThread model_thread;
    Subject<Model> model(model_thread);
    Subject<Query> real;
    for (int i = 0; i < steps; ++i) {
      const Step step(dice);
      const int expected = model.make(step);
      const Text state = model.state();
      int given = 0;
      EXPECT_EQ(showing(model_thread.boxes, [&] { return given = real.make(step), real.state(); }), state);
      EXPECT_EQ(given, expected);
      model_thread.boxes.clear();
      ASSERT_FALSE(HasFailure()) << "step " << i << " of kind " << step.kind;
    }
    created += real.query.Creado();
  }

  int created = 0;
};

TEST_F(QueryModelTest, OneSelect) {
  for (std::uint32_t seed = 1; seed <= 40; ++seed) compare<cSQL20, SelectModel>(seed, 100);
  EXPECT_GT(created, 20) << "most of them have something to do it to";
}

TEST_F(QueryModelTest, AUnion) {
  for (std::uint32_t seed = 101; seed <= 140; ++seed) compare<uSQL20, UnionModel>(seed, 60);
  EXPECT_GT(created, 20);
}

}  // namespace
}  // namespace qvr::tests
