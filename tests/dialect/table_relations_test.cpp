#include "dialect/table_relations.h"

#include "dialect/dialect_fixture.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

const Outcome kJetHasNone = told(u"La funci\u00f3n CondicionWhereRelacionTablas no soporta Motor Jet");

Outcome wrong_relation(TextView code) {
  return told(join({u"Relaci\u00f3n incorrecta en CondicionWhereRelacionTablas: ", code}));
}

struct TableRelationsRow {
  const char* name;
  Value triples;
  Outcome sql_server, oracle;
};
const TableRelationsRow kTableRelationsRows[] = {
    {"inner", list({u"a", u"b", u"I"}), u" (a=b) ", u" (a=b) "},
    {"inner, lower case", list({u"a", u"b", u"i"}), u" (a=b) ", u" (a=b) "},
    {"left", list({u"a", u"b", u"L"}), u" (a*=b) ", u" (a=b(+)) "},
    {"left, lower case", list({u"a", u"b", u"l"}), u" (a*=b) ", u" (a=b(+)) "},
    {"right", list({u"a", u"b", u"R"}), u" (a=*b) ", u" (a(+)=b) "},
    {"right, lower case", list({u"a", u"b", u"r"}), u" (a=*b) ", u" (a(+)=b) "},
    {"A is Oracle's only", list({u"a", u"b", u"A"}), wrong_relation(u"A"), u" (a=b) "},
    {"A, lower case", list({u"a", u"b", u"a"}), wrong_relation(u"A"), u" (a=b) "},
    {"two joins", list({u"C.Id", u"P.IdCliente", u"l", u"P.IdArt", u"A.Id", u"I"}),
     u" (C.Id*=P.IdCliente And P.IdArt=A.Id) ", u" (C.Id=P.IdCliente(+) And P.IdArt=A.Id) "},
    {"three joins", list({u"a", u"b", u"I", u"c", u"d", u"R", u"e", u"f", u"L"}), u" (a=b And c=*d And e*=f) ",
     u" (a=b And c(+)=d And e=f(+)) "},
    {"lower bound 1", list({u"a", u"b", u"I", u"c", u"d", u"I"}, 1), u" (a=b And c=d) ", u" (a=b And c=d) "},
    {"negative lower bound", list({u"a", u"b", u"L"}, -7), u" (a*=b) ", u" (a=b(+)) "},
    {"last possible lower bound", list({u"a", u"b", u"I"}, INT32_MAX - 2), u" (a=b) ", u" (a=b) "},
    {"numbers", list({1, 2.5, u"I"}), u" (1=2.5) ", u" (1=2.5) "},
    {"unknown code", list({u"a", u"b", u"x"}), wrong_relation(u"X"), wrong_relation(u"X")},
    {"unknown code beyond ASCII", list({u"a", u"b", u"\u00f1o"}), wrong_relation(u"\u00d1O"),
     wrong_relation(u"\u00d1O")},
    {"code with a blank", list({u"a", u"b", u"I "}), wrong_relation(u"I "), wrong_relation(u"I ")},
    {"no code", list({u"a", u"b", u""}), wrong_relation(u""), wrong_relation(u"")},
    {"Empty as the code", list({u"a", u"b", Empty{}}), wrong_relation(u""), wrong_relation(u"")},
    {"unknown code in the second join", list({u"a", u"b", u"I", u"c", u"d", u"Z"}), wrong_relation(u"Z"),
     wrong_relation(u"Z")},
    // The loop stops at the code, so what comes behind does not matter.
    {"unknown code before a torn triple", list({u"a", u"b", u"Z", u"c"}), wrong_relation(u"Z"), wrong_relation(u"Z")},
};

using TableRelations = Rows<DialectTest, TableRelationsRow>;

TEST_P(TableRelations, AreWrittenForEachEngine) {
  const TableRelationsRow& row = GetParam();
  expect_each({kJetHasNone, row.sql_server, row.oracle, u""},
              [&](Engine engine) { return dialect::CondicionWhereRelacionTablas(engine, row.triples); });
}

INSTANTIATE_TEST_SUITE_P(, TableRelations, ::testing::ValuesIn(kTableRelationsRows), row_name);

struct TornRelationsRow {
  const char* name;
  Value triples;
  std::string thrown;
};
const TornRelationsRow kTornRelationsRows[] = {
    {"no elements", list({}), "CallerFailure 5"},
    {"no elements, lower bound 1", list({}, 1), "CallerFailure 5"},
    {"one element", list({u"a"}), "CallerFailure 9"},
    {"two elements", list({u"a", u"b"}), "CallerFailure 9"},
    {"four elements", list({u"a", u"b", u"I", u"c"}), "CallerFailure 9"},
    {"five elements, lower bound 1", list({u"a", u"b", u"I", u"c", u"d"}, 1), "CallerFailure 9"},
    {"two dimensions", square({u"a", u"b", u"I"}), "CallerFailure 9"},
    {"an array without bounds", shapeless(), "CallerFailure 9"},
    {"Null as a column", list({Null{}, u"b", u"I"}), "RuntimeFailure 94"},
    {"Null as the second column", list({u"a", Null{}, u"I"}), "RuntimeFailure 94"},
    {"Null as the code", list({u"a", u"b", Null{}}), "RuntimeFailure 94"},
    {"an object as a column", list({u"a", object(), u"I"}), "RuntimeFailure 13"},
    {"an array as a column", list({list({u"a"}), u"b", u"I"}), "RuntimeFailure 13"},
};

using TornRelations = Rows<DialectTest, TornRelationsRow>;

TEST_P(TornRelations, Fail) {
  const TornRelationsRow& row = GetParam();
  for (const Engine engine : {Engine::SqlServer, Engine::Oracle}) {
    SCOPED_TRACE(number_of(engine));
    EXPECT_EQ(thrown_by([&] { return dialect::CondicionWhereRelacionTablas(engine, row.triples); }), row.thrown);
  }
  // These do not look at the elements.
  expect_outcome(kJetHasNone, [&] { return dialect::CondicionWhereRelacionTablas(Engine::Jet, row.triples); });
  expect_outcome(u"", [&] { return dialect::CondicionWhereRelacionTablas(kNoEngine, row.triples); });
}

INSTANTIATE_TEST_SUITE_P(, TornRelations, ::testing::ValuesIn(kTornRelationsRows), row_name);

struct NoRelationsRow {
  const char* name;
  Value value;
};
const NoRelationsRow kNoRelationsRows[] = {
    {"text", u"a"},       {"empty text", u""},      {"number", 5},
    {"Empty", Empty{}},   {"Null", Null{}},         {"missing", Missing{}},
    {"object", object()}, {"Nothing", ObjectRef()}, {"error", ErrorValue{5}},
};

using NoRelations = Rows<DialectTest, NoRelationsRow>;

TEST_P(NoRelations, AreEmpty) {
  expect_each(all_engines(u""),
              [](Engine engine) { return dialect::CondicionWhereRelacionTablas(engine, GetParam().value); });
}

INSTANTIATE_TEST_SUITE_P(, NoRelations, ::testing::ValuesIn(kNoRelationsRows), row_name);

}  // namespace
}  // namespace qvr::tests
