#include "session/catalogue.h"

#include <gtest/gtest.h>

#include "base/failure.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

struct Row {
  const char* name;
  std::int32_t number;
  Message key;
  TextView spanish, english, french;
};

constexpr Row kRows[] = {
    {"ContandoComandos", 0, MsgContandoComandos, u"Contando comandos...", u"Counting commands...",
     u"Comptage des commandes..."},
    {"EjecutarRestantes", 1, MsgEjecutarRestantes, u"\u00bfDesea que se ejecuten los restantes comandos?",
     u"Do you want further commands to execute?", u"Souhaitez-vous ex\u00e9cuter les commandes restantes ?"},
    {"TipoInesperado", 2, MsgTipoInesperado, u"Tipo inesperado en AgregarParametroADO: |1 (|2)",
     u"Unexpected type in AgregarParametroADO: |1 (|2)", u"Type inattendu dans AgregarParametroADO: |1 (|2)"},
    {"Objeto", 3, MsgObjeto, u"Objeto", u"Object", u"Objet"},
    {"Error", 4, MsgError, u"Error", u"Error", u"Erreur"},
    {"EsComo", 5, MsgEsComo, u"es como", u"is like", u"est comme"},
    {"Y", 6, MsgY, u"y", u"and", u"et"},
    {"EsNulo", 7, MsgEsNulo, u"Es Nulo", u"Is Null", u"Est nul"},
    {"ComandosEjecutados", 8, MsgComandosEjecutados, u"Comandos ejecutados", u"Commands executed",
     u"Commandes ex\u00e9cut\u00e9es"},
    {"Metodo", 9, MsgMetodo, u"M\u00e9todo", u"Method", u"M\u00e9thode"},
};

TextTable catalogue() {
  TextTable table(kMessageCount, language::kCarried);
  CtesMensajes(table);
  return table;
}

TEST(Catalogue, HasTenTextsInFourLanguages) {
  EXPECT_EQ(catalogue().rows(), 10);
  EXPECT_EQ(catalogue().columns(), 4);
}

using CatalogueText = Rows<testing::Test, Row>;

TEST_P(CatalogueText, IsThisInEachLanguage) {
  const Row& row = GetParam();
  TextTable table = catalogue();
  EXPECT_EQ(row.key, row.number);
  EXPECT_EQ(table.at(row.number, 0), Text(row.spanish));
  EXPECT_EQ(table.at(row.number, 1), Text(row.english));
  EXPECT_EQ(table.at(row.number, 2), Text(row.spanish)) << "the Italian column reads Spanish";
  EXPECT_EQ(table.at(row.number, 3), Text(row.french));
}

INSTANTIATE_TEST_SUITE_P(, CatalogueText, testing::ValuesIn(kRows), row_name);

TEST(TextTable, RefusesCellsOutsideIt) {
  TextTable table(2, 3);
  table.at(1, 2) = u"last";
  EXPECT_EQ(table.at(1, 2), u"last");
  EXPECT_EQ(table.at(0, 0), u"");
  EXPECT_THROW(table.at(-1, 0), RuntimeFailure);
  EXPECT_THROW(table.at(0, -1), RuntimeFailure);
  EXPECT_THROW(table.at(2, 0), RuntimeFailure);
  EXPECT_THROW(table.at(0, 3), RuntimeFailure);
  EXPECT_THROW(TextTable().at(0, 0), RuntimeFailure);
}

TEST(TextTable, IsACopyOfItsOwn) {
  TextTable table(1, 1);
  TextTable copy = table;
  copy.at(0, 0) = u"copy";
  EXPECT_EQ(table.at(0, 0), u"");
}

}  // namespace
}  // namespace qvr::tests
