// The query of the manual's example, as it is after each call.
#include "dialect/manual_calls.h"
#include "query/csql20.h"

namespace qvr::tests {
namespace {

void create(cSQL20& query, Engine engine) {
  QueryRequest request;
  request.MotorBD = engine;
  request.NombreObjeto = u"Clientes";
  request.ColumnasSELECT = Array{{Value(Text(u"C.Nombre")), Value(Text(u"T+")), Value(Text(u"C.Alta")),
                                  Value(Text(u"F+")), Value(Text(u"Sum(P.Importe)")), Value(Text(u"N>Total"))},
                                 0,
                                 1};
  request.TablasFROM = u"Clientes C, Pedidos P";
  request.RelacionTablas = Array{{Value(Text(u"C.Id")), Value(Text(u"P.IdCliente")), Value(Text(u"L"))}, 0, 1};
  request.NumColumnasGROUPBY = 2;
  request.TextoORDERBYInicial = u"C.Nombre";
  query.Crear(request);
}

ManualCall after(std::string call, std::function<Text(cSQL20&)> use) {
  return {std::move(call), [use = std::move(use)](Engine engine) {
            cSQL20 query;
            create(query, engine);
            return use(query);
          }};
}

}  // namespace

ManualPage query_page() {
  return {"queries",
          {
              after("Consulta.SQL", [](cSQL20& query) { return query.SQL(); }),
              after("Consulta.InterpretarBusqueda(\"Nombre\", \"ana\")",
                    [](cSQL20& query) {
                      query.InterpretarBusqueda(u"Nombre", u"ana", u"");
                      return query.ParteWhere(false);
                    }),
              after("Consulta.InterpretarBusqueda(\"Total\", \">1000\")",
                    [](cSQL20& query) {
                      query.InterpretarBusqueda(u"Total", u">1000", u"");
                      return query.ParteHaving(false);
                    }),
              after("Consulta.AmpliarOrden(2)",
                    [](cSQL20& query) {
                      query.AmpliarOrden(2);
                      return query.ParteOrder(false);
                    }),
              after("Consulta.TOP = 10",
                    [](cSQL20& query) {
                      query.TOP(10);
                      return query.SQLSinOrden();
                    }),
          }};
}

}  // namespace qvr::tests
