#include "session/idioma_simple.h"

#include <gtest/gtest.h>

#include "support/describe.h"
#include "support/rows.h"
#include "support/test_thread.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

class IdiomaSimpleTest : public ::testing::Test {
 protected:
  static TextTable catalogue() {
    TextTable table(kMessageCount, language::kCarried);
    CtesMensajes(table);
    return table;
  }

  bool load(std::int32_t number) { return idioma.CargarEnMemoria(number, {0, 1, 2, 3}, catalogue()); }

  // One row per text, one column, language 0.
  bool load_texts(const std::vector<Text>& texts) {
    TextTable table(static_cast<std::int32_t>(texts.size()), 1);
    for (std::size_t i = 0; i < texts.size(); ++i) table.at(static_cast<std::int32_t>(i), 0) = texts[i];
    return idioma.CargarEnMemoria(0, {0}, table);
  }

  TestThread thread;
  IdiomaSimple idioma{thread.system};
};

TEST_F(IdiomaSimpleTest, AnswersNothingBeforeLoading) {
  EXPECT_FALSE(idioma.Creado());
  EXPECT_EQ(idioma.Idioma(), 0);
  EXPECT_EQ(idioma.NumIdiomas(), 0);
  EXPECT_EQ(idioma.NumMensajes(), 0);
  EXPECT_TRUE(idioma.IdiomasDisponibles().empty());
  const Value one[] = {1};
  EXPECT_EQ(idioma.CI(0), u"");
  EXPECT_EQ(idioma.CIp(0, one), u"");
  EXPECT_EQ(idioma.CIsp(0, 1, one), u"");
  idioma.Idioma(3);
  EXPECT_EQ(idioma.Idioma(), 0);
  EXPECT_FALSE(idioma.Creado());
  EXPECT_EQ(traced(),
            (Traces{u"IdiomaSimple.CI: 9 Subscript out of range", u"IdiomaSimple.CIp: 9 Subscript out of range",
                    u"IdiomaSimple.CIsp: 9 Subscript out of range"}));
}

TEST_F(IdiomaSimpleTest, TellsWhatItLoaded) {
  EXPECT_TRUE(load(1));
  EXPECT_TRUE(idioma.Creado());
  EXPECT_EQ(idioma.NumIdiomas(), 4);
  EXPECT_EQ(idioma.NumMensajes(), 10);
  std::string list;
  for (const Value& number : idioma.IdiomasDisponibles()) list += describe(number) + ";";
  EXPECT_EQ(list, "Long 0;Long 1;Long 2;Long 3;");
}

// Languages -1 to 9 and far ones: what they fall back to, when loaded with and when written later.
struct Wanted {
  const char* name;
  std::int32_t wanted, current;
  TextView y;
};

constexpr Wanted kWanted[] = {
    {"below zero", -1, 1, u"and"},
    {"Spanish", 0, 0, u"y"},
    {"English", 1, 1, u"and"},
    {"Italian", 2, 2, u"y"},
    {"French", 3, 3, u"et"},
    {"Catalan", 4, 0, u"y"},
    {"fifth", 5, 0, u"y"},
    {"sixth", 6, 0, u"y"},
    {"seventh", 7, 0, u"y"},
    {"German", 8, 1, u"and"},
    {"ninth", 9, 1, u"and"},
    {"least", INT32_MIN, 1, u"and"},
    {"greatest", INT32_MAX, 1, u"and"},
};

using IdiomaWanted = Rows<IdiomaSimpleTest, Wanted>;

TEST_P(IdiomaWanted, FallsBackToALanguageThatItCarries) {
  const Wanted& row = GetParam();
  EXPECT_TRUE(load(row.wanted));
  EXPECT_EQ(idioma.Idioma(), row.current);
  EXPECT_EQ(idioma.CI(MsgY), Text(row.y));
  for (std::int32_t before = 0; before < 4; ++before) {
    load(before);
    idioma.Idioma(row.wanted);
    EXPECT_EQ(idioma.Idioma(), row.current) << "from " << before;
    EXPECT_EQ(idioma.CI(MsgY), Text(row.y)) << "from " << before;
  }
}

INSTANTIATE_TEST_SUITE_P(, IdiomaWanted, testing::ValuesIn(kWanted), row_name);

TEST_F(IdiomaSimpleTest, ItalianReadsSpanish) {
  ASSERT_TRUE(load(3));
  idioma.Idioma(2);
  EXPECT_EQ(idioma.Idioma(), 2);
  EXPECT_EQ(idioma.CI(MsgMetodo), u"M\u00e9todo");
}

TEST_F(IdiomaSimpleTest, FallBackOverAListWithoutSpanishOrEnglishFails) {
  EXPECT_FALSE(idioma.CargarEnMemoria(5, {1, 3}, TextTable(1, 2)));
  EXPECT_FALSE(idioma.Creado());
  EXPECT_FALSE(idioma.CargarEnMemoria(9, {0, 3}, TextTable(1, 2)));
  EXPECT_TRUE(idioma.CargarEnMemoria(3, {0, 3}, TextTable(1, 2)));
  EXPECT_TRUE(idioma.CargarEnMemoria(8, {8}, TextTable(1, 1)));
  EXPECT_EQ(idioma.Idioma(), 8);
}

TEST_F(IdiomaSimpleTest, AFailedLoadLeavesItUnloaded) {
  ASSERT_TRUE(load(3));
  EXPECT_FALSE(idioma.CargarEnMemoria(3, {}, catalogue()));
  EXPECT_FALSE(idioma.Creado());
  EXPECT_EQ(idioma.CI(MsgY), u"");
  ASSERT_TRUE(load(3));
  EXPECT_FALSE(idioma.CargarEnMemoria(3, {0, 1, 2, 3}, TextTable(10, 3))) << "the list has a column too many";
  EXPECT_FALSE(idioma.Creado());
  EXPECT_TRUE(load(1));
  EXPECT_EQ(idioma.CI(MsgY), u"and");
  EXPECT_EQ(traced(), Traces{u"IdiomaSimple.CI: 9 Subscript out of range"});
}

TEST_F(IdiomaSimpleTest, TakesTheFirstPositionOfALanguage) {
  TextTable table(1, 3);
  table.at(0, 0) = u"zero", table.at(0, 1) = u"first three", table.at(0, 2) = u"second three";
  ASSERT_TRUE(idioma.CargarEnMemoria(3, {0, 3, 3}, table));
  EXPECT_EQ(idioma.CI(0), u"first three");
}

TEST_F(IdiomaSimpleTest, TakesLanguageNumbersOfAnyKind) {
  const std::vector<Value> numbers = {0.0, Text(u"1"), std::int16_t{3}};
  EXPECT_TRUE(idioma.CargarEnMemoria(3, numbers, TextTable(1, 3)));
  EXPECT_EQ(idioma.Idioma(), 3);
  idioma.Idioma(1);
  EXPECT_EQ(idioma.Idioma(), 1);
  std::string list;
  for (const Value& number : idioma.IdiomasDisponibles()) list += describe(number) + ";";
  EXPECT_EQ(list, "Double 0;String 1;Integer 3;");
}

TEST_F(IdiomaSimpleTest, KeepsACopyOfTheCatalogue) {
  TextTable table = catalogue();
  ASSERT_TRUE(idioma.CargarEnMemoria(0, {0, 1, 2, 3}, table));
  table.at(MsgY, 1) = u"changed";
  idioma.Idioma(1);
  EXPECT_EQ(idioma.CI(MsgY), u"and");
}

TEST_F(IdiomaSimpleTest, RowsOutsideTheCatalogueAreEmpty) {
  ASSERT_TRUE(load(3));
  const Value one[] = {1};
  for (std::int32_t row : {-1, 10, 11, INT32_MAX, INT32_MIN}) {
    SCOPED_TRACE(row);
    EXPECT_EQ(idioma.CI(row), u"");
    EXPECT_EQ(idioma.CIp(row, one), u"");
    EXPECT_EQ(idioma.CIsp(row, 1, one), u"");
    EXPECT_EQ(traced(), (Traces{trace_of(u"IdiomaSimple.CI", 9), trace_of(u"IdiomaSimple.CIp", 9),
                                trace_of(u"IdiomaSimple.CIsp", 9)}));
  }
  EXPECT_EQ(idioma.CIsp(9, 2, {}), u"");
  EXPECT_EQ(traced(), Traces{trace_of(u"IdiomaSimple.CIsp", 9)});
  EXPECT_EQ(idioma.CIsp(9, 1, {}), u"M\u00e9thode");
  EXPECT_EQ(idioma.CI(MsgEjecutarRestantes), u"Souhaitez-vous ex\u00e9cuter les commandes restantes ?");
}

TEST_F(IdiomaSimpleTest, TwoBarsAreALineBreak) {
  ASSERT_TRUE(load_texts({u"a||b", u"||", u"|||", u"||||", u"x|1||2"}));
  EXPECT_EQ(idioma.CI(0), u"a\r\nb");
  EXPECT_EQ(idioma.CI(1), u"\r\n");
  EXPECT_EQ(idioma.CI(2), u"\r\n|");
  EXPECT_EQ(idioma.CI(3), u"\r\n\r\n");
  EXPECT_EQ(idioma.CI(4), u"x|1\r\n2");
}

TEST_F(IdiomaSimpleTest, FillsPlaceholdersInAscendingOrder) {
  ASSERT_TRUE(load_texts({u"|1 of |2, |1", u"|10", u"|2|1", u"none", u"a|||1"}));
  const Value two[] = {Text(u"x"), 7};
  EXPECT_EQ(idioma.CIp(0, two), u"x of 7, x");
  EXPECT_EQ(idioma.CIp(0, {}), u"|1 of |2, |1");
  const Value ten[] = {Text(u"one"), 2, 3, 4, 5, 6, 7, 8, 9, Text(u"ten")};
  EXPECT_EQ(idioma.CIp(1, ten), u"one0");
  const Value chained[] = {Text(u"|2"), Text(u"end")};
  EXPECT_EQ(idioma.CIp(2, chained), u"endend");
  EXPECT_EQ(idioma.CIp(3, two), u"none");
  EXPECT_EQ(idioma.CIp(4, two), u"a\r\nx");
}

TEST_F(IdiomaSimpleTest, WritesArgumentsOfAnyKind) {
  ASSERT_TRUE(load_texts({u"|1;|2;|3;|4"}));
  thread.locale.decimal = u',';
  const Value kinds[] = {2.5, true, Empty{}, Date{36526}};
  EXPECT_EQ(idioma.CIp(0, kinds), u"2,5;True;;01/01/2000");
  const Value null[] = {Null{}};
  EXPECT_EQ(idioma.CIp(0, null), u"");
  EXPECT_EQ(traced(), Traces{u"IdiomaSimple.CIp: 94 Invalid use of Null"});
}

TEST_F(IdiomaSimpleTest, ChoosesSingularOrPlural) {
  ASSERT_TRUE(load_texts({u"|1 row of |2", u"|1 rows of |2 and |3", u"|10"}));
  const Value names[] = {Text(u"A"), Text(u"B")};
  EXPECT_EQ(idioma.CIsp(0, 1, names), u"1 row of A");
  EXPECT_EQ(idioma.CIsp(0, 0, names), u"0 rows of A and B");
  EXPECT_EQ(idioma.CIsp(0, 2, names), u"2 rows of A and B");
  EXPECT_EQ(idioma.CIsp(0, -1, names), u"-1 rows of A and B");
  EXPECT_EQ(idioma.CIsp(1, 1, names), u"1 rows of A and B");
  EXPECT_EQ(idioma.CIsp(1, 5, {}), u"50");
}

TEST_F(IdiomaSimpleTest, WritingTheLanguageInForceChangesNothing) {
  ASSERT_TRUE(load(1));
  idioma.Idioma(8);  // falls back to the one in force
  EXPECT_EQ(idioma.Idioma(), 1);
  EXPECT_TRUE(idioma.Creado());
  EXPECT_EQ(idioma.CI(MsgY), u"and");
}

}  // namespace
}  // namespace qvr::tests
