// What a query's members cost beside the bare copying of the statement's text, for 1, 10 and 100 columns.
#include "query/csql20.h"
#include "run.h"

namespace {

using qvr::Text;

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

// The measure of all others: the same text, copied.
void Copy(benchmark::State& state) {
  qvr::cSQL20 query;
  query.Crear(request(state.range(0)));
  const Text statement = query.SQL();
  for (auto _ : state) {
    Text copy = statement;
    benchmark::DoNotOptimize(copy.data());
  }
}

void CrearAndSQL(benchmark::State& state) {
  const qvr::QueryRequest what = request(state.range(0));
  qvr::cSQL20 query;
  for (auto _ : state) {
    query.Crear(what);
    Text statement = query.SQL();
    benchmark::DoNotOptimize(statement.data());
  }
}

void SQL(benchmark::State& state) {
  qvr::cSQL20 query;
  query.Crear(request(state.range(0)));
  for (auto _ : state) {
    Text statement = query.SQL();
    benchmark::DoNotOptimize(statement.data());
  }
}

void AddedCondition(benchmark::State& state) {
  qvr::cSQL20 query;
  query.Crear(request(state.range(0)));
  for (auto _ : state) {
    query.AmpliarCondicionWhere(u"T1.Pais='ES'", u"Pais = ES");
    query.RestauraOriginal(true, true);
  }
}

void ClickOnColumn(benchmark::State& state) {
  qvr::cSQL20 query;
  query.Crear(request(state.range(0)));
  for (auto _ : state) query.AmpliarOrden(1);
}

void SearchText(benchmark::State& state) {
  qvr::cSQL20 query;
  query.Crear(request(state.range(0)));
  for (auto _ : state) {
    query.InterpretarBusqueda(u"Columna 1", u"ana l\u00f3pez; *S.L.", u"");
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
  qvr::bench::registered("SQL", SQL, {1, 10, 100});
  qvr::bench::registered("CrearAndSQL", CrearAndSQL, {1, 10, 100});
  qvr::bench::registered("AddedCondition", AddedCondition, {1, 10, 100});
  qvr::bench::registered("ClickOnColumn", ClickOnColumn, {1, 10, 100});
  qvr::bench::registered("SearchText", SearchText, {1, 10, 100});
  qvr::bench::registered("DefinitionRoundTrip", DefinitionRoundTrip, {1, 10, 100});
  qvr::bench::run_all(count, arguments);
}
