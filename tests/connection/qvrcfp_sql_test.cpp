// The members that write SQL: each with the object's engine, and their failure policies.
#include <algorithm>
#include <functional>
#include <iterator>

#include "connection/qvrcfp.h"
#include "dialect/clauses.h"
#include "dialect/dialect_fixture.h"
#include "dialect/like_pattern.h"
#include "dialect/literals.h"
#include "dialect/statements.h"
#include "dialect/table_relations.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

// The object holds no engine until one is assigned.
void assign(QVRcfp& cfp, Engine engine) {
  ConnectionParameters parameters;
  parameters.MotorBD = engine;
  ASSERT_TRUE(cfp.Asignar(u"id", parameters));
}

class QVRcfpSqlTest : public DialectTest {
 protected:
  void expect_member(const EachEngine& expected, Text (*member)(const QVRcfp&)) {
    expect_each(expected, [&](Engine engine) {
      QVRcfp cfp;
      if (engine != kNoEngine) assign(cfp, engine);
      return member(cfp);
    });
  }
};

const Value kMoment = Date{40548 + (14 * 3600 + 7 * 60 + 9) / 86400.0};
const Value kFields = list({u"Id", u"Activo"});
const Value kValues = list({5, u"Ana"});
const Value kRecord = list({5, true});  // the truth is each engine's own
const Value kRelation = list({u"a", u"b", u"l"});

// What a member gives is what the dialect writes for the object's engine, boxes and all.
struct MemberRow {
  const char* name;
  Text (*member)(const QVRcfp&);
  Text (*function)(Engine);
  bool only_tells = false;  // without an engine there is a box and no text
};
const MemberRow kMembers[] = {
    {"ComillasSQL", [](const QVRcfp& cfp) { return cfp.ComillasSQL(u"O'Neil"); },
     [](Engine) { return dialect::ComillasSQL(u"O'Neil"); }},
    {"ExpSQL", [](const QVRcfp& cfp) { return cfp.ExpSQL(u"O'Neil"); },
     [](Engine engine) { return dialect::ExpSQL(engine, u"O'Neil"); }},
    {"ExpSQL, truth", [](const QVRcfp& cfp) { return cfp.ExpSQL(true); },
     [](Engine engine) { return dialect::ExpSQL(engine, true); }, true},
    {"FechaSQL", [](const QVRcfp& cfp) { return cfp.FechaSQL(kMoment); },
     [](Engine engine) { return dialect::FechaSQL(engine, kMoment); }, true},
    {"HoraSQL", [](const QVRcfp& cfp) { return cfp.HoraSQL(kMoment); },
     [](Engine engine) { return dialect::HoraSQL(engine, kMoment); }, true},
    {"FechaHoraSQL", [](const QVRcfp& cfp) { return cfp.FechaHoraSQL(kMoment); },
     [](Engine engine) { return dialect::FechaHoraSQL(engine, kMoment); }, true},
    {"FechaSQLv", [](const QVRcfp& cfp) { return cfp.FechaSQLv(Date{40548}); },
     [](Engine engine) { return dialect::FechaSQLv(engine, Date{40548}); }, true},
    {"LogicoSQL", [](const QVRcfp& cfp) { return cfp.LogicoSQL(false); },
     [](Engine engine) { return dialect::LogicoSQL(engine, false); }, true},
    {"AhoraSQL", [](const QVRcfp& cfp) { return cfp.AhoraSQL(); },
     [](Engine engine) { return dialect::AhoraSQL(engine); }, true},
    {"sqlEsTrue", [](const QVRcfp& cfp) { return cfp.sqlEsTrue(u"Activo"); },
     [](Engine) { return dialect::sqlEsTrue(u"Activo"); }},
    {"sqlEsFalse", [](const QVRcfp& cfp) { return cfp.sqlEsFalse(u"Activo"); },
     [](Engine) { return dialect::sqlEsFalse(u"Activo"); }},
    {"sqlFalse", [](const QVRcfp& cfp) { return cfp.sqlFalse(); }, [](Engine) { return dialect::sqlFalse(); }},
    {"CadenaParaLikeSQL, leading", [](const QVRcfp& cfp) { return cfp.CadenaParaLikeSQL(u"ana", true, false); },
     [](Engine engine) { return dialect::PatronLikeMotor(engine, u"ana", true, false); }},
    {"CadenaParaLikeSQL, trailing", [](const QVRcfp& cfp) { return cfp.CadenaParaLikeSQL(u"50%", false, true); },
     [](Engine engine) { return dialect::PatronLikeMotor(engine, u"50%", false, true); }},
    {"sqlFechaSistema", [](const QVRcfp& cfp) { return cfp.sqlFechaSistema(); },
     [](Engine engine) { return dialect::sqlFechaSistema(engine); }, true},
    {"sqlTOP", [](const QVRcfp& cfp) { return cfp.sqlTOP(5); },
     [](Engine engine) { return dialect::ClausulaTop(engine, 5); }},
    {"sqlRowNum", [](const QVRcfp& cfp) { return cfp.sqlRowNum(10, true); },
     [](Engine engine) { return dialect::sqlRowNum(engine, 10, true); }},
    {"sqlRowNum, alone", [](const QVRcfp& cfp) { return cfp.sqlRowNum(10, false); },
     [](Engine engine) { return dialect::sqlRowNum(engine, 10, false); }},
    {"sqlAlias", [](const QVRcfp& cfp) { return cfp.sqlAlias(u"Total"); },
     [](Engine engine) { return dialect::ClausulaAlias(engine, u"Total"); }},
    {"sqlEsNulo", [](const QVRcfp& cfp) { return cfp.sqlEsNulo(u"Precio", u"0"); },
     [](Engine engine) { return dialect::sqlEsNulo(engine, u"Precio", u"0"); }},
    {"sqlConcatenar", [](const QVRcfp& cfp) { return cfp.sqlConcatenar(kValues); },
     [](Engine engine) { return dialect::sqlConcatenar(engine, kValues); }},
    {"sqlCASE", [](const QVRcfp& cfp) { return cfp.sqlCASE(u"c", kValues); },
     [](Engine engine) { return dialect::sqlCASE(engine, u"c", kValues); }},
    {"sqlWhereRelacionTablas", [](const QVRcfp& cfp) { return cfp.sqlWhereRelacionTablas(kRelation); },
     [](Engine engine) { return dialect::CondicionWhereRelacionTablas(engine, kRelation); }},
    {"SqlINSERT", [](const QVRcfp& cfp) { return cfp.SqlINSERT(u"Clientes", kRecord); },
     [](Engine engine) { return dialect::SqlINSERT(engine, u"Clientes", kRecord); }},
    {"SqlUPDATE", [](const QVRcfp& cfp) { return cfp.SqlUPDATE(u"T", u"ID", 7, kFields, kRecord); },
     [](Engine engine) { return dialect::SqlUPDATE(engine, u"T", u"ID", 7, kFields, kRecord); }},
    {"SqlInsert2", [](const QVRcfp& cfp) { return cfp.SqlInsert2(u"Clientes", kFields, kRecord); },
     [](Engine engine) { return dialect::SqlInsert2(engine, u"Clientes", kFields, kRecord); }},
    {"SqlUpdate2", [](const QVRcfp& cfp) { return cfp.SqlUpdate2(u"T", kFields, kRecord, u"x=1"); },
     [](Engine engine) { return dialect::SqlUpdate2(engine, u"T", kFields, kRecord, u"x=1"); }},
};

using QVRcfpMember = Rows<DialectTest, MemberRow>;

TEST_P(QVRcfpMember, WritesAsTheDialectDoesForItsEngine) {
  thread.boxes.always = BoxAnswer::Ok;
  bool written = false;
  for (const Engine engine : {Engine::Jet, Engine::SqlServer, Engine::Oracle, kNoEngine}) {
    SCOPED_TRACE(number_of(engine));
    const Text expected = GetParam().function(engine);
    const Lines boxes = thread.log.take();
    QVRcfp cfp;
    if (engine != kNoEngine) assign(cfp, engine);
    EXPECT_EQ(GetParam().member(cfp), expected);
    EXPECT_EQ(thread.log.take(), boxes);
    written |= !expected.empty();
  }
  EXPECT_TRUE(written);
}

INSTANTIATE_TEST_SUITE_P(, QVRcfpMember, ::testing::ValuesIn(kMembers), row_name);

class QVRcfpTellingMember : public QVRcfpMember {};

TEST_P(QVRcfpTellingMember, GivesNothingWhenItsBoxCannotBeShown) {
  const QVRcfp fresh;
  thread.boxes.fail_next();
  EXPECT_EQ(GetParam().member(fresh), u"");
  EXPECT_EQ(thread.log.take(), Lines{"Box OK: Motor de Base de Datos no definido: 0"});
  const std::string_view name = GetParam().name, member = name.substr(0, name.find(','));
  EXPECT_EQ(traced(), Traces{join({u"QVRcfp.", Text(member.begin(), member.end()), u": 5 no box today"})});
}

std::vector<MemberRow> telling_members() {
  std::vector<MemberRow> rows;
  std::ranges::copy_if(kMembers, std::back_inserter(rows), &MemberRow::only_tells);
  return rows;
}
INSTANTIATE_TEST_SUITE_P(, QVRcfpTellingMember, ::testing::ValuesIn(telling_members()), row_name);

// What the dialect throws for is nothing written, but in the two members further down.
struct SilentRow {
  const char* name;
  Text (*member)(const QVRcfp&);
  Traces traced;
  EachEngine expected = all_engines(u"");
};
const Outcome kNoCase = told(u"Funci\u00f3n CASE no implementada para Motor Jet");
const Outcome kNoJoin = told(u"La funci\u00f3n CondicionWhereRelacionTablas no soporta Motor Jet");
const SilentRow kSilent[] = {
    {"sqlCASE, no elements",
     [](const QVRcfp& cfp) { return cfp.sqlCASE(u"c", list({})); },
     Traces(2, trace_of(u"QVRcfp.sqlCASE", 9)),
     {kNoCase, u"", u"", u""}},
    {"sqlCASE, no array",
     [](const QVRcfp& cfp) { return cfp.sqlCASE(u"c", 1); },
     Traces(2, trace_of(u"QVRcfp.sqlCASE", 13)),
     {kNoCase, u"", u"", u""}},
    {"sqlCASE, two dimensions",
     [](const QVRcfp& cfp) {
       return cfp.sqlCASE(u"c", square({1, 2}));
     },
     Traces(2, trace_of(u"QVRcfp.sqlCASE", 9)),
     {kNoCase, u"", u"", u""}},
    {"sqlWhereRelacionTablas, no array", [](const QVRcfp& cfp) { return cfp.sqlWhereRelacionTablas(5); }, {}},
    {"sqlWhereRelacionTablas, Null",
     [](const QVRcfp& cfp) {
       return cfp.sqlWhereRelacionTablas(list({Null{}, u"b", u"I"}));
     },
     Traces(2, trace_of(u"QVRcfp.sqlWhereRelacionTablas", 94)),
     {kNoJoin, u"", u"", u""}},
    {"SqlINSERT, no array", [](const QVRcfp& cfp) { return cfp.SqlINSERT(u"T", 5); },
     Traces(4, trace_of(u"QVRcfp.SqlINSERT", 13))},
    {"SqlINSERT, two dimensions", [](const QVRcfp& cfp) { return cfp.SqlINSERT(u"T", square({1})); },
     Traces(4, trace_of(u"QVRcfp.SqlINSERT", 9))},
    {"SqlUPDATE, fewer values", [](const QVRcfp& cfp) { return cfp.SqlUPDATE(u"T", u"k", 7, kFields, list({5})); },
     Traces(4, trace_of(u"QVRcfp.SqlUPDATE", 9))},
    {"SqlInsert2, no array", [](const QVRcfp& cfp) { return cfp.SqlInsert2(u"T", u"Id", kValues); },
     Traces(4, trace_of(u"QVRcfp.SqlInsert2", 13))},
    {"SqlInsert2, fewer values", [](const QVRcfp& cfp) { return cfp.SqlInsert2(u"T", kFields, list({5})); },
     Traces(4, trace_of(u"QVRcfp.SqlInsert2", 9))},
    {"SqlUpdate2, Null as a field",
     [](const QVRcfp& cfp) { return cfp.SqlUpdate2(u"T", list({Null{}}), kValues, u""); },
     Traces(4, trace_of(u"QVRcfp.SqlUpdate2", 94))},
    {"SqlUpdate2, no array", [](const QVRcfp& cfp) { return cfp.SqlUpdate2(u"T", kFields, 5, u""); },
     Traces(4, trace_of(u"QVRcfp.SqlUpdate2", 13))},
};

using QVRcfpSilentMember = Rows<QVRcfpSqlTest, SilentRow>;

TEST_P(QVRcfpSilentMember, GivesNothing) {
  expect_member(GetParam().expected, GetParam().member);
  EXPECT_EQ(traced(), GetParam().traced);
}

INSTANTIATE_TEST_SUITE_P(, QVRcfpSilentMember, ::testing::ValuesIn(kSilent), row_name);

TEST_F(QVRcfpSqlTest, AnyNumberThatIsNoEngineIsShown) {
  QVRcfp cfp;
  assign(cfp, Engine{-99});
  expect_outcome(told(u"Motor de Base de Datos no definido: -99"), [&] { return cfp.AhoraSQL(); });
  assign(cfp, Engine::Oracle);
  expect_outcome(u"SYSDATE", [&] { return cfp.AhoraSQL(); });
}

TEST_F(QVRcfpSqlTest, ABoxThatJetCannotShowChangesNothing) {
  QVRcfp jet;
  assign(jet, Engine::Jet);
  for (int box = 0; box < 2; ++box) thread.boxes.fail_next();
  EXPECT_EQ(jet.sqlCASE(u"c", list({1})), u"");
  EXPECT_EQ(jet.sqlWhereRelacionTablas(list({1})), u"");
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.sqlCASE: 5 no box today", u"QVRcfp.sqlWhereRelacionTablas: 5 no box today"}));
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
  const std::string kFive = "CallerFailure 5", kNine = "CallerFailure 9", kThirteen = "RuntimeFailure 13",
                    kNinetyFour = "RuntimeFailure 94";
  expect_raised({{"no elements", list({}), kFive, kFive, kFive, ""},
                 {"no bounds", shapeless(), kNine, kNine, kNine, kNine},
                 {"two dimensions", square({u"a"}), kNine, kNine, kNine, kNine},
                 {"no array", u"a", kThirteen, kThirteen, kThirteen, kThirteen},
                 {"Null", list({u"a", Null{}}), kNinetyFour, kNinetyFour, kNinetyFour, kNinetyFour},
                 {"an object", list({object()}), kThirteen, kThirteen, kThirteen, kThirteen},
                 {"Empty", list({Empty{}}), "", "", "", ""}},
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
