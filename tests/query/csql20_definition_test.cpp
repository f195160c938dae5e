// A query as one text, and the query that comes of it.
#include "query/query_fixture.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;
using Csql20DefinitionTest = QueryTest;

// What two queries have to agree in: everything but what belongs to their holders.
Text described(const cSQL20& query, std::initializer_list<TextView> fields) {
  Text text = join({query.SQL(),
                    u"|",
                    query.SQLSinOrden(),
                    u"|",
                    query.SQLOriginal(),
                    u"|",
                    query.SQLOriginalSinOrden(),
                    u"|",
                    query.ParteWhere(true),
                    u"|",
                    query.ParteHaving(true),
                    u"|",
                    query.ParteOrder(true),
                    u"|",
                    query.CriterioActual(),
                    u"|",
                    query.CriterioActualCompleto(),
                    u"|",
                    decimal(query.TOP()),
                    u"|",
                    decimal(number_of(query.MotorBD())),
                    u"|",
                    decimal(query.NumColumnas())});
  for (const TextView field : fields) {
    text += join(
        {u"|", query.TipoCampo(field), u"|", query.ExpresionOriginal(field), u"|", decimal(query.NumColumna(field))});
  }
  return text;
}

void narrow(cSQL20& query) {
  EXPECT_TRUE(query.AmpliarCondicionWhere(u"C.Pa\u00eds='ES'", u"el pa\u00eds"));
  EXPECT_TRUE(query.AmpliarCondicionHaving(u"Sum(P.Imp)<9", u"la suma"));
  EXPECT_FALSE(query.AmpliarOrden(1));
  EXPECT_FALSE(query.AmpliarOrden(2));
}

TEST_F(Csql20DefinitionTest, IsEmptyBeforeThereIsAQuery) {
  cSQL20 query;
  EXPECT_EQ(query.TextoDefinicion(), u"");
  EXPECT_FALSE(query.Crear(request(Engine::Jet, u"Nombre")));
  EXPECT_EQ(query.TextoDefinicion(), u"");
  EXPECT_EQ(traced(), Traces{u"cSQL20.Crear: 13 ColumnasSELECT is not an array"});
}

// Every column has its alias from the beginning, so that even the statements are the same.
TEST_F(Csql20DefinitionTest, RebuildsAnEqualQuery) {
  for (const Engine engine : kEngines) {
    for (const bool distinct : {false, true}) {
      for (const std::int32_t top : {0, 5, -2}) {
        SCOPED_TRACE(::testing::Message() << "engine " << number_of(engine) << ", top " << top);
        QueryRequest wanted = full(engine);
        wanted.ColumnasSELECT = list({u"C.Nombre", u"T>Nombre", u"C.Alta", u"F>Alta", u"Count(*)", u"N>N\u00ba"});
        wanted.UsarDistinct = distinct;
        wanted.TOP = top;
        cSQL20 query, copy;
        ASSERT_TRUE(query.Crear(wanted));
        narrow(query);
        ASSERT_TRUE(copy.CrearDesdeTextoDefinicion(query.TextoDefinicion()));
        EXPECT_TRUE(copy.Creado());
        const std::initializer_list<TextView> kFields = {u"nombre", u"alta", u"n\u00ba"};
        EXPECT_EQ(described(copy, kFields), described(query, kFields));
        EXPECT_EQ(copy.TextoDefinicion(), query.TextoDefinicion());
        for (cSQL20* each : {&query, &copy}) {
          each->TOP(7);
          EXPECT_FALSE(each->AmpliarOrden(2));
          EXPECT_FALSE(each->AmpliarCondicionWhere(u"c.PA\u00cdS='es'", u""));
          each->AdoptaComoOriginal(true, true, false);
          each->RestauraOriginal(true, true);
        }
        EXPECT_EQ(copy.SQL(), query.SQL()) << "it goes on as the other one does";
        EXPECT_EQ(copy.SQLOriginal(), query.SQLOriginal());
      }
    }
  }
}

TEST_F(Csql20DefinitionTest, GivesEveryColumnAnAlias) {
  cSQL20 query, copy, third;
  ASSERT_TRUE(query.Crear(full(Engine::SqlServer)));
  ASSERT_TRUE(copy.CrearDesdeTextoDefinicion(query.TextoDefinicion()));
  EXPECT_EQ(copy.SQL(),
            u"SELECT C.Nombre As [Nombre], C.Alta As [Alta], C.Notas As [Notas], Sum(P.Imp) As [Total]  "
            u"FROM Clientes C INNER JOIN Pedidos P ON C.Id=P.IdCli  WHERE C.Baja=0 GROUP BY C.Nombre, "
            u"C.Alta, C.Notas HAVING Sum(P.Imp)>0 ORDER BY C.Nombre");
  EXPECT_EQ(copy.ExpresionOriginal(u"nombre"), u"C.Nombre");
  EXPECT_EQ(copy.TextoDefinicion(), query.TextoDefinicion());
  ASSERT_TRUE(third.CrearDesdeTextoDefinicion(copy.TextoDefinicion()));
  EXPECT_EQ(third.SQL(), copy.SQL());
}

// What became of the beginning of the select list: blanks that a limit left behind, a limit that has come since.
TEST_F(Csql20DefinitionTest, KeepsTheSelectAsItBecame) {
  for (const std::vector<std::int32_t>& tops : {std::vector{5}, {5, 0}, {5, 0, 7}, {5, 0, 7, 0}}) {
    QueryRequest wanted = request(Engine::SqlServer, list({u"a", u"T>a"}));
    cSQL20 query, copy;
    ASSERT_TRUE(query.Crear(wanted));
    for (const std::int32_t top : tops) query.TOP(top);
    ASSERT_TRUE(copy.CrearDesdeTextoDefinicion(query.TextoDefinicion()));
    EXPECT_EQ(copy.SQL(), query.SQL());
    EXPECT_EQ(copy.TOP(), tops.back());
    query.TOP(9);
    copy.TOP(9);
    EXPECT_EQ(copy.SQL(), query.SQL());
  }
}

TEST_F(Csql20DefinitionTest, TagAndLanguageStayWithTheirHolder) {
  cSQL20 query, copy;
  QueryRequest wanted = plain(Engine::Jet);
  wanted.Idioma = 1;
  ASSERT_TRUE(query.Crear(wanted));
  query.Tag(u"uno");
  copy.Tag(u"dos");
  copy.Idioma(3);
  ASSERT_TRUE(copy.CrearDesdeTextoDefinicion(query.TextoDefinicion()));
  EXPECT_EQ(copy.Tag(), u"dos");
  EXPECT_EQ(copy.Idioma(), 3);
  EXPECT_FALSE(showing({u"Objet: cSQL20\r\nM\u00e9thode: CreareDesdeTextoDefinicion\r\nErreur 13: Type mismatch"},
                       [&] { return copy.CrearDesdeTextoDefinicion(u""); }));
  EXPECT_EQ(copy.Tag(), u"dos");
  EXPECT_EQ(copy.Idioma(), 3);
  EXPECT_EQ(traced(), Traces{u"cSQL20.CrearDesdeTextoDefinicion: 13 Type mismatch"});
}

struct HeldTextRow {
  const char* name;
  Text text;
};
const HeldTextRow kHeldTexts[] = {
    {"mark between a union's members", u"<*uSQL_TD*>"},
    {"mark between a union's criteria", u"<*uSQL_CRI*>"},
    {"mark between a criterion's pieces", u"<*cSQL_CRI*>"},
    {"end mark", u"<*fin=00000000*>"},
    {"mark of a part", u"<*WHERE=T*>"},
    {"doubled sign", u"<**"},
    {"doubled sign before a mark", u"<***WHERE=T*>"},
    {"first character of a mark", u"<"},
    {"beginning of a mark", u"<*"},
    {"marks within marks", u"<*<*<**>*>"},
    {"first character twice", u"<<*"},
    {"end of a mark", u"*>"},
    {"sign and end of a mark", u"=T*>"},
    {"line breaks", u"a\r\nb\nc\r"},
    {"NUL", Text(u"\0a\0", 3)},
    {"letters beyond ASCII", u"\u00f1\u4e2d\U0001F600"},
    {"first half of a pair", Text{0xD800}},
    {"halves around a mark", Text{0xDC00, u'<', u'*', 0xD800}},
    {"noncharacters", Text{0xFFFF, 0xFFFE}},
    {"end of a statement", u"'; DROP TABLE x --"},
    {"blank", u" "},
    {"white space", u"\t\r\n"},
    {"white space at its end", u"a \r\n"},
};

using HeldText = Rows<Csql20DefinitionTest, HeldTextRow>;

TEST_P(HeldText, IsKeptInEveryPart) {
  const Text& text = GetParam().text;
  QueryRequest wanted = request(Engine::SqlServer, list({text, Text(u"T>") + text, u"b", text.substr(0, 1) + u">b"}),
                                text);
  wanted.NombreObjeto = wanted.CondicionWHEREInicial = wanted.CondicionHAVINGInicial = text;
  wanted.TextoORDERBYInicial = text;
  wanted.NumColumnasGROUPBY = 1;
  cSQL20 query, copy, third;
  ASSERT_TRUE(query.Crear(wanted));
  query.AmpliarCondicionWhere(text, text);
  query.AmpliarCondicionHaving(text, text);
  ASSERT_TRUE(copy.CrearDesdeTextoDefinicion(query.TextoDefinicion()));
  EXPECT_EQ(described(copy, {text, u"b"}), described(query, {text, u"b"}));
  EXPECT_EQ(copy.TextoDefinicion(), query.TextoDefinicion());
  // And what was added alone, in a query with other conditions.
  ASSERT_TRUE(third.Crear(plain(Engine::SqlServer)));
  third.CriterioActualCompleto(query.CriterioActualCompleto());
  EXPECT_EQ(third.CriterioActual(), query.CriterioActual());
  EXPECT_EQ(third.CriterioActualCompleto(), query.CriterioActualCompleto());
  for (const TextView mark : {u"<*uSQL_TD*>", u"<*uSQL_CRI*>"}) {
    EXPECT_EQ(query.TextoDefinicion().find(mark), Text::npos);
    EXPECT_EQ(query.CriterioActualCompleto().find(mark), Text::npos);
  }
}

INSTANTIATE_TEST_SUITE_P(, HeldText, ::testing::ValuesIn(kHeldTexts), row_name);

TEST_F(Csql20DefinitionTest, MarksTheEndOfACriterionThatEndsInWhiteSpace) {
  for (const TextView white : {u" ", u"  ", u"\t", u"\r\n"}) {
    cSQL20 query, copy;
    ASSERT_TRUE(query.Crear(plain(Engine::Jet)));
    ASSERT_TRUE(copy.Crear(plain(Engine::Jet)));
    EXPECT_TRUE(query.AmpliarCondicionWhere(u"a=1", u"uno"));
    EXPECT_EQ(query.CriterioActualCompleto(), u"(a=1)<*cSQL_CRI*><*cSQL_CRI*><*cSQL_CRI*>uno");
    query.RestauraOriginal(true, true);
    EXPECT_TRUE(query.AmpliarCondicionWhere(u"a=1", join({u"uno", white})));
    const Text complete = join({u"(a=1)<*cSQL_CRI*><*cSQL_CRI*><*cSQL_CRI*>uno", white, u"<*cSQL_CRI*>"});
    EXPECT_EQ(query.CriterioActualCompleto(), complete);
    copy.CriterioActualCompleto(complete + u"   ");
    EXPECT_EQ(copy.CriterioActual(), join({u"uno", white}));
    EXPECT_EQ(copy.SQL(), query.SQL());
  }
}

// A list of keys that a host made, and many columns.
TEST_F(Csql20DefinitionTest, HoldsVeryLongTexts) {
  Text keys = u"C.Id In (0";
  for (int i = 1; i < 200000; ++i) keys += join({u",<*", decimal(i)});
  std::vector<Value> columns;
  for (int i = 0; i < 5000; ++i) columns.insert(columns.end(), {Value(u"c" + decimal(i)), Value(u"N>x" + decimal(i))});
  QueryRequest wanted = request(Engine::SqlServer, list(columns));
  wanted.CondicionWHEREInicial = keys;
  cSQL20 query, copy;
  ASSERT_TRUE(query.Crear(wanted));
  EXPECT_TRUE(query.AmpliarCondicionWhere(keys, keys));
  ASSERT_TRUE(copy.CrearDesdeTextoDefinicion(query.TextoDefinicion()));
  EXPECT_TRUE(copy.SQL() == query.SQL()) << "not shown: it is too long";
  EXPECT_TRUE(copy.CriterioActualCompleto() == query.CriterioActualCompleto());
  EXPECT_EQ(copy.NumColumna(u"X4999"), 5000);
}

}  // namespace
}  // namespace qvr::tests
