// What a query's members cost beside the bare copying of the statement's text, for 1, 10 and 100 columns: the first
// list, a typed search, and a saved definition made and read again.
#include "query/csql20.h"
#include "run.h"

namespace {

using qvr::Text;

constexpr qvr::TextView kTyped = u"ana l\u00f3pez; *S.L.";

qvr::Array columns(std::int64_t count) {
  qvr::Array pairs;
  for (std::int64_t i = 1; i <= count; ++i) {
    const Text number = qvr::decimal(i);
    pairs.items.emplace_back(u"T" + qvr::decimal(i % 4 + 1) + u".Columna" + number);
    pairs.items.emplace_back(u"T>Columna " + number);
  }
  return pairs;
}

qvr::Array relations() {
  qvr::Array triples;
  for (const char16_t* item : {u"T1.Id", u"T2.Id1", u"I", u"T2.Id", u"T3.Id2", u"L", u"T3.Id", u"T4.Id3", u"L"}) {
    triples.items.emplace_back(Text(item));
  }
  return triples;
}

qvr::QueryRequest request(std::int64_t count) {
  qvr::QueryRequest request;
  request.MotorBD = qvr::Engine::SqlServer;
  request.ColumnasSELECT = columns(count);
  request.TablasFROM = u"Clientes T1, Pedidos T2, Lineas T3, Articulos T4";
  request.RelacionTablas = relations();
  request.CondicionWHEREInicial = u"T1.Baja=0";
  request.TextoORDERBYInicial = u"1";
  return request;
}

// The baseline: copying the same text.
void Copy(benchmark::State& state) {
  qvr::cSQL20 query;
  query.Crear(request(state.range(0)));
  const Text statement = query.SQL();
  for (auto _ : state) {
    Text copy = statement;
    benchmark::DoNotOptimize(copy.data());
  }
}

// From the columns to the statement of a list that shows what was searched.
void FirstList(benchmark::State& state) {
  const qvr::QueryRequest what = request(state.range(0));
  qvr::cSQL20 query;
  for (auto _ : state) {
    query.Crear(what);
    query.InterpretarBusqueda(u"Columna 1", kTyped, u"");
    Text statement = query.SQL();
    benchmark::DoNotOptimize(statement.data());
  }
}

void SearchText(benchmark::State& state) {
  qvr::cSQL20 query;
  query.Crear(request(state.range(0)));
  for (auto _ : state) {
    query.InterpretarBusqueda(u"Columna 1", kTyped, u"");
    query.RestauraOriginal(true, true);
  }
}

void DefinitionRoundTrip(benchmark::State& state) {
  qvr::cSQL20 query;
  query.Crear(request(state.range(0)));
  for (auto _ : state) query.CrearDesdeTextoDefinicion(query.TextoDefinicion());
}

}  // namespace

int main(int count, char** arguments) {
  qvr::bench::registered("Copy", Copy, {1, 10, 100});
  qvr::bench::registered("FirstList", FirstList, {1, 10, 100});
  qvr::bench::registered("SearchText", SearchText, {1, 10, 100});
  qvr::bench::registered("DefinitionRoundTrip", DefinitionRoundTrip, {1, 10, 100});
  qvr::bench::run_all(count, arguments);
}
