// Kept definition texts: one that was written long ago, and what becomes of those that were damaged since.
#include "query/definition_text.h"
#include "query/query_fixture.h"

namespace qvr::tests {
namespace {

// Written by the first version; hosts have such texts in their files.
constexpr TextView kKept =
    u"cSQL20 1<*MotorBD=N*>2<*NombreObjeto=T*>Ventas<*UsarDistinct=L*>1<*TOP=N*>5"
    u"<*Cabecera=T*>SELECT DISTINCT  TOP 5 <*Columna=T*>C.Nombre<*Tipo=T*>T<*Campo=T*>Nombre"
    u"<*Columna=T*>Max(C.Alta)<*Tipo=T*>F<*Campo=T*>Alta<*FROM=T*> FROM Clientes C <*WHERE=T*>C.Baja=0"
    u"<*NumColumnasGROUPBY=N*>1<*HAVING=T*><*ORDERBY=T*>C.Nombre<*WHERE+=T*>(C.Pa\u00eds='<**')<*HAVING+=T*>"
    u"<*ORDERBY+=T*>1,-2<*Criterio=T*>Pa\u00eds = <**<*fin=B9219E29*>";

class Csql20DamageTest : public QueryTest {
 protected:
  // The text is refused with the box that names the procedure, and whatever the query was before is gone.
  void expect_refused(TextView text, std::int32_t number = 13) {
    cSQL20 query;
    ASSERT_TRUE(query.Crear(full(Engine::Oracle)));
    EXPECT_FALSE(showing({failed(u"CreareDesdeTextoDefinicion", number)},
                         [&] { return query.CrearDesdeTextoDefinicion(text); }));
    EXPECT_FALSE(query.Creado());
    EXPECT_EQ(query.SQL(), u"     ");
    EXPECT_EQ(query.SQLOriginal(), u"     ");
    EXPECT_EQ(query.MotorBD(), Engine::None);
    EXPECT_EQ(query.NumColumna(u"Nombre"), 0);
    EXPECT_EQ(query.TextoDefinicion(), u"");
  }
};

TEST_F(Csql20DamageTest, ReadsATextOfTheFirstVersion) {
  cSQL20 query;
  ASSERT_TRUE(query.CrearDesdeTextoDefinicion(kKept));
  EXPECT_EQ(query.SQL(),
            u"SELECT DISTINCT  TOP 5 C.Nombre As [Nombre], Max(C.Alta) As [Alta]  FROM Clientes C  WHERE "
            u"C.Baja=0 And (C.Pa\u00eds='<*') GROUP BY C.Nombre  ORDER BY 2 DESC,1");
  EXPECT_EQ(query.SQLOriginal(),
            u"SELECT DISTINCT  TOP 5 C.Nombre As [Nombre], Max(C.Alta) As [Alta]  FROM Clientes "
            u"C  WHERE C.Baja=0 GROUP BY C.Nombre  ORDER BY C.Nombre");
  EXPECT_EQ(query.CriterioActual(), u"Pa\u00eds = <*");
  EXPECT_EQ(query.TipoCampo(u"alta"), u"F");
  EXPECT_EQ(query.TOP(), 5);
  EXPECT_EQ(query.TextoDefinicion(), kKept);
}

TEST_F(Csql20DamageTest, RefusesEveryTruncation) {
  for (std::size_t size = 0; size < kKept.size(); ++size) {
    SCOPED_TRACE(size);
    expect_refused(kKept.substr(0, size));
    if (size > 0) expect_refused(kKept.substr(size));
  }
}

TEST_F(Csql20DamageTest, RefusesEveryChangeOfOneCharacter) {
  for (std::size_t at = 0; at < kKept.size(); ++at) {
    SCOPED_TRACE(at);
    const Text before(kKept.substr(0, at)), after(kKept.substr(at + 1));
    expect_refused(before + after);
    expect_refused(join({before, Text(2, kKept[at]), after}));
    const char16_t lower = static_cast<char16_t>(kKept[at] ^ 0x20);
    expect_refused(join({before, TextView(&lower, 1), after}));
    const char16_t wide = static_cast<char16_t>(kKept[at] ^ 0x100);
    expect_refused(join({before, TextView(&wide, 1), after}));
  }
}

TEST_F(Csql20DamageTest, RefusesWhatStandsAroundIt) {
  for (const Text& text : {Text(), Text(u" "), Text(u"SELECT a FROM b"), u" " + Text(kKept), Text(kKept) + u" ",
                           Text(kKept) + Text(kKept), Text(kKept) + u"\r\n", Text(1000, u'<'), Text(5, u'\0')}) {
    SCOPED_TRACE(to_utf8(text));
    expect_refused(text);
  }
}

// Texts whose end mark is right all the same: somebody wrote them so.
TEST_F(Csql20DamageTest, RefusesWhatItNeverWrites) {
  const Text kept(kKept.substr(0, kKept.rfind(u"<*fin=")));
  const auto sealed = [](TextView text) { return query::DefinitionWriter(text).finished(); };
  ASSERT_EQ(sealed(kept), kKept);
  struct Row {
    TextView what, by;
    std::int32_t number = 13;
  };
  constexpr Row kRows[] = {
      {u"cSQL20 1", u"cSQL20 2"},
      {u"cSQL20 1", u"uSQL20 1"},
      {u"cSQL20 1", u"cSQL20 1 "},
      {u"<*MotorBD=N*>2", u""},
      {u"<*MotorBD=N*>2", u"<*MotorBD=T*>2"},
      {u"<*MotorBD=N*>2", u"<*motorbd=N*>2"},
      {u"<*MotorBD=N*>2", u"<*MotorBD=N*>"},
      {u"<*MotorBD=N*>2", u"<*MotorBD=N*>+2"},
      {u"<*MotorBD=N*>2", u"<*MotorBD=N*> 2"},
      {u"<*MotorBD=N*>2", u"<*MotorBD=N*>02"},
      {u"<*MotorBD=N*>2", u"<*MotorBD=N*>-0"},
      {u"<*MotorBD=N*>2", u"<*MotorBD=N*>2147483648"},
      {u"<*MotorBD=N*>2", u"<*MotorBD=N*>\u0132"},
      {u"<*MotorBD=N*>2", u"<*MotorBD=N*>2<*MotorBD=N*>2"},
      {u"UsarDistinct=L*>1", u"UsarDistinct=L*>2"},
      {u"UsarDistinct=L*>1", u"UsarDistinct=L*>"},
      {u"UsarDistinct=L*>1", u"UsarDistinct=L*>01"},
      {u"<*TOP=N*>5", u"<*TOP=N*>5.0"},
      {u"<*Tipo=T*>T", u""},
      {u"<*Tipo=T*>T<*Campo=T*>Nombre", u"<*Campo=T*>Nombre<*Tipo=T*>T"},
      {u"GROUPBY=N*>1", u"GROUPBY=N*>3", 9},
      {u"GROUPBY=N*>1", u"GROUPBY=N*>-1"},
      {u"GROUPBY=N*>1", u"GROUPBY=N*>32768"},
      {u"1,-2", u"1,-3"},
      {u"1,-2", u"1,2,1"},
      {u"1,-2", u"1,-1"},
      {u"1,-2", u"0"},
      {u"1,-2", u","},
      {u"1,-2", u"1,"},
      {u"1,-2", u"1 ,2"},
      {u"1,-2", u"+1"},
      {u"1,-2", u"99999"},
      {u"1,-2", u"999999999999"},
      {u"<*Criterio=T*>", u""},
      {u"<*Criterio=T*>", u"<*>"},
      {u"<*Criterio=T*>", u"<*Criterio=T"},
      {u"<*Criterio=T*>", u"<*=T*>"},
      {u"<*Criterio=T*>", u"<*T*>"},
      {u"<*Criterio=T*>", u"<*CriterioT*>"},
      {u"<*Criterio=T*>", u"<*Criterio=T*>x<*Otro=T*>"},
      {u"Pa\u00eds = <**", u"Pa\u00eds = <*"},
      {u"Pa\u00eds = <**", u"<*uSQL_TD*>"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(to_utf8(join({row.what, u" -> ", row.by})));
    const Text changed = replace_all(kept, row.what, row.by);
    ASSERT_NE(changed, kept);
    expect_refused(sealed(changed), row.number);
  }
}

TEST_F(Csql20DamageTest, TheCompleteCriterionIsWhatWasAdded) {
  cSQL20 query;
  ASSERT_TRUE(query.CrearDesdeTextoDefinicion(kKept));
  const Text complete = query.CriterioActualCompleto(), sql = query.SQL(), original = query.SQLOriginal();
  query.RestauraOriginal(true, true);
  EXPECT_EQ(query.SQL(), original);
  query.CriterioActualCompleto(complete);
  EXPECT_EQ(query.SQL(), sql);
  EXPECT_EQ(query.CriterioActual(), u"Pa\u00eds = <*");
  EXPECT_FALSE(query.AmpliarCondicionWhere(u"c.pa\u00cds='<*'", u"otra vez"));
  query.CriterioActualCompleto(u"");
  EXPECT_EQ(query.SQL(), original);
  EXPECT_EQ(query.CriterioActual(), u"");
}

TEST_F(Csql20DamageTest, ADamagedCompleteCriterionChangesNothing) {
  cSQL20 query;
  ASSERT_TRUE(query.CrearDesdeTextoDefinicion(kKept));
  const Text complete = query.CriterioActualCompleto(), sql = query.SQL();
  constexpr TextView kMark = u"<*cSQL_CRI*>";
  const Text kDamaged[] = {u"x",
                           u" ",
                           Text(kMark),
                           join({kMark, kMark}),
                           join({kMark, kMark, kMark, kMark}),
                           complete + Text(kMark),
                           join({kMark, kMark, u"3", kMark}),
                           join({kMark, kMark, u"0", kMark}),
                           join({kMark, kMark, u"1,1", kMark}),
                           join({kMark, kMark, u"a", kMark}),
                           join({kMark, kMark, u" 1", kMark}),
                           join({u"<*x", kMark, kMark, kMark}),
                           join({kMark, u"<*", kMark, kMark}),
                           join({kMark, kMark, kMark, u"<*uSQL_CRI*>"}),
                           replace_all(complete, kMark, u"<*CSQL_CRI*>")};
  for (const Text& damaged : kDamaged) {
    SCOPED_TRACE(to_utf8(damaged));
    query.CriterioActualCompleto(damaged);
    EXPECT_EQ(query.SQL(), sql);
    EXPECT_EQ(query.CriterioActualCompleto(), complete);
  }
  query.CriterioActualCompleto(join({kMark, kMark, kMark}));
  EXPECT_EQ(query.SQL(), query.SQLOriginal()) << "four empty pieces are nothing added";
}

}  // namespace
}  // namespace qvr::tests
