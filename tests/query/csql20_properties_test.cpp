// Columns by their name, and the properties of a query.
#include "query/query_fixture.h"
#include "session/idioma_simple.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using Csql20PropertiesTest = QueryTest;

TEST_F(Csql20PropertiesTest, AreEmptyAtFirst) {
  cSQL20 query;
  EXPECT_EQ(query.Name(), u"cSQL20");
  EXPECT_FALSE(query.Creado());
  EXPECT_EQ(query.MotorBD(), Engine::None);
  EXPECT_EQ(query.TOP(), 0);
  EXPECT_EQ(query.Tag(), u"");
  EXPECT_EQ(query.CriterioActual(), u"");
  EXPECT_EQ(query.TextoDefinicion(), u"");
  EXPECT_EQ(query.NumColumnas(), 0);
  EXPECT_EQ(query.NumColumna(u"a"), 0);
  EXPECT_EQ(query.NumColumna(u""), 0);
  EXPECT_EQ(query.TipoCampo(u"a"), u"");
  EXPECT_EQ(query.ExpresionOriginal(u"a"), u"");
}

TEST_F(Csql20PropertiesTest, FindColumnsInAnyCase) {
  cSQL20 query;
  const Value columns = list(
      {u"C.A\u00f1o", u"F+", u"C.Pa\u00eds", u"T+", u"Max(C.A\u00f1o)", u"N>A\u00d1O", u"C.A\u00f1o", u"M"});
  ASSERT_TRUE(query.Crear(request(Engine::Jet, columns)));
  EXPECT_EQ(query.NumColumnas(), 4);
  struct Row {
    TextView field;
    std::int16_t position;
    TextView type, expression;
  };
  constexpr Row kRows[] = {
      {u"A\u00f1o", 1, u"F", u"C.A\u00f1o"},
      {u"a\u00d1O", 1, u"F", u"C.A\u00f1o"},
      {u"PA\u00cdS", 2, u"T", u"C.Pa\u00eds"},
      {u"c.A\u00f1o", 4, u"M", u"C.A\u00f1o"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(to_utf8(row.field));
    EXPECT_EQ(query.NumColumna(row.field), row.position);
    EXPECT_EQ(query.TipoCampo(row.field), row.type);
    EXPECT_EQ(query.ExpresionOriginal(row.field), row.expression);
  }
}

TEST_F(Csql20PropertiesTest, TellOfAColumnThatIsNotThere) {
  cSQL20 query;
  ASSERT_TRUE(query.Crear(plain(Engine::Oracle)));
  for (const TextView field : {u"Nombr", u"Nombre ", u"", u"a\u00f1o"}) {
    SCOPED_TRACE(to_utf8(field));
    EXPECT_EQ(query.NumColumna(field), 0);
    const Text procedure = join({u"TipoCampo(", field, u")"});
    EXPECT_EQ(showing({failed(procedure, 5)}, [&] { return query.TipoCampo(field); }), u"");
    EXPECT_EQ(traced(), Traces{trace_of(u"cSQL20.TipoCampo", 5)});
    EXPECT_EQ(showing({failed(u"ExpresionOriginal", 5)}, [&] { return query.ExpresionOriginal(field); }), u"");
    EXPECT_EQ(traced(), Traces{trace_of(u"cSQL20.ExpresionOriginal", 5)});
  }
  thread.load_language(u"1");
  EXPECT_EQ(showing({u"Object: cSQL20\r\nMethod: TipoCampo(x)\r\nError 5: Invalid procedure call or argument"},
                    [&] { return query.TipoCampo(u"x"); }),
            u"");
  EXPECT_EQ(traced(), Traces{trace_of(u"cSQL20.TipoCampo", 5)});
}

TEST_F(Csql20PropertiesTest, CountColumnsUpToTheLargestPosition) {
  std::vector<Value> columns;
  for (int i = 0; i < INT16_MAX; ++i) columns.insert(columns.end(), {Value(join({u"c", decimal(i)})), Value(u"N")});
  cSQL20 query;
  ASSERT_TRUE(query.Crear(request(Engine::Jet, list(columns))));
  EXPECT_EQ(query.NumColumnas(), INT16_MAX);
  EXPECT_EQ(query.NumColumna(u"C32766"), INT16_MAX);
  EXPECT_FALSE(query.AmpliarOrden(INT16_MAX));
  EXPECT_EQ(query.ParteOrder(true), u"32767");
}

TEST_F(Csql20PropertiesTest, TheLanguageBeginsAsTheThreads) {
  for (const std::int32_t language : {0, 1, 2, 3}) {
    thread.load_language(decimal(language));
    EXPECT_EQ(cSQL20().Idioma(), language);
  }
}

TEST_F(Csql20PropertiesTest, AWrittenLanguageIsTheThreadsToo) {
  thread.load_language(u"0");
  cSQL20 query, other;
  query.Idioma(3);
  EXPECT_EQ(query.Idioma(), 3);
  EXPECT_EQ(thread_state().idioma.Idioma(), 3);
  EXPECT_EQ(other.Idioma(), 0) << "only new queries begin with it";
  EXPECT_EQ(cSQL20().Idioma(), 3);
}

TEST_F(Csql20PropertiesTest, CrearTakesALanguageForTheQueryAlone) {
  thread.load_language(u"1");
  QueryRequest wanted = plain(Engine::Jet);
  wanted.Idioma = 3;
  cSQL20 query;
  EXPECT_EQ(query.Idioma(), 1);
  ASSERT_TRUE(query.Crear(wanted));
  EXPECT_EQ(query.Idioma(), 3);
  EXPECT_EQ(thread_state().idioma.Idioma(), 1);
}

TEST_F(Csql20PropertiesTest, AnyNumberCanBeAnEngine) {
  cSQL20 query;
  for (const Engine engine : {Engine::Oracle, kNoEngine, Engine{-1}, Engine{INT32_MAX}}) {
    query.MotorBD(engine);
    EXPECT_EQ(query.MotorBD(), engine);
  }
}

TEST_F(Csql20PropertiesTest, TheTagIsTheCallers) {
  cSQL20 query;
  ASSERT_TRUE(query.Crear(full(Engine::Jet)));
  const Text sql = query.SQL(), tag(u"mi\0nota \u00f1 <*cSQL_CRI*>", 22);
  query.Tag(tag);
  EXPECT_EQ(query.Tag(), tag);
  query.RestauraOriginal(true, true);
  EXPECT_EQ(query.Tag(), tag);
  EXPECT_EQ(query.SQL(), sql);
}

}  // namespace
}  // namespace qvr::tests
