#include "dialect/clauses.h"

#include "dialect/dialect_fixture.h"
#include "dialect/table_relations.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;
using ClausesTest = DialectTest;

struct ClausulaTopRow {
  const char* name;
  std::int32_t count;
  TextView top;  // of Jet and SQL Server
};
constexpr ClausulaTopRow kClausulaTopRows[] = {{"no limit", 0, u""},
                                               {"one row", 1, u" TOP 1 "},
                                               {"five rows", 5, u" TOP 5 "},
                                               {"greatest number", INT32_MAX, u" TOP 2147483647 "},
                                               {"minus one", -1, u""},
                                               {"least number", INT32_MIN, u""},
                                               {"a thousand rows", 1000, u" TOP 1000 "}};

using ClausulaTop = Rows<DialectTest, ClausulaTopRow>;

TEST_P(ClausulaTop, StandsBeforeTheSelectList) {
  const ClausulaTopRow& row = GetParam();
  expect_each({Text(row.top), Text(row.top), u"", u""},
              [&](Engine engine) { return dialect::ClausulaTop(engine, row.count); });
}

INSTANTIATE_TEST_SUITE_P(, ClausulaTop, ::testing::ValuesIn(kClausulaTopRows), row_name);

struct RowNumRow {
  const char* name;
  std::int32_t count;
  bool prepend_and;
  Text method, function;  // they differ in the parentheses
};
const RowNumRow kRowNumRows[] = {
    {"five rows", 5, false, u" RowNum<=5 ", u" (RowNum<=5) "},
    {"ten rows with And", 10, true, u" And RowNum<=10 ", u" And (RowNum<=10) "},
    {"one row", 1, false, u" RowNum<=1 ", u" (RowNum<=1) "},
    {"greatest number with And", INT32_MAX, true, u" And RowNum<=2147483647 ", u" And (RowNum<=2147483647) "},
    {"no limit", 0, true, u"", u""},
    {"minus one", -1, false, u"", u""},
    {"least number", INT32_MIN, true, u"", u""},
};

using RowNum = Rows<DialectTest, RowNumRow>;

TEST_P(RowNum, IsAConditionOfOracle) {
  const RowNumRow& row = GetParam();
  expect_each({u"", u"", row.method, u""},
              [&](Engine engine) { return dialect::sqlRowNum(engine, row.count, row.prepend_and); });
  expect_each({u"", u"", row.function, u""},
              [&](Engine engine) { return dialect::CondicionRowNum(engine, row.count, row.prepend_and); });
}

INSTANTIATE_TEST_SUITE_P(, RowNum, ::testing::ValuesIn(kRowNumRows), row_name);

TEST_F(ClausesTest, ClausulaAliasEndsWithoutABlank) {
  expect_each({u" As [Total]", u" As [Total]", u" \"Total\"", u""},
              [](Engine engine) { return dialect::ClausulaAlias(engine, u"Total"); });
  expect_each({u" As [un a\u00f1o]", u" As [un a\u00f1o]", u" \"un a\u00f1o\"", u""},
              [](Engine engine) { return dialect::ClausulaAlias(engine, u"un a\u00f1o"); });
  expect_each({u" As []", u" As []", u" \"\"", u""}, [](Engine engine) { return dialect::ClausulaAlias(engine, u""); });
}

TEST_F(ClausesTest, EsNuloReplacesNull) {
  expect_each({u" IIf(IsNull(Precio),0,Precio) ", u" IsNull(Precio,0) ", u" NVL(Precio,0) ", u""},
              [](Engine engine) { return dialect::sqlEsNulo(engine, u"Precio", u"0"); });
  expect_each({u" IIf(IsNull(),,) ", u" IsNull(,) ", u" NVL(,) ", u""},
              [](Engine engine) { return dialect::sqlEsNulo(engine, u"", u""); });
}

struct ConcatenarRow {
  const char* name;
  Value elements;
  EachEngine expected;
};
const ConcatenarRow kConcatenarRows[] = {
    {"two", list({u"a", u"b"}), {u" a & b ", u" a + b ", u" a || b ", u" ab "}},
    {"one", list({u"a"}), all_engines(u" a ")},
    {"three, lower bound 1", list({u"a", u"b", u"c"}, 1), {u" a & b & c ", u" a + b + c ", u" a || b || c ", u" abc "}},
    {"negative lower bound", list({u"a", u"b"}, -5), {u" a & b ", u" a + b ", u" a || b ", u" ab "}},
    {"an empty text", list({u"a", u"", u"b"}), {u" a &  & b ", u" a +  + b ", u" a ||  || b ", u" ab "}},
    {"an empty text last", list({u"a", u""}), {u" a &  ", u" a +  ", u" a ||  ", u" a "}},
    {"Empty", list({Empty{}, u"b"}), {u"  & b ", u"  + b ", u"  || b ", u" b "}},
    {"numbers and truth",
     list({1, 2.5, true}),
     {u" 1 & 2.5 & True ", u" 1 + 2.5 + True ", u" 1 || 2.5 || True ", u" 12.5True "}},
    {"elements that end like an operator",
     list({u"a & ", u"b || "}),
     {u" a &  & b ||  ", u" a &  + b ||  ", u" a &  || b ||  ", u" a & b ||  "}},
};

using Concatenar = Rows<DialectTest, ConcatenarRow>;

TEST_P(Concatenar, JoinsTheElements) {
  const ConcatenarRow& row = GetParam();
  expect_each(row.expected, [&](Engine engine) { return dialect::sqlConcatenar(engine, row.elements); });
}

INSTANTIATE_TEST_SUITE_P(, Concatenar, ::testing::ValuesIn(kConcatenarRows), row_name);

// A decimal comma would separate list elements.
TEST_F(ClausesTest, NumbersHaveAPointInEveryLocale) {
  thread.locale.decimal = u',', thread.locale.thousands = u'.';
  const Value numbers = list({2.5, 0.1f, Currency{-12500}, Decimal{0, 0, 15, 1, false}, std::int64_t{7}});
  EXPECT_EQ(dialect::sqlConcatenar(Engine::Oracle, numbers), u" 2.5 || 0.1 || -1.25 || 1.5 || 7 ");
  EXPECT_EQ(dialect::sqlCASE(Engine::Oracle, u"c", numbers), u" DECODE(c,2.5,0.1,-1.25,1.5,7) ");
  EXPECT_EQ(dialect::CondicionWhereRelacionTablas(Engine::Oracle, list({u"a", 2.5, u"I"})), u" (a=2.5) ");
}

struct ConcatenarFailureRow {
  const char* name;
  Value elements;
  std::string thrown;
};
const ConcatenarFailureRow kConcatenarFailureRows[] = {
    {"an array without bounds", shapeless(), "CallerFailure 9"},
    {"two dimensions", square({u"a", u"b"}), "CallerFailure 9"},
    {"no array", u"a", "RuntimeFailure 13"},
    {"Empty", Empty{}, "RuntimeFailure 13"},
    {"Null as an element", list({u"a", Null{}}), "RuntimeFailure 94"},
    {"an object as an element", list({object()}), "RuntimeFailure 13"},
    {"an array as an element", list({list({u"a"})}), "RuntimeFailure 13"},
    {"a missing element", list({Missing{}}), "RuntimeFailure 13"},
};

using ConcatenarFailure = Rows<DialectTest, ConcatenarFailureRow>;

TEST_P(ConcatenarFailure, IsThatOfWhatCannotBeWalked) {
  const ConcatenarFailureRow& row = GetParam();
  for (const Engine engine : {Engine::Jet, Engine::SqlServer, Engine::Oracle, kNoEngine}) {
    SCOPED_TRACE(number_of(engine));
    EXPECT_EQ(thrown_by([&] { return dialect::sqlConcatenar(engine, row.elements); }), row.thrown);
  }
}

INSTANTIATE_TEST_SUITE_P(, ConcatenarFailure, ::testing::ValuesIn(kConcatenarFailureRows), row_name);

// There is no operator behind nothing to take away again; without an engine there is none at all.
TEST_F(ClausesTest, ConcatenarOfNothingFailsWhereThereIsAnOperator) {
  for (const Engine engine : {Engine::Jet, Engine::SqlServer, Engine::Oracle}) {
    SCOPED_TRACE(number_of(engine));
    EXPECT_EQ(thrown_by([&] { return dialect::sqlConcatenar(engine, list({}, 1)); }), "CallerFailure 5");
  }
  expect_outcome(u"  ", [] { return dialect::sqlConcatenar(kNoEngine, list({})); });
}

const Outcome kJetHasNone = told(u"Funci\u00f3n CASE no implementada para Motor Jet");
struct CaseRow {
  const char* name;
  Value pairs;
  Text sql_server, oracle;
};
const CaseRow kCaseRows[] = {
    {"two pairs and a default", list({u"1", u"'Alta'", u"2", u"'Baja'", u"'Otra'"}),
     u" CASE Estado WHEN 1 THEN 'Alta' WHEN 2 THEN 'Baja' ELSE 'Otra' END ",
     u" DECODE(Estado,1,'Alta',2,'Baja','Otra') "},
    {"one pair", list({u"1", u"'Alta'"}), u" CASE Estado WHEN 1 THEN 'Alta' END ", u" DECODE(Estado,1,'Alta') "},
    {"two pairs", list({u"1", u"a", u"2", u"b"}), u" CASE Estado WHEN 1 THEN a WHEN 2 THEN b END ",
     u" DECODE(Estado,1,a,2,b) "},
    {"only a default", list({u"'Otra'"}), u" CASE Estado ELSE 'Otra' END ", u" DECODE(Estado,'Otra') "},
    {"lower bound 1", list({u"1", u"a", u"z"}, 1), u" CASE Estado WHEN 1 THEN a ELSE z END ",
     u" DECODE(Estado,1,a,z) "},
    {"negative lower bound", list({u"1", u"a", u"z"}, -3), u" CASE Estado WHEN 1 THEN a ELSE z END ",
     u" DECODE(Estado,1,a,z) "},
    {"numbers", list({1, 2.5, -3}), u" CASE Estado WHEN 1 THEN 2.5 ELSE -3 END ", u" DECODE(Estado,1,2.5,-3) "},
    {"Empty", list({Empty{}, u"a"}), u" CASE Estado WHEN  THEN a END ", u" DECODE(Estado,,a) "},
};

using Case = Rows<DialectTest, CaseRow>;

TEST_P(Case, MapsPairsAndADefault) {
  const CaseRow& row = GetParam();
  expect_each({kJetHasNone, row.sql_server, row.oracle, u""},
              [&](Engine engine) { return dialect::sqlCASE(engine, u"Estado", row.pairs); });
}

INSTANTIATE_TEST_SUITE_P(, Case, ::testing::ValuesIn(kCaseRows), row_name);

struct CaseFailureRow {
  const char* name;
  Value pairs;
  std::string thrown;
};
const CaseFailureRow kCaseFailureRows[] = {
    {"no array", u"1", "RuntimeFailure 13"},
    {"no elements", list({}), "RuntimeFailure 9"},
    {"an array without bounds", shapeless(), "CallerFailure 9"},
    {"two dimensions", square({u"1", u"a"}), "CallerFailure 9"},
    {"Null as an element", list({u"1", Null{}}), "RuntimeFailure 94"},
    {"an object as an element", list({u"1", object()}), "RuntimeFailure 13"},
    {"an array as an element", list({u"1", u"a", list({})}), "RuntimeFailure 13"},
};

using CaseFailure = Rows<DialectTest, CaseFailureRow>;

TEST_P(CaseFailure, IsThatOfWhatCannotBeWalked) {
  const CaseFailureRow& row = GetParam();
  for (const Engine engine : {Engine::SqlServer, Engine::Oracle}) {
    EXPECT_EQ(thrown_by([&] { return dialect::sqlCASE(engine, u"Estado", row.pairs); }), row.thrown);
  }
  // The list is not looked at.
  expect_outcome(u"", [&] { return dialect::sqlCASE(kNoEngine, u"Estado", row.pairs); });
  expect_outcome(told(u"Funci\u00f3n CASE no implementada para Motor Jet"),
                 [&] { return dialect::sqlCASE(Engine::Jet, u"Estado", row.pairs); });
}

INSTANTIATE_TEST_SUITE_P(, CaseFailure, ::testing::ValuesIn(kCaseFailureRows), row_name);

}  // namespace
}  // namespace qvr::tests
