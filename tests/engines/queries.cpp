// Whole queries of a small business: what the engine makes of them while a user narrows, sorts and limits them.
#include "engines/checked_script.h"
#include "query/csql20.h"
#include "query/search/search_fixture.h"
#include "query/usql20.h"

namespace qvr::tests {
namespace {

Value list(std::vector<Value> items) { return Array{std::move(items), 0, 1}; }

void fill(CheckedScript& script) {
  for (const TextView statement :
       {u"CREATE TABLE Customers (Id INT, Name VARCHAR(40), Town VARCHAR(40), Since TIMESTAMP, Active INT)",
        u"CREATE TABLE Orders (Id INT, Customer INT, Placed TIMESTAMP, Notes VARCHAR(200))",
        u"CREATE TABLE Lines (OrderId INT, Article INT, Quantity INT)",
        u"CREATE TABLE Articles (Id INT, Name VARCHAR(40), Price NUMERIC(10,2))",
        u"INSERT INTO Customers VALUES (1,'Ana L\u00f3pez','Madrid',TIMESTAMP '2010-12-31 23:59:59',1),"
        u"(2,'O''Neil','C\u00e1diz',TIMESTAMP '2011-01-05 14:07:09',1),(3,'Bea','Madrid',Null,0)",
        u"INSERT INTO Orders VALUES (10,1,TIMESTAMP '2011-01-05 00:00:00','urgente'),"
        u"(11,1,TIMESTAMP '2011-01-05 23:59:59',Null),(12,2,TIMESTAMP '2011-02-01 00:00:00','50% pagado'),"
        u"(13,3,TIMESTAMP '2011-03-01 00:00:00','normal')",
        u"INSERT INTO Lines VALUES (10,100,2),(10,101,1),(11,100,5),(12,102,3),(13,101,7)",
        u"INSERT INTO Articles VALUES (100,'Pan',1.5),(101,'Vino',10),(102,'Queso',4.25)"}) {
    script.run(statement);
  }
}

// Ten columns of four tables.
QueryRequest lines_of_orders(Engine engine) {
  QueryRequest request;
  request.MotorBD = engine;
  request.NombreObjeto = u"Lineas";
  request.ColumnasSELECT = list({Text(u"O.Id"),
                                 Text(u"N>Pedido"),
                                 Text(u"C.Name"),
                                 Text(u"T>Cliente"),
                                 Text(u"C.Town"),
                                 Text(u"T>Ciudad"),
                                 Text(u"C.Since"),
                                 Text(u"F>Alta"),
                                 Text(u"C.Active"),
                                 Text(u"L>Activo"),
                                 Text(u"O.Placed"),
                                 Text(u"F>Fecha"),
                                 Text(u"O.Notes"),
                                 Text(u"M>Notas"),
                                 Text(u"A.Name"),
                                 Text(u"T>Articulo"),
                                 Text(u"L.Quantity"),
                                 Text(u"N>Cantidad"),
                                 Text(u"L.Quantity*A.Price"),
                                 Text(u"N>Importe")});
  request.TablasFROM = u"Customers C, Orders O, Lines L, Articles A";
  request.RelacionTablas = list({Text(u"C.Id"), Text(u"O.Customer"), Text(u"I"), Text(u"O.Id"), Text(u"L.OrderId"),
                                 Text(u"I"), Text(u"L.Article"), Text(u"A.Id"), Text(u"I")});
  return request;
}

class QueryOnEngine {
 public:
  QueryOnEngine(CheckedScript& script, const char* name, iSQL20& query) : script_(script), name_(name), query_(query) {}

  // The statement gives this many rows, and this sum of a column that it calls `field`.
  void gives(const char* step, int rows, TextView field, TextView sum) {
    const std::string name = std::string(name_) + ", " + step;
    const Text column = script_.oracle() ? join({u"\"", field, u"\""}) : join({u"[", field, u"]"});
    for (const Text& statement : {query_.SQL(), query_.SQLSinOrden()}) {
      const Text from = join({u" FROM (", statement, u") Q)="});
      script_.check(name + ": rows", join({u"(SELECT Count(*)", from, decimal(rows)}));
      script_.check(name + ": sum", join({u"(SELECT Coalesce(Sum(", column, u"),0)", from, sum}));
    }
  }
  void search(TextView field, TextView typed) { query_.InterpretarBusqueda(field, typed, u""); }

 private:
  CheckedScript& script_;
  const char* name_;
  iSQL20& query_;
};

void add_list(CheckedScript& script) {
  cSQL20 query;
  query.Crear(lines_of_orders(script.engine()));
  QueryOnEngine on(script, "list", query);
  on.gives("as created", 5, u"Importe", u"103.25");
  on.search(u"Cliente", u"ana");
  on.gives("of a customer", 3, u"Importe", u"20.5");
  on.search(u"Fecha", u"05/01/2011");
  on.search(u"Cantidad", u">1");
  on.gives("narrowed three times", 2, u"Importe", u"10.5");
  query.AmpliarOrden(9);
  query.AmpliarOrden(6);
  on.gives("sorted", 2, u"Pedido", u"21");
  query.TOP(1);
  on.gives("limited", 1, u"Activo", u"1");
  query.TOP(0);
  query.RestauraOriginal(true, true);
  on.gives("restored", 5, u"Importe", u"103.25");
  on.search(u"Notas", u"!urgente");
  on.gives("without a word", 3, u"Cantidad", u"15");
  query.AdoptaComoOriginal(true, true, true);
  on.search(u"Alta", u"= ; 2011");
  on.gives("adopted and narrowed", 2, u"Cantidad", u"10");
  cSQL20 again;
  again.CrearDesdeTextoDefinicion(query.TextoDefinicion());
  QueryOnEngine(script, "list", again).gives("from its definition", 2, u"Cantidad", u"10");
}

void add_groups(CheckedScript& script) {
  QueryRequest request = lines_of_orders(script.engine());
  request.ColumnasSELECT = list(
      {Text(u"C.Name"), Text(u"T>Cliente"), Text(u"Sum(L.Quantity*A.Price)"), Text(u"N>Total")});
  request.NumColumnasGROUPBY = 1;
  request.CondicionHAVINGInicial = u"Count(*)>0";
  request.TextoORDERBYInicial = u"1";
  cSQL20 query;
  query.Crear(request);
  QueryOnEngine on(script, "groups", query);
  on.gives("as created", 3, u"Total", u"103.25");
  on.search(u"Total", u"10..25");
  on.gives("of some size", 2, u"Total", u"33.25");
  on.search(u"Cliente", u"o'n*");
  on.gives("of one customer", 1, u"Total", u"12.75");
}

void add_union(CheckedScript& script) {
  uSQL20 query;
  QueryRequest first, second;
  first.MotorBD = second.MotorBD = script.engine();
  first.ColumnasSELECT = list({Text(u"Id"), Text(u"N>Clave"), Text(u"Name"), Text(u"T>Nombre")});
  second.ColumnasSELECT = first.ColumnasSELECT;
  first.TablasFROM = u"Customers";
  first.TextoORDERBYInicial = u"2";
  second.TablasFROM = u"Articles";
  query.Crear(first);
  query.Crear(second);
  QueryOnEngine on(script, "union", query);
  on.gives("as created", 6, u"Clave", u"309");
  on.search(u"Nombre", u"*a*");
  on.gives("narrowed", 3, u"Clave", u"104");
}

}  // namespace

void add_queries(CheckedScript& script) {
  TestThread thread;
  speak(thread, kSpanish);
  fill(script);
  add_list(script);
  add_groups(script);
  add_union(script);
}

}  // namespace qvr::tests
