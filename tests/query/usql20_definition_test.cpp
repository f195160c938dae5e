// A union as one text, and what was added to its members as another.
#include "query/query_fixture.h"
#include "query/usql20.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

class Usql20DefinitionTest : public QueryTest {
 protected:
  // Texts with the union's own marks inside must not tear it apart.
  void SetUp() override {
    for (const TextView table : {u"t1", u"t2 <*uSQL_TD*>", u"t3"}) {
      QueryRequest wanted = request(Engine::SqlServer, list({u"a", u"T>a", u"b", u"N>b"}), Text(table));
      wanted.TextoORDERBYInicial = u"a";
      ASSERT_TRUE(query.Crear(wanted));
      ASSERT_TRUE(query.AmpliarCondicionWhere(join({u"a='<*uSQL_CRI*>", table, u"'"}), table));
    }
    EXPECT_FALSE(query.AmpliarOrden(2));
  }

  uSQL20 query;
};

TEST_F(Usql20DefinitionTest, RebuildsTheMembersInOrder) {
  uSQL20 copy;
  EXPECT_EQ(split(query.TextoDefinicion(), u"<*uSQL_TD*>").size(), 3u);
  ASSERT_TRUE(copy.CrearDesdeTextoDefinicion(query.TextoDefinicion()));
  EXPECT_TRUE(copy.Creado());
  EXPECT_EQ(copy.SQL(), query.SQL());
  EXPECT_EQ(copy.SQLOriginal(), query.SQLOriginal());
  EXPECT_EQ(copy.CriterioActualCompleto(), query.CriterioActualCompleto());
  EXPECT_EQ(copy.TextoDefinicion(), query.TextoDefinicion());
}

// A column of fixed width fills texts up with blanks, and a file ends its lines.
TEST_F(Usql20DefinitionTest, ReadsTextsWithWhiteSpaceBehindThem) {
  const Text complete = query.CriterioActualCompleto(), narrowed = query.SQL(), definition = query.TextoDefinicion();
  for (const TextView white : {u" ", u"\t", u"\r\n", u"   \r\n"}) {
    uSQL20 copy;
    EXPECT_TRUE(copy.CrearDesdeTextoDefinicion(join({definition, white})));
    EXPECT_EQ(copy.TextoDefinicion(), definition);
    query.RestauraOriginal(true, true);
    query.CriterioActualCompleto(join({complete, white}));
    EXPECT_EQ(query.SQL(), narrowed);
    EXPECT_EQ(query.CriterioActualCompleto(), complete);
  }
}

TEST_F(Usql20DefinitionTest, IsWhatItsMembersWrite) {
  const Text text = query.TextoDefinicion();
  const auto pieces = split(text, u"<*uSQL_TD*>");
  ASSERT_EQ(pieces.size(), 3u);
  std::vector<Text> statements;
  for (const TextView piece : pieces) {
    cSQL20 member;
    ASSERT_TRUE(member.CrearDesdeTextoDefinicion(piece));
    statements.push_back(member.SQLSinOrden());
  }
  EXPECT_EQ(query.SQLSinOrden(), join(statements, u" UNION "));
}

TEST_F(Usql20DefinitionTest, SkipsWhatCannotBeReadAndKeepsWhatIsThere) {
  const Text before = query.SQLSinOrden();
  const Text all = query.TextoDefinicion();
  const auto pieces = split(all, u"<*uSQL_TD*>");
  const Text damaged = join({pieces[0], u"<*uSQL_TD*>", pieces[1].substr(1), u"<*uSQL_TD*><*uSQL_TD*>", pieces[2]});
  const Text box = failed(u"CreareDesdeTextoDefinicion", 13);
  uSQL20 copy;
  EXPECT_TRUE(showing({box, box}, [&] { return copy.CrearDesdeTextoDefinicion(damaged); }));
  EXPECT_EQ(copy.TextoDefinicion(), join({pieces[0], u"<*uSQL_TD*>", pieces[2]}));

  EXPECT_FALSE(showing({box}, [&] { return query.CrearDesdeTextoDefinicion(u""); }));
  EXPECT_FALSE(showing({box, box}, [&] { return query.CrearDesdeTextoDefinicion(u"a<*uSQL_TD*>b"); }));
  EXPECT_EQ(query.SQLSinOrden(), before);
  EXPECT_TRUE(query.CrearDesdeTextoDefinicion(pieces[0]));
  EXPECT_EQ(query.TextoDefinicion(), join({all, u"<*uSQL_TD*>", pieces[0]}));

  uSQL20 fresh;
  EXPECT_FALSE(showing({box}, [&] { return fresh.CrearDesdeTextoDefinicion(all.substr(1, 50)); }));
  EXPECT_FALSE(fresh.Creado());
  EXPECT_EQ(traced(), Traces(6, u"cSQL20.CrearDesdeTextoDefinicion: 13 Type mismatch"));
}

TEST_F(Usql20DefinitionTest, GivesEachMemberItsCriterion) {
  const Text complete = query.CriterioActualCompleto(), narrowed = query.SQL(), original = query.SQLOriginalSinOrden();
  query.RestauraOriginal(true, true);
  EXPECT_EQ(query.SQLSinOrden(), original);
  query.CriterioActualCompleto(complete);
  EXPECT_EQ(query.SQL(), narrowed);
  EXPECT_EQ(query.CriterioActualCompleto(), complete);
  EXPECT_EQ(query.CriterioActual(), u"t1");
}

TEST_F(Usql20DefinitionTest, AnotherNumberOfCriteriaChangesNothing) {
  const Text complete = query.CriterioActualCompleto(), narrowed = query.SQL();
  constexpr TextView kMark = u"<*uSQL_CRI*>";
  const Text kOthers[] = {u"",
                          u"x",
                          Text(kMark),
                          join({kMark, kMark, kMark}),
                          complete + Text(kMark),
                          complete.substr(0, complete.rfind(kMark)),
                          replace_all(complete, kMark, u"<*USQL_CRI*>")};
  for (const Text& other : kOthers) {
    SCOPED_TRACE(to_utf8(other));
    query.CriterioActualCompleto(other);
    EXPECT_EQ(query.SQL(), narrowed);
    EXPECT_EQ(query.CriterioActualCompleto(), complete);
  }
  EXPECT_EQ(traced(), Traces(7, u"uSQL20.CriterioActualCompleto: 13 Type mismatch"));
}

// Of the right number of pieces each counts for itself.
TEST_F(Usql20DefinitionTest, ADamagedPieceLeavesItsMember) {
  const Text complete = query.CriterioActualCompleto();
  const auto pieces = split(complete, u"<*uSQL_CRI*>");
  query.CriterioActualCompleto(u"<*uSQL_CRI*>x<*uSQL_CRI*>");
  const Text nothing = u"<*cSQL_CRI*><*cSQL_CRI*><*cSQL_CRI*>";
  EXPECT_EQ(query.CriterioActualCompleto(), join({nothing, u"<*uSQL_CRI*>", pieces[1], u"<*uSQL_CRI*>", nothing}));
  EXPECT_EQ(traced(), Traces{u"cSQL20.CriterioActualCompleto: 13 Type mismatch"});
}

}  // namespace
}  // namespace qvr::tests
