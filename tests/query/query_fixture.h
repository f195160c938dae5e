// Queries to begin with, and the message boxes that their members show to a Spanish user.
#pragma once

#include "dialect/dialect_fixture.h"
#include "query/csql20.h"

namespace qvr::tests {

inline constexpr Engine kEngines[] = {Engine::Jet, Engine::SqlServer, Engine::Oracle, kNoEngine};

inline QueryRequest request(Engine engine, Value columns, Text tables = u"Clientes") {
  QueryRequest request;
  request.MotorBD = engine;
  request.ColumnasSELECT = std::move(columns);
  request.TablasFROM = std::move(tables);
  return request;
}

// One column of one table.
inline QueryRequest plain(Engine engine) { return request(engine, list({u"Nombre", u"T"})); }

// Every clause, and a column of each kind.
inline QueryRequest full(Engine engine) {
  const Value columns = list({u"C.Nombre", u"T+", u"C.Alta", u"F+", u"C.Notas", u"M+", u"Sum(P.Imp)", u"N>Total"});
  QueryRequest full = request(engine, columns, u"Clientes C, Pedidos P");
  full.NombreObjeto = u"Ventas";
  full.RelacionTablas = list({u"C.Id", u"P.IdCli", u"I"});
  full.CondicionWHEREInicial = u"C.Baja=0";
  full.NumColumnasGROUPBY = 3;
  full.CondicionHAVINGInicial = u"Sum(P.Imp)>0";
  full.TextoORDERBYInicial = u"C.Nombre";
  return full;
}

// The box of a member that failed, with the failure's number.
inline Text failed(TextView procedure, std::int32_t number) {
  return join(
      {u"Objeto: cSQL20\r\nM\u00e9todo: ", procedure, u"\r\nError ", decimal(number), u": ", description_of(number)});
}

class QueryTest : public DialectTest {
 protected:
  // The call's result, after these boxes and no other.
  template <class Call>
  auto showing(const std::vector<Text>& boxes, const Call& call) {
    Lines expected;
    for (const Text& box : boxes) {
      expected.push_back("Box OK: " + to_utf8(box));
      thread.boxes.answer(BoxAnswer::Ok);
    }
    auto result = call();
    EXPECT_EQ(thread.log.take(), expected);
    return result;
  }
};

}  // namespace qvr::tests
