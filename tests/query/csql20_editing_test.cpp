// What is added to a query, taken away again and made its own.
#include "query/query_fixture.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

class Csql20EditingTest : public QueryTest {
 protected:
  void SetUp() override { ASSERT_TRUE(query.Crear(full(Engine::SqlServer))); }

  // Clicks on columns, none of which shows a box.
  void click(const std::vector<std::int16_t>& columns) {
    for (const std::int16_t column : columns) EXPECT_FALSE(query.AmpliarOrden(column));
  }

  cSQL20 query;
};

TEST_F(Csql20EditingTest, ConditionsAreAddedOnce) {
  struct Row {
    Text condition;
    bool added;
    TextView where;
  };
  const Row kRows[] = {
      {u"a=1", true, u"(a=1)"},
      {u"a=1", false, u"(a=1)"},
      {u"A=1", false, u"(a=1)"},
      {u"", false, u"(a=1)"},
      {u"   ", false, u"(a=1)"},
      {u" a=1", true, u"(a=1) and ( a=1)"},
      {u"=1", true, u"(a=1) and ( a=1) and (=1)"},
      {u"x=(\u00e1=1)", true, u"(a=1) and ( a=1) and (=1) and (x=(\u00e1=1))"},
      {u"\u00c1=1", false, u"(a=1) and ( a=1) and (=1) and (x=(\u00e1=1))"},
      {u"a=1) AND ( a=1", false, u"(a=1) and ( a=1) and (=1) and (x=(\u00e1=1))"},
      {u"\t", true, u"(a=1) and ( a=1) and (=1) and (x=(\u00e1=1)) and (\t)"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(to_utf8(row.condition));
    EXPECT_EQ(query.AmpliarCondicionWhere(row.condition, u""), row.added);
    EXPECT_EQ(query.ParteWhere(true), join({u"C.Baja=0 And ", row.where}));
    EXPECT_EQ(query.AmpliarCondicionHaving(row.condition, u""), row.added);
    EXPECT_EQ(query.ParteHaving(true), join({u"Sum(P.Imp)>0 and ", row.where}));
    EXPECT_EQ(query.CriterioActual(), u"");
  }
}

TEST_F(Csql20EditingTest, TheOriginalConditionCanBeAddedToItself) {
  EXPECT_TRUE(query.AmpliarCondicionWhere(u"C.Baja=0", u""));
  EXPECT_EQ(query.ParteWhere(true), u"C.Baja=0 And (C.Baja=0)");
}

TEST_F(Csql20EditingTest, BothKindsOfConditionsShareTheCriterion) {
  EXPECT_TRUE(query.AmpliarCondicionWhere(u"a=1", u"a es 1"));
  EXPECT_TRUE(query.AmpliarCondicionHaving(u"a=1", u"la suma"));
  EXPECT_TRUE(query.AmpliarCondicionWhere(u"c=3", u""));
  EXPECT_FALSE(query.AmpliarCondicionWhere(u"A=1", u"otra vez"));
  EXPECT_FALSE(query.AmpliarCondicionHaving(u"A=1", u"otra vez"));
  EXPECT_FALSE(query.AmpliarCondicionWhere(u" ", u"nada"));
  EXPECT_TRUE(query.AmpliarCondicionHaving(u"d=4", u" "));
  EXPECT_EQ(query.CriterioActual(), u"a es 1 y la suma y  ");
}

TEST_F(Csql20EditingTest, JoinsCriteriaInTheLanguageOfTheThread) {
  constexpr TextView kExpected[] = {u"a y b", u"a and b", u"a y b", u"a et b"};
  for (const std::int32_t language : {0, 1, 2, 3}) {
    SCOPED_TRACE(language);
    thread.load_language(decimal(language));
    cSQL20 fresh;
    EXPECT_TRUE(fresh.AmpliarCondicionWhere(u"a", u"a"));
    EXPECT_TRUE(fresh.AmpliarCondicionWhere(u"b", u"b"));
    EXPECT_EQ(fresh.CriterioActual(), kExpected[language]);
  }
  query.Idioma(1);
  EXPECT_TRUE(query.AmpliarCondicionWhere(u"a", u"a"));
  query.Idioma(3);
  EXPECT_TRUE(query.AmpliarCondicionWhere(u"b", u"b"));
  query.Idioma(1);
  EXPECT_TRUE(query.AmpliarCondicionWhere(u"c", u"c"));
  EXPECT_EQ(query.CriterioActual(), u"a et b and c");
}

TEST_F(Csql20EditingTest, NewConditionsTakeTheAddedOnesAway) {
  EXPECT_TRUE(query.AmpliarCondicionWhere(u"a=1", u"a"));
  EXPECT_TRUE(query.AmpliarCondicionHaving(u"b=1", u"b"));
  click({1});
  query.CambiaCondicion(u"x=1", u"");
  EXPECT_EQ(query.ParteWhere(false), u"WHERE x=1");
  EXPECT_EQ(query.ParteHaving(false), u"");
  EXPECT_EQ(query.CriterioActual(), u"");
  EXPECT_EQ(query.ParteOrder(true), u"1");
  EXPECT_NE(query.SQLOriginal().find(u"  WHERE x=1 GROUP BY C.Nombre, C.Alta, C.Notas  ORDER BY C.Nombre"), Text::npos);
  EXPECT_TRUE(query.AmpliarCondicionWhere(u"a=1", u"a")) << "it is not there any more";
}

TEST_F(Csql20EditingTest, ANewOrderTakesTheClicksAway) {
  click({1, 2});
  EXPECT_TRUE(query.AmpliarCondicionWhere(u"a=1", u"a"));
  query.CambiaOrden(u"C.Alta DESC");
  EXPECT_EQ(query.ParteOrder(false), u"ORDER BY C.Alta DESC");
  EXPECT_EQ(query.ParteWhere(true), u"C.Baja=0 And (a=1)");
  query.CambiaOrden(u"");
  EXPECT_EQ(query.ParteOrder(false), u"");
  EXPECT_EQ(query.SQLOriginal(), query.SQLOriginalSinOrden() + u" ");
}

struct ClicksRow {
  const char* name;
  std::vector<std::int16_t> clicks;
  TextView order;
};
const ClicksRow kClicksRows[] = {
    {"none", {}, u"ORDER BY C.Nombre"},
    {"a text", {1}, u"ORDER BY 1"},
    {"a text twice", {1, 1}, u"ORDER BY 1 DESC"},
    {"a text three times", {1, 1, 1}, u"ORDER BY 1"},
    {"a date", {2}, u"ORDER BY 2 DESC"},
    {"a date twice", {2, 2}, u"ORDER BY 2"},
    {"two columns", {1, 4}, u"ORDER BY 4,1"},
    {"two columns, the first one twice", {1, 1, 4}, u"ORDER BY 4,1 DESC"},
    {"back to the first column", {1, 1, 4, 1}, u"ORDER BY 1,4"},
    {"back to a date", {2, 2, 1, 2}, u"ORDER BY 2 DESC,1"},
    {"a long text", {3}, u"ORDER BY C.Nombre"},
    {"a long text between", {1, 3, 1}, u"ORDER BY 1 DESC"},
    {"three columns, two of them twice", {1, 2, 4, 4, 1}, u"ORDER BY 1,4 DESC,2 DESC"},
};

using Clicks = Rows<Csql20EditingTest, ClicksRow>;

TEST_P(Clicks, SortByTheColumnClickedLast) {
  const ClicksRow& row = GetParam();
  query.RestauraOriginal(false, true);
  click(row.clicks);
  EXPECT_EQ(query.ParteOrder(false), row.order);
  EXPECT_EQ(query.ParteOrder(true), row.order.substr(9));
}

INSTANTIATE_TEST_SUITE_P(, Clicks, ::testing::ValuesIn(kClicksRows), row_name);

TEST_F(Csql20EditingTest, AClickBesideTheColumnsIsTold) {
  click({1});
  for (const std::int16_t column :
       {std::int16_t{0}, std::int16_t{5}, std::int16_t{-1}, std::int16_t{INT16_MAX}, std::int16_t{INT16_MIN}}) {
    SCOPED_TRACE(column);
    EXPECT_FALSE(showing({failed(u"AmpliarOrden", 9)}, [&] { return query.AmpliarOrden(column); }));
    EXPECT_EQ(query.ParteOrder(true), u"1");
  }
  EXPECT_EQ(traced(), Traces(5, trace_of(u"cSQL20.AmpliarOrden", 9)));
}

TEST_F(Csql20EditingTest, RestaurarTakesAwayWhatItIsTold) {
  const auto narrow = [&] {
    EXPECT_TRUE(query.AmpliarCondicionWhere(u"a=1", u"a"));
    EXPECT_TRUE(query.AmpliarCondicionHaving(u"b=1", u"b"));
    click({1});
  };
  const Text original = query.SQLOriginal(), unordered = query.SQLOriginalSinOrden();
  narrow();
  const Text narrowed = query.SQL();
  query.RestauraOriginal(false, false);
  EXPECT_EQ(query.SQL(), narrowed);
  query.RestauraOriginal(true, false);
  EXPECT_EQ(query.SQL(), unordered + u" ORDER BY 1");
  EXPECT_EQ(query.CriterioActual(), u"");
  query.RestauraOriginal(false, true);
  EXPECT_EQ(query.SQL(), original);
  narrow();
  EXPECT_EQ(query.SQL(), narrowed);
  query.RestauraOriginal(false, true);
  EXPECT_EQ(query.SQLSinOrden(), narrowed.substr(0, narrowed.size() - 11));
  EXPECT_EQ(query.CriterioActual(), u"a y b");
  query.RestauraOriginal(true, true);
  EXPECT_EQ(query.SQL(), original);
}

TEST_F(Csql20EditingTest, AdoptarMakesThemThePartsOfTheQuery) {
  EXPECT_TRUE(query.AmpliarCondicionWhere(u"a=1", u"a"));
  EXPECT_TRUE(query.AmpliarCondicionHaving(u"b=1", u"b"));
  click({1, 2});
  const Text narrowed = query.SQL(), before = query.SQLOriginal();
  query.AdoptaComoOriginal(false, false, false);
  EXPECT_EQ(query.SQLOriginal(), before);
  query.AdoptaComoOriginal(true, false, false);
  EXPECT_NE(query.SQLOriginal().find(u"WHERE C.Baja=0 And (a=1) GROUP BY"), Text::npos);
  EXPECT_NE(query.SQLOriginal().find(u"HAVING Sum(P.Imp)>0 ORDER BY C.Nombre"), Text::npos);
  query.AdoptaComoOriginal(false, true, false);
  EXPECT_NE(query.SQLOriginal().find(u"HAVING Sum(P.Imp)>0 and (b=1) ORDER BY C.Nombre"), Text::npos);
  query.AdoptaComoOriginal(false, false, true);
  EXPECT_EQ(query.SQLOriginal(), narrowed);
  EXPECT_EQ(query.SQL(), narrowed);
  EXPECT_EQ(query.CriterioActual(), u"a y b");
  query.RestauraOriginal(true, true);
  EXPECT_EQ(query.SQL(), narrowed);
  EXPECT_EQ(query.CriterioActual(), u"");
  click({2});
  EXPECT_EQ(query.ParteOrder(true), u"2 DESC") << "an added order replaces the adopted one";
  EXPECT_TRUE(query.AmpliarCondicionWhere(u"a=1", u"")) << "only what was added is looked at";
}

TEST_F(Csql20EditingTest, WorksOnAQueryThatWasNeverCreated) {
  cSQL20 fresh;
  EXPECT_TRUE(fresh.AmpliarCondicionWhere(u"a=1", u"a"));
  EXPECT_TRUE(fresh.AmpliarCondicionHaving(u"b=1", u"b"));
  fresh.CambiaOrden(u"c");
  EXPECT_EQ(fresh.SQL(), u"  WHERE (a=1)  HAVING (b=1) ORDER BY c");
  EXPECT_EQ(fresh.CriterioActual(), u"a y b");
  fresh.AdoptaComoOriginal(true, true, true);
  EXPECT_EQ(fresh.SQLOriginal(), u"  WHERE (a=1)  HAVING (b=1) ORDER BY c");
  fresh.CambiaCondicion(u"x", u"y");
  EXPECT_EQ(fresh.SQLSinOrden(), u"  WHERE x  HAVING y");
  EXPECT_FALSE(showing({failed(u"AmpliarOrden", 9)}, [&] { return fresh.AmpliarOrden(1); }));
  EXPECT_FALSE(fresh.Creado());
  EXPECT_EQ(traced(), Traces{u"cSQL20.AmpliarOrden: 9 Subscript out of range"});
}

}  // namespace
}  // namespace qvr::tests
