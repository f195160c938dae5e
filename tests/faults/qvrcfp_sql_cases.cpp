// The members of QVRcfp that write SQL or work on objects of ADO.
#include <algorithm>

#include "connection/qvrcfp.h"
#include "dialect/dialect_fixture.h"
#include "faults/fault_case.h"
#include "faults/run_log.h"

namespace qvr::tests {
namespace {

template <Engine engine>
struct Sql {
  Sql() {
    ConnectionParameters of_engine;
    of_engine.MotorBD = engine;
    cfp.Asignar(u"id", of_engine);
    thread.boxes.always = BoxAnswer::Ok;
    thread.ado.procedure_outputs = {{0, 0}, {1, 7}, {2, u"a text that comes back"}};
  }
  std::string state() {
    std::string all = std::to_string(cfp.MotorBD());
    for (const Value& item : parameters.as<Array>()->items) all += "|" + describe(item);
    return all;
  }
  TestThread thread;
  QVRcfp cfp;
  std::unique_ptr<services::AdoConnection> connection = thread.ado.new_connection();
  std::unique_ptr<services::AdoCommand> command = thread.ado.new_command();
  Value parameters = list({5, u"a text that goes there"});
};
using Jet = Sql<Engine::Jet>;
using Server = Sql<Engine::SqlServer>;
using Oracle = Sql<Engine::Oracle>;
using NoEngine = Sql<kNoEngine>;

const Value kMoment = Date{40548.5}, kText = u"a text to write", kDayInText = u"05/01/2011";
const Value kPairs = list(
    {u"a first value", u"a first result", u"a second value", u"a second result", u"any other one"});
const Value kTriples = list({u"Clientes.Id", u"Pedidos.IdCliente", u"L", u"Pedidos.Id", u"Lineas.IdPedido", u"I"});
const Value kFields = list({u"Nombre del cliente", u"Alta", u"Importe"});
const Value kValues = list({u"O'Hara y compa\u00f1\u00eda", Date{40548}, 1234567.0625});
const char* const kNoEngineBox = "Box OK: Motor de Base de Datos no definido: 0";

template <class Fixture, class Call>
FaultCase text(const char* name, std::string expected, Call call) {
  return fault_case<Fixture>(name, std::move(expected), {""}, call);
}

template <class Fixture, class Call>
FaultCase short_text(const char* name, std::string expected, Call call) {
  FaultCase row = text<Fixture>(name, std::move(expected), call);
  row.allocates = false;
  return row;
}

FaultCase with_box(FaultCase row, const std::string& box) {
  row.log = row.boxes = {box};
  return row;
}

std::vector<FaultCase> literal_cases() {
  return {
      text<Jet>("QVRcfp.ComillasSQL", "'O''Hara y compa\u00f1\u00eda'",
                [](Jet& f) { return f.cfp.ComillasSQL(u"O'Hara y compa\u00f1\u00eda"); }),
      text<Jet>("QVRcfp.ExpSQL, text", "'a text to write'", [](Jet& f) { return f.cfp.ExpSQL(kText); }),
      text<Oracle>("QVRcfp.ExpSQL, number", " 1234567.0625", [](Oracle& f) { return f.cfp.ExpSQL(1234567.0625); }),
      text<Oracle>("QVRcfp.ExpSQL, amount", "-123456789.0001",
                   [](Oracle& f) { return f.cfp.ExpSQL(Currency{-1234567890001}); }),
      text<Server>("QVRcfp.ExpSQL, date", "{ ts '2011-01-05 12:00:00'}",
                   [](Server& f) { return f.cfp.ExpSQL(kMoment); }),
      with_box(text<NoEngine>("QVRcfp.ExpSQL, no engine", "", [](NoEngine& f) { return f.cfp.ExpSQL(true); }),
               kNoEngineBox),
      text<Jet>("QVRcfp.FechaSQL", "#2011-01-05#", [](Jet& f) { return f.cfp.FechaSQL(kMoment); }),
      text<Server>("QVRcfp.HoraSQL", "{ t '12:00:00'}", [](Server& f) { return f.cfp.HoraSQL(kMoment); }),
      text<Oracle>("QVRcfp.FechaHoraSQL", " TO_DATE('2011-01-05 12:00:00','YYYY-MM-DD HH24:MI:SS') ",
                   [](Oracle& f) { return f.cfp.FechaHoraSQL(kMoment); }),
      text<Oracle>("QVRcfp.FechaSQLv", " TO_DATE('2011-01-05','YYYY-MM-DD') ",
                   [](Oracle& f) { return f.cfp.FechaSQLv(kDayInText); }),
      short_text<Jet>("QVRcfp.LogicoSQL", "False", [](Jet& f) { return f.cfp.LogicoSQL(false); }),
      text<Server>("QVRcfp.AhoraSQL", "GetDate()", [](Server& f) { return f.cfp.AhoraSQL(); }),
      text<Jet>("QVRcfp.sqlEsTrue", " Clientes.Baja<>0 ", [](Jet& f) { return f.cfp.sqlEsTrue(u"Clientes.Baja"); }),
      text<Jet>("QVRcfp.sqlEsFalse", " Clientes.Baja=0 ", [](Jet& f) { return f.cfp.sqlEsFalse(u"Clientes.Baja"); }),
      short_text<Jet>("QVRcfp.sqlFalse", "0", [](Jet& f) { return f.cfp.sqlFalse(); }),
      text<Server>("QVRcfp.CadenaParaLikeSQL", "N'%Mart!%nez y otros%' ESCAPE '!' ",
                   [](Server& f) { return f.cfp.CadenaParaLikeSQL(u"Mart%nez y otros", true, true); }),
      text<Oracle>("QVRcfp.sqlFechaSistema", "SELECT SYSDATE FechaSistema FROM Dual",
                   [](Oracle& f) { return f.cfp.sqlFechaSistema(); }),
  };
}

std::vector<FaultCase> clause_cases() {
  return {
      text<Server>("QVRcfp.sqlTOP", " TOP 1000000 ", [](Server& f) { return f.cfp.sqlTOP(1000000); }),
      text<Oracle>("QVRcfp.sqlRowNum", " And RowNum<=1000000 ",
                   [](Oracle& f) { return f.cfp.sqlRowNum(1000000, true); }),
      fault_case<Oracle>("QVRcfp.sqlWhereRelacionTablas",
                         " (Clientes.Id=Pedidos.IdCliente(+) And Pedidos.Id=Lineas.IdPedido) ", {""},
                         [](Oracle& f) { return answer_of([&] { return f.cfp.sqlWhereRelacionTablas(kTriples); }); }),
      fault_case<Oracle>("QVRcfp.sqlWhereRelacionTablas, no triples", "error 9", {""},
                         [](Oracle& f) {
                           static const Value kTwo = list({u"Clientes.Id", u"Pedidos.Id"});
                           return answer_of([&] { return f.cfp.sqlWhereRelacionTablas(kTwo); });
                         }),
      with_box(short_text<Jet>("QVRcfp.sqlWhereRelacionTablas, Jet", "",
                               [](Jet& f) { return f.cfp.sqlWhereRelacionTablas(kTriples); }),
               "Box OK: La funci\u00f3n CondicionWhereRelacionTablas no soporta Motor Jet"),
      text<Jet>("QVRcfp.sqlAlias", " As [Nombre del cliente]",
                [](Jet& f) { return f.cfp.sqlAlias(u"Nombre del cliente"); }),
      fault_case<Server>("QVRcfp.sqlConcatenar", " O'Hara + y compa\u00f1\u00eda + 1234567.0625 ", {""},
                         [](Server& f) {
                           static const Value kPieces = list({u"O'Hara", u"y compa\u00f1\u00eda", 1234567.0625});
                           return answer_of([&] { return f.cfp.sqlConcatenar(kPieces); });
                         }),
      fault_case<Server>("QVRcfp.sqlConcatenar, nothing", "error 5", {""},
                         [](Server& f) {
                           static const Value kNothing = list({});
                           return answer_of([&] { return f.cfp.sqlConcatenar(kNothing); });
                         }),
      text<Server>("QVRcfp.sqlEsNulo", " IsNull(Clientes.Nombre,Clientes.Alias) ",
                   [](Server& f) { return f.cfp.sqlEsNulo(u"Clientes.Nombre", u"Clientes.Alias"); }),
      text<Server>(
          "QVRcfp.sqlCASE",
          " CASE Clientes.Clase WHEN a first value THEN a first result WHEN a second value THEN a second result"
          " ELSE any other one END ",
          [](Server& f) { return f.cfp.sqlCASE(u"Clientes.Clase", kPairs); }),
      text<Oracle>("QVRcfp.sqlCASE, Oracle",
                   " DECODE(Clientes.Clase,a first value,a first result,a second value,a second result,any other one) ",
                   [](Oracle& f) { return f.cfp.sqlCASE(u"Clientes.Clase", kPairs); }),
  };
}

std::vector<FaultCase> statement_cases() {
  return {
      text<Server>("QVRcfp.SqlINSERT",
                   "INSERT INTO Clientes VALUES ('O''Hara y compa\u00f1\u00eda', { d '2011-01-05'},  1234567.0625)",
                   [](Server& f) { return f.cfp.SqlINSERT(u"Clientes", kValues); }),
      text<Server>("QVRcfp.SqlUPDATE",
                   "UPDATE Clientes SET Nombre del cliente='O''Hara y compa\u00f1\u00eda', Alta={ d '2011-01-05'}, "
                   "Importe= 1234567.0625 WHERE Id=1000000",
                   [](Server& f) { return f.cfp.SqlUPDATE(u"Clientes", u"Id", 1000000, kFields, kValues); }),
      text<Jet>(
          "QVRcfp.SqlInsert2",
          "INSERT INTO Clientes(Nombre del cliente,Alta,Importe) VALUES('O''Hara y compa\u00f1\u00eda',#2011-01-05#, "
          "1234567.0625)",
          [](Jet& f) { return f.cfp.SqlInsert2(u"Clientes", kFields, kValues); }),
      text<Oracle>("QVRcfp.SqlUpdate2",
                   "UPDATE Clientes SET Nombre del cliente='O''Hara y compa\u00f1\u00eda',Alta= "
                   "TO_DATE('2011-01-05','YYYY-MM-DD') ,Importe= 1234567.0625 WHERE Clientes.Id=1000000",
                   [](Oracle& f) { return f.cfp.SqlUpdate2(u"Clientes", kFields, kValues, u"Clientes.Id=1000000"); }),
  };
}

// A command or parameter is made and released, whatever happens, and a failure is reported at most once: a report can
// want memory itself.
void check_ado_log(const Lines& log, const std::string& result, const char* object, const std::string& report) {
  const std::string made = std::string("new ") + object, released = std::string(object) + " released";
  const auto count = [&log](const std::string& line) { return std::ranges::count(log, line); };
  const auto reports = std::ranges::count_if(log, [](const std::string& line) { return line.starts_with("Report"); });
  EXPECT_LE(count(made), 1);
  EXPECT_LE(count(released), count(made));
  EXPECT_EQ(reports, count(report)) << ::testing::PrintToString(log);
  EXPECT_LE(reports, result == "False" ? 1 : 0);
  EXPECT_TRUE(result == "False" || count(released) == 1);
}

std::vector<FaultCase> ado_cases() {
  std::vector<FaultCase> all;
  all.push_back(fault_case<Server>("QVRcfp.EjecutarProcSQL7", "True", {"False"}, [](Server& f) {
    return f.cfp.EjecutarProcSQL7(f.connection.get(), u"dbo.AltaCliente", f.parameters);
  }));
  all.back().check_log = [](const Lines& log, const std::string& result, auto) {
    check_ado_log(log, result, "Command", "Report: 7|Out of memory|QVRlib21|2|EjecutarProc");
  };
  all.push_back(fault_case<Oracle>("QVRcfp.AgregarParametroADO", "True", {"False"}, [](Oracle& f) {
    static const dialect::ParameterRequest kRequest{u"NVARCHAR", u"@NombreCliente", u"O'Hara y compa\u00f1\u00eda", 50,
                                                    1};
    return f.cfp.AgregarParametroADO(f.command.get(), kRequest);
  }));
  all.back().check_log = [](const Lines& log, const std::string& result, auto) {
    check_ado_log(log, result, "Parameter", "none");
  };
  // ADO finds the parameter improperly defined: the box about it is whole or none.
  struct Refusing : Server {
    Refusing() {
      for (int n = 1; n <= 3; ++n) thread.ado.fail("Parameters.Append", n, {3708, u"improperly defined", u"ADODB"});
    }
  };
  all.push_back(fault_case<Refusing>("QVRcfp.AgregarParametroADO, refused", "False", {"False"}, [](Refusing& f) {
    static const dialect::ParameterRequest kRequest{u"NVARCHAR", u"@NombreCliente", Missing{}};
    return f.cfp.AgregarParametroADO(f.command.get(), kRequest);
  }));
  all.back().check_log = [](const Lines& log, const std::string&, auto) {
    EXPECT_EQ(lines_that_begin(log, "Box"),
              std::ranges::count(log,
                                 "Box OK: Objeto: QVRcfp\r\nM\u00e9todo: AgregarParametroADO: "
                                 "@NombreCliente(NVARCHAR)\r\nError 3708: improperly defined"));
  };
  all.push_back(fault_case<Server>("QVRcfp.AgregarParametroADO, unexpected type", "False", {}, [](Server& f) {
    static const dialect::ParameterRequest kRequest{u"NVARCHAR2", u"@NombreCliente", Missing{}};
    return f.cfp.AgregarParametroADO(f.command.get(), kRequest);
  }));
  all.back().check_log = [](const Lines& log, const std::string&, auto) {
    for (const std::string& line : log) {
      EXPECT_TRUE(line == "new Parameter" || line == "Parameter released" ||
                  line == "Box OK: Tipo inesperado en AgregarParametroADO: @NombreCliente (NVARCHAR2)")
          << line;
    }
  };
  return all;
}

}  // namespace

std::vector<FaultCase> qvrcfp_sql_cases() {
  std::vector<FaultCase> all = literal_cases();
  for (auto* cases : {clause_cases, statement_cases, ado_cases}) std::ranges::move(cases(), std::back_inserter(all));
  return all;
}

}  // namespace qvr::tests
