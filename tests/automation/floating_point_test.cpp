// Whatever rounding mode, precision and exception mask a host sets, numbers, dates and amounts are the same, no
// exception is raised, and the host's state is restored.
#include <cmath>
#include <limits>

#include "automation/arrays.h"
#include "automation/both.h"
#include "automation/boxes.h"
#include "automation/family_component.h"
#include "automation/floating_point_state.h"
#include "automation/library.h"
#include "automation/prepared_call.h"
#include "automation/script_folder.h"
#include "automation/sink.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

LateObject connection_parameters(int engine) {
  LateObject made(L"QVRlib21.QVRcfp");
  made.call(L"Asignar", {L"id", engine, L"", L"", L"", L"", L"", L"", L"", L""});
  return made;
}

LateObject sql_server() { return connection_parameters(2); }
LateObject jet() { return connection_parameters(1); }
LateObject runner() { return LateObject(L"QVRlib21.QVRScr"); }

LateObject properties() {
  LateObject made(L"QVRlib21.QVRprp");
  made.call(L"CreaPropiedad", {L"N", L"Precio", 0.1});
  made.call(L"CreaPropiedad", {L"T", L"Nombre", L"Ana"});
  made.call(L"CreaPropiedad", {L"F", L"Alta", Var::date(40548.75)});
  return made;
}

LateObject query_of(const wchar_t* program_id) {
  LateObject made(program_id);
  made.call(L"iSQL20_Crear",
            {2, L"Pedidos", false, array_of({L"P.Total", L"N>Importe", L"P.Fecha", L"F+"}, 1), L"Pedidos P"});
  return made;
}
LateObject query() { return query_of(L"QVRlib21.cSQL20"); }
LateObject union_query() { return query_of(L"QVRlib21.uSQL20"); }

struct Row {
  const char* name;
  LateObject (*subject)();
  const wchar_t* member;
  std::vector<Var> arguments;
  const char* expected;  // a property that is read afterwards behind "; "
  WORD kind = DISPATCH_METHOD;
  const wchar_t* read_after = nullptr;
  TextView trace = {};
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const double kThird = 1.0 / 3;
const Var kMoment = Var::date(40548.999994);

std::vector<Row> rows() {
  const WORD get = DISPATCH_PROPERTYGET, put = DISPATCH_PROPERTYPUT;
  const Var values = array_of({0.1, kThird, kMoment, Var(19.99).as(VT_CY), Var(0.7).as(VT_DECIMAL)});
  const Var fields = array_of({L"A", L"B", L"C", L"D", L"E"});
  return {
      {"ExpSQL_Double", sql_server, L"ExpSQL", {0.1}, "BSTR  0.1"},
      {"ExpSQL_Third", sql_server, L"ExpSQL", {kThird}, "BSTR  0.3333333333333333"},
      {"ExpSQL_Large", sql_server, L"ExpSQL", {1e300 / 3}, "BSTR  3.3333333333333335E+299"},
      {"ExpSQL_Denormal", sql_server, L"ExpSQL", {5e-324}, "BSTR  5E-324"},
      {"ExpSQL_NoNumber", sql_server, L"ExpSQL", {std::numeric_limits<double>::quiet_NaN()}, "BSTR Null"},
      {"ExpSQL_SignalingNoNumber", sql_server, L"ExpSQL", {std::numeric_limits<double>::signaling_NaN()}, "BSTR Null"},
      {"ExpSQL_Infinite", sql_server, L"ExpSQL", {std::numeric_limits<double>::infinity()}, "BSTR Null"},
      {"ExpSQL_Single", sql_server, L"ExpSQL", {Var(0.1).as(VT_R4)}, "BSTR  0.1"},
      {"ExpSQL_Currency", sql_server, L"ExpSQL", {Var(19.99).as(VT_CY)}, "BSTR  19.99"},
      {"ExpSQL_Decimal", sql_server, L"ExpSQL", {Var(0.7).as(VT_DECIMAL)}, "BSTR  0.7"},
      {"ExpSQL_Date", sql_server, L"ExpSQL", {kMoment}, "BSTR { ts '2011-01-05 23:59:59'}"},
      {"ExpSQL_DateOfJet", jet, L"ExpSQL", {kMoment}, "BSTR #2011-01-05 23:59:59#"},
      {"FechaSQL", sql_server, L"FechaSQL", {kMoment}, "BSTR { d '2011-01-05'}"},
      {"FechaSQL_Text", sql_server, L"FechaSQL", {L"2011-01-05"}, "BSTR { d '2011-01-05'}"},
      {"FechaSQL_Number", sql_server, L"FechaSQL", {40548.1}, "BSTR Null"},
      {"HoraSQL", sql_server, L"HoraSQL", {Var::date(0.7)}, "BSTR { t '16:48:00'}"},
      {"FechaHoraSQL", sql_server, L"FechaHoraSQL", {kMoment}, "BSTR { ts '2011-01-05 23:59:59'}"},
      {"FechaSQLv_Date", sql_server, L"FechaSQLv", {Var::date(40548)}, "BSTR { d '2011-01-05'}"},
      {"FechaSQLv_Time", sql_server, L"FechaSQLv", {Var::date(0.1)}, "BSTR { t '02:24:00'}"},
      {"FechaSQLv_Both", sql_server, L"FechaSQLv", {Var::date(-1.3)}, "BSTR { ts '1899-12-29 07:12:00'}"},
      {"LogicoSQL", sql_server, L"LogicoSQL", {0.1}, "BSTR 1"},
      {"ValorATexto_Number", sql_server, L"ValorATexto", {L"N", kThird}, "BSTR 0.3333333333333333"},
      {"ValorATexto_Text", sql_server, L"ValorATexto", {L"T", kThird}, "BSTR 0.333333333333333"},
      {"ValorATexto_TextOfSingle", sql_server, L"ValorATexto", {L"T", Var(0.1).as(VT_R4)}, "BSTR 0.1"},
      {"ValorATexto_TextOfDate", sql_server, L"ValorATexto", {L"T", kMoment}, "BSTR 1/5/2011 11:59:59 PM"},
      {"ValorATexto_Date", sql_server, L"ValorATexto", {L"F", kMoment}, "BSTR 2011/01/05"},
      {"ValorATexto_DateOfNumber", sql_server, L"ValorATexto", {L"F", 40548.6}, "BSTR 2011/01/05"},
      {"ValorATexto_Truth", sql_server, L"ValorATexto", {L"L", 0.1}, "BSTR 1"},
      {"ValorATexto_Decimal", sql_server, L"ValorATexto", {L"T", Var(0.7).as(VT_DECIMAL)}, "BSTR 0.7"},
      {"ValorATexto_TextAsNumber", sql_server, L"ValorATexto", {L"N", L"0.1"}, "BSTR 0.1"},
      {"TextoAValor_Number", sql_server, L"TextoAValor", {L"N", L"0.1"}, "R8 0.100000"},
      {"TextoAValor_Long",
       sql_server,
       L"TextoAValor",
       {L"N", L"123456789012345678901E-5"},
       "R8 1234567890123456.750000"},
      {"TextoAValor_TooSmall", sql_server, L"TextoAValor", {L"N", L"1E-400"}, "R8 0.000000"},
      {"TextoAValor_TooLarge",
       sql_server,
       L"TextoAValor",
       {L"N", L"1E+400"},
       "Empty",
       DISPATCH_METHOD,
       nullptr,
       u"QVRcfp.TextoAValor: 6 Overflow"},
      {"TextoAValor_Date", sql_server, L"TextoAValor", {L"F", L"2011-01-05"}, "DATE 40548.000000"},
      {"TextoAValor_Truth", sql_server, L"TextoAValor", {L"L", L"0.1"}, "BOOL true"},
      {"sqlTOP", sql_server, L"sqlTOP", {2.5}, "BSTR  TOP 2 "},
      {"sqlTOP_Text", sql_server, L"sqlTOP", {L"2.5"}, "BSTR  TOP 2 "},
      {"sqlConcatenar",
       sql_server,
       L"sqlConcatenar",
       {array_of({L"A", kThird, Var(19.99).as(VT_CY)})},
       "BSTR  A + 0.333333333333333 + 19.99 "},
      {"sqlCASE",
       sql_server,
       L"sqlCASE",
       {L"A", array_of({0.1, kThird, 19.99})},
       "BSTR  CASE A WHEN 0.1 THEN 0.333333333333333 ELSE 19.99 END "},
      {"SqlINSERT",
       sql_server,
       L"SqlINSERT",
       {L"T", values},
       "BSTR INSERT INTO T VALUES ( 0.1,  0.3333333333333333, { ts '2011-01-05 23:59:59'},  19.99,  0.7)"},
      {"SqlINSERT_TypedArray",
       sql_server,
       L"SqlINSERT",
       {L"T", array_of({0.1, kThird}, 0, VT_R8)},
       "BSTR INSERT INTO T VALUES ( 0.1,  0.3333333333333333)"},
      {"SqlInsert2",
       sql_server,
       L"SqlInsert2",
       {L"T", fields, values},
       "BSTR INSERT INTO T(A,B,C,D,E) VALUES( 0.1, 0.3333333333333333,{ ts '2011-01-05 23:59:59'}, 19.99, 0.7)"},
      {"SqlUPDATE",
       sql_server,
       L"SqlUPDATE",
       {L"T", L"K", 2.5, fields, values},
       "BSTR UPDATE T SET A= 0.1, B= 0.3333333333333333, C={ ts '2011-01-05 23:59:59'}, D= 19.99, E= 0.7 WHERE K=2"},
      {"SqlUpdate2",
       sql_server,
       L"SqlUpdate2",
       {L"T", fields, values, L"K=1"},
       "BSTR UPDATE T SET A= 0.1,B= 0.3333333333333333,C={ ts '2011-01-05 23:59:59'},D= 19.99,E= 0.7 WHERE K=1"},
      {"UsuarioSegunMotor", runner, L"UsuarioSegunMotor", {1.6}, "BSTR sa"},
      {"Item_Position", properties, L"Item", {1.2}, "BSTR Ana", get},
      {"Item_PositionHalfWay", properties, L"Item", {1.5}, "DATE 40548.750000", get},
      {"Item_PositionAsText", properties, L"Item", {L"1.2"}, "BSTR Ana", get},
      {"Item_Number", properties, L"Item", {L"Precio"}, "R8 0.100000", get},
      {"Item_Written", properties, L"Item", {1.2, kThird}, "Empty", put},
      {"NombrePropiedad", properties, L"NombrePropiedad", {1.2}, "BSTR Nombre", get},
      {"CreaPropiedad",
       properties,
       L"CreaPropiedad",
       {L"N", L"Otra", kThird},
       "Empty; I4 4",
       DISPATCH_METHOD,
       L"NumPropiedades"},
      {"AmpliarOrden",
       query,
       L"iSQL20_AmpliarOrden",
       {1.2},
       "BOOL false; BSTR SELECT P.Total As [Importe], P.Fecha  FROM Pedidos P     ORDER BY 1",
       DISPATCH_METHOD,
       L"iSQL20_SQL"},
      {"TOP",
       query,
       L"iSQL20_TOP",
       {2.5},
       "Empty; BSTR SELECT  TOP 2 P.Total As [Importe], P.Fecha  FROM Pedidos P     ",
       put,
       L"iSQL20_SQL"},
      {"InterpretarBusqueda_Number",
       query,
       L"iSQL20_InterpretarBusqueda",
       {L"Importe", L">=0.1"},
       "BOOL true; BSTR (P.Total>= 0.1)<*cSQL_CRI*><*cSQL_CRI*><*cSQL_CRI*>Importe >= 0.1",
       DISPATCH_METHOD,
       L"iSQL20_CriterioActualCompleto"},
      {"InterpretarBusqueda_Range",
       query,
       L"iSQL20_InterpretarBusqueda",
       {L"Importe", L"1.1..2.7"},
       "BOOL true; BSTR (P.Total>= 1.1 And P.Total<= 2.7)<*cSQL_CRI*><*cSQL_CRI*><*cSQL_CRI*>Importe >= 1.1 and <= 2.7",
       DISPATCH_METHOD,
       L"iSQL20_CriterioActualCompleto"},
      {"InterpretarBusqueda_Date",
       query,
       L"iSQL20_InterpretarBusqueda",
       {L"Fecha", L">2011-01-05"},
       "BOOL true; BSTR (P.Fecha>={ d '2011-01-06'})<*cSQL_CRI*><*cSQL_CRI*><*cSQL_CRI*>Fecha > 1/5/2011",
       DISPATCH_METHOD,
       L"iSQL20_CriterioActualCompleto"},
      {"InterpretarBusqueda_Union",
       union_query,
       L"iSQL20_InterpretarBusqueda",
       {L"Importe", L"<0.7"},
       "BOOL true; BSTR (P.Total< 0.7)<*cSQL_CRI*><*cSQL_CRI*><*cSQL_CRI*>Importe < 0.7",
       DISPATCH_METHOD,
       L"iSQL20_CriterioActualCompleto"},
  };
}

class FloatingPoint : public testing::TestWithParam<Row> {
 protected:
  using Make = std::unique_ptr<PreparedCall>(IDispatch*, const wchar_t*, WORD, std::vector<Var>);

  // On a new object each time.
  void expect_in(const HostState& state, Make* make, const char* way) {
    SCOPED_TRACE(std::string(state.name) + ", " + way);
    const Row& row = GetParam();
    const LateObject subject = row.subject();
    const auto call = make(subject.get(), row.member, row.kind, row.arguments);
    const StateAround state_of_host = in_state(state, [&] { call->run(); });
    std::string outcome = call->outcome();
    if (row.read_after != nullptr) outcome += "; " + describe(subject.get(row.read_after).value.raw());
    EXPECT_EQ(outcome, row.expected);
    EXPECT_EQ(traced(), row.trace.empty() ? Traces() : Traces{Text(row.trace)});
    if (state == kDefaultState) return;  // flags of the library's calculations come in, as from any function
    EXPECT_EQ(to_string(state_of_host.after), to_string(state_of_host.before));
  }
};

TEST_P(FloatingPoint, IsTheSameWhateverTheHostSet) {
  const Person person;
  expect_in(kDefaultState, early_call, "early");
  expect_in(kDefaultState, late_call, "late");
  for (const HostState& state : kHostStates) {
    expect_in(state, early_call, "early");
    expect_in(state, late_call, "late");
  }
}

INSTANTIATE_TEST_SUITE_P(Members, FloatingPoint, testing::ValuesIn(rows()),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace qvr::tests
