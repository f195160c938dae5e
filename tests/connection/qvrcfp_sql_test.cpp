// The members that write SQL: each with the object's engine, and what becomes of a failure.
#include <functional>

#include "connection/qvrcfp.h"
#include "dialect/dialect_fixture.h"

namespace qvr::tests {
namespace {

using Member = std::function<Text(const QVRcfp&)>;

// The object holds no engine until one is assigned.
void assign(QVRcfp& cfp, Engine engine) {
  ConnectionParameters parameters;
  parameters.MotorBD = engine;
  ASSERT_TRUE(cfp.Asignar(u"id", parameters));
}

class QVRcfpSqlTest : public DialectTest {
 protected:
  void expect_member(const EachEngine& expected, const Member& member) {
    expect_each(expected, [&](Engine engine) {
      QVRcfp cfp;
      if (engine != kNoEngine) assign(cfp, engine);
      return member(cfp);
    });
  }
};

const Value kMoment = Date{40548 + (14 * 3600 + 7 * 60 + 9) / 86400.0};
const Value kFields = list({u"Id", u"Nombre"});
const Value kValues = list({5, u"Ana"});

struct Row {
  const char* name;
  Member member;
  EachEngine expected;
};

std::vector<Row> literals() {
  return {
      {"ComillasSQL", [](const QVRcfp& cfp) { return cfp.ComillasSQL(u"O'Neil"); }, all_engines(u"'O''Neil'")},
      {"ExpSQL, text", [](const QVRcfp& cfp) { return cfp.ExpSQL(u"O'Neil"); }, all_engines(u"'O''Neil'")},
      {"ExpSQL, number", [](const QVRcfp& cfp) { return cfp.ExpSQL(std::int16_t{5}); }, all_engines(u" 5")},
      {"ExpSQL, truth", [](const QVRcfp& cfp) { return cfp.ExpSQL(true); }, {u"True", u"1", u"1", undefined()}},
      {"ExpSQL, the clock",
       [](const QVRcfp& cfp) { return cfp.ExpSQL(u"ahorasql"); },
       {u"Now()", u"GetDate()", u"SYSDATE", undefined()}},
      {"ExpSQL, date",
       [](const QVRcfp& cfp) { return cfp.ExpSQL(kMoment); },
       {u"#2011-01-05 14:07:09#", u"{ ts '2011-01-05 14:07:09'}",
        u" TO_DATE('2011-01-05 14:07:09','YYYY-MM-DD HH24:MI:SS') ", undefined()}},
      {"ExpSQL, Empty", [](const QVRcfp& cfp) { return cfp.ExpSQL(Empty{}); }, all_engines(u"Null")},
      {"FechaSQL",
       [](const QVRcfp& cfp) { return cfp.FechaSQL(kMoment); },
       {u"#2011-01-05#", u"{ d '2011-01-05'}", u" TO_DATE('2011-01-05','YYYY-MM-DD') ", undefined()}},
      {"FechaSQL, no date", [](const QVRcfp& cfp) { return cfp.FechaSQL(u"x"); }, all_engines(u"Null")},
      {"HoraSQL",
       [](const QVRcfp& cfp) { return cfp.HoraSQL(kMoment); },
       {u"#14:07:09#", u"{ t '14:07:09'}", u" TO_DATE('14:07:09','HH24:MI:SS') ", undefined()}},
      {"FechaHoraSQL",
       [](const QVRcfp& cfp) { return cfp.FechaHoraSQL(kMoment); },
       {u"#2011-01-05 14:07:09#", u"{ ts '2011-01-05 14:07:09'}",
        u" TO_DATE('2011-01-05 14:07:09','YYYY-MM-DD HH24:MI:SS') ", undefined()}},
      {"FechaHoraSQL, now",
       [](const QVRcfp& cfp) { return cfp.FechaHoraSQL(u"Ahora"); },
       {u"Now()", u"GetDate()", u"SYSDATE", undefined()}},
      {"FechaSQLv",
       [](const QVRcfp& cfp) { return cfp.FechaSQLv(Date{40548}); },
       {u"#2011-01-05#", u"{ d '2011-01-05'}", u" TO_DATE('2011-01-05','YYYY-MM-DD') ", undefined()}},
      {"LogicoSQL", [](const QVRcfp& cfp) { return cfp.LogicoSQL(false); }, {u"False", u"0", u"0", undefined()}},
      {"AhoraSQL", [](const QVRcfp& cfp) { return cfp.AhoraSQL(); }, {u"Now()", u"GetDate()", u"SYSDATE", undefined()}},
      {"sqlEsTrue", [](const QVRcfp& cfp) { return cfp.sqlEsTrue(u"Activo"); }, all_engines(u" Activo<>0 ")},
      {"sqlEsFalse", [](const QVRcfp& cfp) { return cfp.sqlEsFalse(u"Activo"); }, all_engines(u" Activo=0 ")},
      {"sqlFalse", [](const QVRcfp& cfp) { return cfp.sqlFalse(); }, all_engines(u"0")},
      {"CadenaParaLikeSQL",
       [](const QVRcfp& cfp) { return cfp.CadenaParaLikeSQL(u"  P\u00e9rez ", true, false); },
       {u"'%P\u00e9rez' ", u"N'%P\u00e9rez' ", u"'%P\u00e9rez' ", u"'%P\u00e9rez' "}},
      {"CadenaParaLikeSQL, trailing",
       [](const QVRcfp& cfp) { return cfp.CadenaParaLikeSQL(u"50%", false, true); },
       {u"'50!%%' ESCAPE '!' ", u"N'50!%%' ESCAPE '!' ", u"'50!%%' ESCAPE '!' ", u"'50!%%' ESCAPE '!' "}},
      {"sqlFechaSistema",
       [](const QVRcfp& cfp) { return cfp.sqlFechaSistema(); },
       {u"SELECT TOP 1 Now() As FechaSistema FROM MsysObjects",
        u"SELECT TOP 1 GetDate() As FechaSistema FROM master.dbo.spt_values", u"SELECT SYSDATE FechaSistema FROM Dual",
        undefined()}},
  };
}

std::vector<Row> clauses_and_statements() {
  const Outcome kNoCase = told(u"Funci\u00f3n CASE no implementada para Motor Jet");
  const Outcome kNoJoin = told(u"La funci\u00f3n CondicionWhereRelacionTablas no soporta Motor Jet");
  return {
      {"sqlTOP", [](const QVRcfp& cfp) { return cfp.sqlTOP(5); }, {u" TOP 5 ", u" TOP 5 ", u"", u""}},
      {"sqlRowNum", [](const QVRcfp& cfp) { return cfp.sqlRowNum(10, true); }, {u"", u"", u" And RowNum<=10 ", u""}},
      {"sqlAlias",
       [](const QVRcfp& cfp) { return cfp.sqlAlias(u"Total"); },
       {u" As [Total]", u" As [Total]", u" \"Total\"", u""}},
      {"sqlEsNulo",
       [](const QVRcfp& cfp) { return cfp.sqlEsNulo(u"Precio", u"0"); },
       {u" IIf(IsNull(Precio),0,Precio) ", u" IsNull(Precio,0) ", u" NVL(Precio,0) ", u""}},
      {"sqlConcatenar",
       [](const QVRcfp& cfp) {
         return cfp.sqlConcatenar(list({u"a", u"b"}));
       },
       {u" a & b ", u" a + b ", u" a || b ", u" ab "}},
      {"sqlConcatenar, no array", [](const QVRcfp& cfp) { return cfp.sqlConcatenar(u"a"); }, all_engines(u"")},
      {"sqlConcatenar, Null", [](const QVRcfp& cfp) { return cfp.sqlConcatenar(list({Null{}})); }, all_engines(u"")},
      {"sqlConcatenar, object", [](const QVRcfp& cfp) { return cfp.sqlConcatenar(list({object()})); },
       all_engines(u"")},
      {"sqlCASE",
       [](const QVRcfp& cfp) {
         return cfp.sqlCASE(u"c", list({1, u"a", u"b"}));
       },
       {kNoCase, u" CASE c WHEN 1 THEN a ELSE b END ", u" DECODE(c,1,a,b) ", u""}},
      {"sqlCASE, no elements", [](const QVRcfp& cfp) { return cfp.sqlCASE(u"c", list({})); }, {kNoCase, u"", u"", u""}},
      {"sqlCASE, no array", [](const QVRcfp& cfp) { return cfp.sqlCASE(u"c", 1); }, {kNoCase, u"", u"", u""}},
      {"sqlCASE, two dimensions",
       [](const QVRcfp& cfp) {
         return cfp.sqlCASE(u"c", square({1, 2}));
       },
       {kNoCase, u"", u"", u""}},
      {"sqlWhereRelacionTablas",
       [](const QVRcfp& cfp) {
         return cfp.sqlWhereRelacionTablas(list({u"a", u"b", u"l"}));
       },
       {kNoJoin, u" (a*=b) ", u" (a=b(+)) ", u""}},
      {"sqlWhereRelacionTablas, no array", [](const QVRcfp& cfp) { return cfp.sqlWhereRelacionTablas(5); },
       all_engines(u"")},
      {"sqlWhereRelacionTablas, Null",
       [](const QVRcfp& cfp) {
         return cfp.sqlWhereRelacionTablas(list({Null{}, u"b", u"I"}));
       },
       {kNoJoin, u"", u"", u""}},
      {"SqlINSERT", [](const QVRcfp& cfp) { return cfp.SqlINSERT(u"Clientes", kValues); },
       all_engines(u"INSERT INTO Clientes VALUES ( 5, 'Ana')")},
      {"SqlINSERT, truth",
       [](const QVRcfp& cfp) { return cfp.SqlINSERT(u"T", list({true})); },
       {u"INSERT INTO T VALUES (True)", u"INSERT INTO T VALUES (1)", u"INSERT INTO T VALUES (1)",
        undefined(u"INSERT INTO T VALUES ()")}},
      {"SqlINSERT, no array", [](const QVRcfp& cfp) { return cfp.SqlINSERT(u"T", 5); }, all_engines(u"")},
      {"SqlINSERT, two dimensions", [](const QVRcfp& cfp) { return cfp.SqlINSERT(u"T", square({1})); },
       all_engines(u"")},
      {"SqlUPDATE", [](const QVRcfp& cfp) { return cfp.SqlUPDATE(u"T", u"ID", 7, kFields, kValues); },
       all_engines(u"UPDATE T SET Nombre='Ana' WHERE ID=7")},
      {"SqlUPDATE, fewer values", [](const QVRcfp& cfp) { return cfp.SqlUPDATE(u"T", u"k", 7, kFields, list({5})); },
       all_engines(u"")},
      {"SqlInsert2", [](const QVRcfp& cfp) { return cfp.SqlInsert2(u"Clientes", kFields, kValues); },
       all_engines(u"INSERT INTO Clientes(Id,Nombre) VALUES( 5,'Ana')")},
      {"SqlInsert2, no array", [](const QVRcfp& cfp) { return cfp.SqlInsert2(u"T", u"Id", kValues); },
       all_engines(u"")},
      {"SqlInsert2, fewer values", [](const QVRcfp& cfp) { return cfp.SqlInsert2(u"T", kFields, list({5})); },
       all_engines(u"")},
      {"SqlUpdate2", [](const QVRcfp& cfp) { return cfp.SqlUpdate2(u"T", kFields, kValues, u"x=1"); },
       all_engines(u"UPDATE T SET Id= 5,Nombre='Ana' WHERE x=1")},
      {"SqlUpdate2, no condition", [](const QVRcfp& cfp) { return cfp.SqlUpdate2(u"T", kFields, kValues, u""); },
       all_engines(u"UPDATE T SET Id= 5,Nombre='Ana'")},
      {"SqlUpdate2, Null as a field",
       [](const QVRcfp& cfp) { return cfp.SqlUpdate2(u"T", list({Null{}}), kValues, u""); }, all_engines(u"")},
  };
}

TEST_F(QVRcfpSqlTest, LiteralsAreThoseOfTheObjectsEngine) {
  for (const Row& row : literals()) {
    SCOPED_TRACE(row.name);
    expect_member(row.expected, row.member);
  }
}

TEST_F(QVRcfpSqlTest, ClausesAndStatementsAreThoseOfTheObjectsEngine) {
  for (const Row& row : clauses_and_statements()) {
    SCOPED_TRACE(row.name);
    expect_member(row.expected, row.member);
  }
}

TEST_F(QVRcfpSqlTest, AnyNumberThatIsNoEngineIsShown) {
  QVRcfp cfp;
  assign(cfp, Engine{-99});
  expect_outcome(told(u"Motor de Base de Datos no definido: -99"), [&] { return cfp.AhoraSQL(); });
  assign(cfp, Engine::Oracle);
  expect_outcome(u"SYSDATE", [&] { return cfp.AhoraSQL(); });
}

TEST_F(QVRcfpSqlTest, ABoxThatCannotBeShownChangesNothing) {
  const QVRcfp fresh;
  for (const auto& row : {literals(), clauses_and_statements()}) {
    for (const Row& each : row) {
      if (each.expected.none.boxes.size() != 1 || !each.expected.none.text.empty()) continue;
      SCOPED_TRACE(each.name);
      thread.boxes.fail_next();
      EXPECT_EQ(each.member(fresh), u"");
    }
  }
  QVRcfp jet;
  assign(jet, Engine::Jet);
  for (int box = 0; box < 2; ++box) thread.boxes.fail_next();
  EXPECT_EQ(jet.sqlCASE(u"c", list({1})), u"");
  EXPECT_EQ(jet.sqlWhereRelacionTablas(list({1})), u"");
}

TEST_F(QVRcfpSqlTest, TwoMembersRaiseWhatTheyCannotWalk) {
  struct Raised {
    const char* name;
    Value elements;
    std::string jet, sql_server, oracle, none;
  };
  using WithElements = std::function<Text(const QVRcfp&, const Value&)>;
  const auto expect_raised = [](const std::vector<Raised>& rows, const WithElements& member) {
    for (const Raised& row : rows) {
      SCOPED_TRACE(row.name);
      const std::string* expected[] = {&row.none, &row.jet, &row.sql_server, &row.oracle};
      for (const Engine engine : {Engine::SqlServer, Engine::Oracle, Engine::Jet, kNoEngine}) {
        SCOPED_TRACE(number_of(engine));
        QVRcfp cfp;
        assign(cfp, engine);
        EXPECT_EQ(thrown_by([&] { return member(cfp, row.elements); }), *expected[number_of(engine)]);
      }
    }
  };
  const std::string kFive = "CallerFailure 5", kNine = "CallerFailure 9";
  expect_raised({{"no elements", list({}), kFive, kFive, kFive, ""},
                 {"no bounds", shapeless(), kNine, kNine, kNine, kNine},
                 {"two dimensions", square({u"a"}), kNine, kNine, kNine, kNine}},
                [](const QVRcfp& cfp, const Value& elements) { return cfp.sqlConcatenar(elements); });
  for (int box = 0; box < 5; ++box) thread.boxes.answer(BoxAnswer::Ok);
  expect_raised({{"no elements", list({}), "", kFive, kFive, ""},
                 {"no bounds", shapeless(), "", kNine, kNine, ""},
                 {"two dimensions", square({u"a", u"b", u"I"}), "", kNine, kNine, ""},
                 {"two elements", list({u"a", u"b"}), "", kNine, kNine, ""},
                 {"four elements", list({u"a", u"b", u"I", u"c"}, 1), "", kNine, kNine, ""}},
                [](const QVRcfp& cfp, const Value& elements) { return cfp.sqlWhereRelacionTablas(elements); });
}

}  // namespace
}  // namespace qvr::tests
