#include "query/query_steps.h"

namespace qvr::tests {
namespace {

constexpr TextView kWords[] = {u"",          u" ",           u"a=1", u"A=1",
                               u"b=2",       u"x=(1)",       u"1",   u"a=1) and (b=2",
                               u"C.x<9",     u" ROWNUM<=5 ", u"x()", u" a And b Or ",
                               u"rownum<=7", u"1,2"};
constexpr TextView kOriginals[] = {u"", u"", u"  ", u"C.Baja=0", u"C.Baja=0 And RowNum<=5 Or b", u"x or ROWNUM<=50 "};
constexpr std::int32_t kTops[] = {0, 0, 5, 5, 7, 50, -1};
constexpr std::int32_t kLanguages[] = {0, 1, 3};
constexpr Engine kEngines[] = {Engine::Jet, Engine::SqlServer, Engine::Oracle, Engine::None};

QueryRequest chosen_request(Choices& choices) {
  constexpr TextView kColumns[][2] = {{u"C.Nombre", u"T+"}, {u"C.Alta", u"F>Alta"},
                                      {u"C.Notas", u"M"},   {u"Sum(P.Imp)", u"N>Total"},
                                      {u"Nombre", u"F"},    {u"Count(*)", u""},
                                      {u"L.total", u"N+"},  {u"(Select top 5 x From y)", u"N>x"}};
  constexpr TextView kRelations[][2] = {{u"C.Id", u"P.IdCli"}, {u"P.Id", u"l.IdPed"}, {u"L.Id", u"X.IdLin"}};
  constexpr TextView kLetters[] = {u"I", u"L", u"R", u"A"};
  std::vector<Value> columns, relations;
  const std::uint32_t count = 1 + choices.below(5);
  for (std::uint32_t i = 0; i < count; ++i) {
    const auto& column = choices.of(kColumns);
    columns.insert(columns.end(), {Value(Text(column[0])), Value(Text(column[1]))});
  }
  for (std::uint32_t i = choices.below(4) + 1; i > 0; --i) {
    const auto& relation = choices.of(kRelations);
    for (const TextView text : {relation[0], relation[1], choices.of(kLetters)}) relations.emplace_back(Text(text));
  }
  QueryRequest request;
  request.MotorBD = choices.of(kEngines);
  request.UsarDistinct = choices.flip();
  const std::int32_t lower = static_cast<std::int32_t>(choices.below(3)) - 1;
  request.ColumnasSELECT = choices.below(8) == 0 ? Value(u"Nombre") : Value(Array{columns, lower, 1});
  request.TablasFROM = u"Clientes C,Pedidos P,Lineas L";
  if (choices.flip()) request.RelacionTablas = Array{relations, lower, 1};
  request.CondicionWHEREInicial = choices.of(kOriginals);
  request.NumColumnasGROUPBY = static_cast<std::int16_t>(choices.below(count + 1));
  request.CondicionHAVINGInicial = choices.of(kOriginals);
  request.TextoORDERBYInicial = choices.of(kOriginals);
  request.TOP = choices.of(kTops);
  request.Idioma = choices.of(kLanguages);
  return request;
}

}  // namespace

Step::Step(Choices& choices)
    : kind(choices.below(24)),
      flags{choices.flip(), choices.flip(), choices.flip()},
      first(choices.of(kWords)),
      second(choices.of(kWords)),
      column(static_cast<std::int16_t>(choices.below(8)) - 1),
      top(choices.of(kTops)),
      language(choices.of(kLanguages)),
      engine(choices.of(kEngines)),
      slot(choices.below(2)) {
  if (kind == 0) request = chosen_request(choices);
}

}  // namespace qvr::tests
