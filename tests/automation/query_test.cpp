#include <gtest/gtest.h>

#include "automation/boxes.h"
#include "automation/query_views.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

constexpr wchar_t kUnknown[] = L"Nada";

// All twelve arguments: late-bound ones may be left out, slots take them all.
std::vector<Var> request(Var columns, int engine = 2) {
  return {engine,
          L"Clientes",
          false,
          std::move(columns),
          L"Clientes C, Pedidos P",
          list_of({L"C.Id", L"P.Cliente", L"I"}),
          L"C.Baja=0",
          short{0},
          L"",
          L"C.Nombre",
          0,
          0};
}

Var columns() {
  return list_of({L"C.Nombre", L"T+", L"P.Total", L"N>Importe", L"P.Fecha", L"F+", L"C.Notas", L"M+"}, 1);
}

class Query : public testing::TestWithParam<const wchar_t*> {
 protected:
  QueryViews views{GetParam()};
  bool is_union() const { return std::wstring(GetParam()) == L"uSQL20"; }

  void create() { ASSERT_EQ(views.call(L"Crear", request(columns())), "BOOL true"); }
};

INSTANTIATE_TEST_SUITE_P(Classes, Query, testing::Values(L"cSQL20", L"uSQL20"),
                         [](const auto& row) { return narrow(row.param); });

TEST_P(Query, Name) { EXPECT_EQ(views.read(L"Name"), "BSTR " + narrow(GetParam())); }

TEST_P(Query, BeforeCrear) {
  EXPECT_EQ(views.read(L"Creado"), "BOOL false");
  EXPECT_EQ(views.call(L"NumColumnas"), "I2 0");
  EXPECT_EQ(views.call(L"NumColumna", {L"Nombre"}), "I2 0");
  EXPECT_EQ(views.call(L"TipoCampo", {L"Nombre"}), "BSTR ");
  EXPECT_EQ(views.read(L"TextoDefinicion"), "BSTR ");
  EXPECT_EQ(views.read(L"TOP"), "I4 0");
  EXPECT_EQ(views.read(L"MotorBD"), "I4 0");
  EXPECT_EQ(views.read(L"SQL"), is_union() ? "BSTR " : "BSTR      ");
}

TEST_P(Query, Statements) {
  create();
  const std::string start =
      "BSTR SELECT C.Nombre, P.Total As [Importe], P.Fecha, C.Notas  FROM Clientes C INNER JOIN "
      "Pedidos P ON C.Id=P.Cliente  WHERE C.Baja=0  ";
  EXPECT_EQ(views.read(L"Creado"), "BOOL true");
  EXPECT_EQ(views.read(L"SQLSinOrden"), start);
  EXPECT_EQ(views.read(L"SQLOriginalSinOrden"), start);
  EXPECT_EQ(views.read(L"SQL"), start + " ORDER BY C.Nombre");
  EXPECT_EQ(views.read(L"SQLOriginal"), start + " ORDER BY C.Nombre");
  EXPECT_EQ(views.call(L"ParteOrder", {false}), "BSTR ORDER BY C.Nombre");
  EXPECT_EQ(views.call(L"ParteOrder", {true}), "BSTR C.Nombre");
}

TEST_P(Query, Columns) {
  create();
  EXPECT_EQ(views.call(L"NumColumnas"), "I2 4");
  EXPECT_EQ(views.call(L"NumColumna", {L"importe"}), "I2 2");
  EXPECT_EQ(views.call(L"NumColumna", {kUnknown}), "I2 0");
  EXPECT_EQ(views.call(L"TipoCampo", {L"FECHA"}), "BSTR F");
}

TEST_P(Query, UnknownColumnIsShownByEachView) {
  create();
  Person person;
  EXPECT_EQ(views.call(L"TipoCampo", {kUnknown}), "BSTR ");
  ASSERT_EQ(person.boxes().size(), 4u);
  for (const Person::Box& box : person.boxes()) {
    EXPECT_EQ(box.title, L"QVRlib21");
    EXPECT_NE(box.text.find(L"cSQL20"), std::wstring::npos);
    EXPECT_NE(box.text.find(L"TipoCampo(Nada)"), std::wstring::npos);
  }
  EXPECT_EQ(traced(), Traces(4, u"cSQL20.TipoCampo: 5 Invalid procedure call or argument"));
}

TEST_P(Query, ConditionsAndCriterion) {
  create();
  EXPECT_EQ(views.call(L"AmpliarCondicionWhere", {L"P.Total>5", L"Importe > 5"}), "BOOL true");
  EXPECT_EQ(views.call(L"AmpliarCondicionWhere", {L"p.total>5", L"otra vez"}), "BOOL false");
  EXPECT_EQ(views.call(L"AmpliarCondicionWhere", {L" ", L"nada"}), "BOOL false");
  EXPECT_EQ(views.read(L"CriterioActual"), "BSTR Importe > 5");
  const std::string narrowed = views.read(L"SQLSinOrden");
  EXPECT_NE(narrowed.find("WHERE C.Baja=0 And (P.Total>5)"), std::string::npos) << narrowed;
  const std::string complete = views.read(L"CriterioActualCompleto");
  EXPECT_EQ(views.call(L"RestauraOriginal", {true, true}), "Empty");
  EXPECT_EQ(views.read(L"SQLSinOrden"), views.read(L"SQLOriginalSinOrden"));
  EXPECT_EQ(views.write(L"CriterioActualCompleto", std::wstring(complete.begin() + 5, complete.end())), "Empty");
  EXPECT_EQ(views.read(L"SQLSinOrden"), narrowed);
  EXPECT_EQ(views.call(L"AdoptaComoOriginal", {true, true, true}), "Empty");
  EXPECT_EQ(views.read(L"SQLOriginalSinOrden"), narrowed);
}

TEST_P(Query, Orders) {
  create();
  EXPECT_EQ(views.call(L"AmpliarOrden", {short{3}}), "BOOL false");
  EXPECT_EQ(views.call(L"AmpliarOrden", {short{1}}), "BOOL false");
  EXPECT_EQ(views.call(L"ParteOrder", {true}), "BSTR 1,3 DESC");
  EXPECT_EQ(views.call(L"CambiaOrden", {L"P.Fecha"}), "Empty");
  EXPECT_EQ(views.call(L"ParteOrder", {false}), "BSTR ORDER BY P.Fecha");
}

TEST_P(Query, Search) {
  create();
  EXPECT_EQ(views.call(L"InterpretarBusqueda", {L"Importe", L">=10", L""}), "BOOL true");
  EXPECT_EQ(views.call(L"InterpretarBusqueda", {L"Importe", L"", L""}), "BOOL false");
  EXPECT_EQ(views.read(L"CriterioActual"), "BSTR Importe >= 10");
}

TEST_P(Query, DefinitionText) {
  create();
  EXPECT_EQ(views.call(L"AmpliarOrden", {short{2}}), "BOOL false");
  const std::string text = views.read(L"TextoDefinicion");
  QueryViews copy{GetParam()};
  EXPECT_EQ(copy.call(L"CrearDesdeTextoDefinicion", {std::wstring(text.begin() + 5, text.end())}), "BOOL true");
  EXPECT_EQ(copy.read(L"TextoDefinicion"), text);
  EXPECT_EQ(copy.call(L"ParteOrder", {true}), "BSTR 2");
}

TEST_P(Query, DamagedDefinitionTextIsShownAndLeavesNothing) {
  create();
  Person person;
  EXPECT_EQ(views.call(L"CrearDesdeTextoDefinicion", {L"cSQL20 1<*MotorBD=N*>2"}), "BOOL false");
  EXPECT_EQ(views.read(L"Creado"), is_union() ? "BOOL true" : "BOOL false") << "a union keeps its members";
  ASSERT_EQ(person.boxes().size(), 4u);
  EXPECT_NE(person.boxes()[0].text.find(L"CreareDesdeTextoDefinicion"), std::wstring::npos);
  EXPECT_EQ(traced(), Traces(4, u"cSQL20.CrearDesdeTextoDefinicion: 13 Type mismatch"));
}

TEST_P(Query, WritableProperties) {
  create();
  EXPECT_EQ(views.write(L"Tag", L"mi nota"), "Empty");
  EXPECT_EQ(views.read(L"Tag"), "BSTR mi nota");
  EXPECT_EQ(views.write(L"TOP", 7), "Empty");
  EXPECT_EQ(views.read(L"TOP"), "I4 7");
  EXPECT_EQ(views.read(L"SQLSinOrden").substr(0, 22), "BSTR SELECT  TOP 7 C.N");
  EXPECT_EQ(views.write(L"MotorBD", 3), "Empty");
  EXPECT_EQ(views.read(L"MotorBD"), "I4 3");
  EXPECT_EQ(views.write(L"Idioma", 1), "Empty");
  // A union gives 0 and takes the number for its limit of rows.
  EXPECT_EQ(views.read(L"Idioma"), is_union() ? "I4 0" : "I4 1");
  EXPECT_EQ(views.read(L"TOP"), is_union() ? "I4 1" : "I4 7");
}

TEST_P(Query, CrearRefusesWhatIsNoList) {
  EXPECT_EQ(views.call(L"Crear", request(L"C.Nombre")), "BOOL false");
  EXPECT_EQ(views.read(L"Creado"), "BOOL false");
  EXPECT_EQ(traced(), Traces(4, u"cSQL20.Crear: 13 ColumnasSELECT is not an array"));
}

struct Select : testing::Test {
  QueryViews views{L"cSQL20"};
  void SetUp() override { ASSERT_EQ(views.call(L"Crear", request(columns())), "BOOL true"); }
};

TEST_F(Select, HavingAndWhereParts) {
  EXPECT_EQ(views.call(L"AmpliarCondicionHaving", {L"Count(*)>1", L"varios"}), "BOOL true");
  EXPECT_EQ(views.call(L"ParteHaving", {false}), "BSTR HAVING (Count(*)>1)");
  EXPECT_EQ(views.call(L"ParteHaving", {true}), "BSTR (Count(*)>1)");
  EXPECT_EQ(views.call(L"ParteWhere", {true}), "BSTR C.Baja=0");
  EXPECT_EQ(views.call(L"ParteWhere", {false}), "BSTR WHERE C.Baja=0");
  EXPECT_EQ(views.call(L"CambiaCondicion", {L"1=1", L"Count(*)>2"}), "Empty");
  EXPECT_EQ(views.call(L"ParteWhere", {true}), "BSTR 1=1");
  EXPECT_EQ(views.call(L"ParteHaving", {true}), "BSTR Count(*)>2");
}

TEST_F(Select, ExpresionOriginal) {
  EXPECT_EQ(views.call(L"ExpresionOriginal", {L"Importe"}), "BSTR P.Total");
  Person person;
  EXPECT_EQ(views.call(L"ExpresionOriginal", {kUnknown}), "BSTR ");
  EXPECT_EQ(person.boxes().size(), 2u);
  EXPECT_EQ(traced(), (Traces{u"cSQL20.ExpresionOriginal: 5 Invalid procedure call or argument",
                              u"cSQL20.ExpresionOriginal: 5 Invalid procedure call or argument"}));
}

}  // namespace
}  // namespace qvr::tests
