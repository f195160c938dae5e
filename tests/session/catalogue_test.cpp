#include "session/catalogue.h"

#include <gtest/gtest.h>

#include "base/failure.h"

namespace qvr::tests {
namespace {

struct Row {
  std::int32_t number;
  Message key;
  TextView spanish, english, french;
};

constexpr Row kRows[] = {
    {0, MsgContandoComandos, u"Contando comandos...", u"Counting commands...", u"Comptage des commandes..."},
    {1, MsgEjecutarRestantes, u"\u00bfDesea que se ejecuten los restantes comandos?",
     u"Do you want further commands to execute?", u"Souhaitez-vous ex\u00e9cuter les commandes restantes ?"},
    {2, MsgTipoInesperado, u"Tipo inesperado en AgregarParametroADO: |1 (|2)",
     u"Unexpected type in AgregarParametroADO: |1 (|2)", u"Type inattendu dans AgregarParametroADO: |1 (|2)"},
    {3, MsgObjeto, u"Objeto", u"Object", u"Objet"},
    {4, MsgError, u"Error", u"Error", u"Erreur"},
    {5, MsgEsComo, u"es como", u"is like", u"est comme"},
    {6, MsgY, u"y", u"and", u"et"},
    {7, MsgEsNulo, u"Es Nulo", u"Is Null", u"Est nul"},
    {8, MsgComandosEjecutados, u"Comandos ejecutados", u"Commands executed", u"Commandes ex\u00e9cut\u00e9es"},
    {9, MsgMetodo, u"M\u00e9todo", u"Method", u"M\u00e9thode"},
};

TEST(Catalogue, HasEveryCell) {
  TextTable table(kMessageCount, language::kCarried);
  CtesMensajes(table);
  ASSERT_EQ(table.rows(), 10);
  ASSERT_EQ(table.columns(), 4);
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.number);
    EXPECT_EQ(row.key, row.number);
    EXPECT_EQ(table.at(row.number, 0), Text(row.spanish));
    EXPECT_EQ(table.at(row.number, 1), Text(row.english));
    EXPECT_EQ(table.at(row.number, 2), Text(row.spanish)) << "the Italian column reads Spanish";
    EXPECT_EQ(table.at(row.number, 3), Text(row.french));
  }
}

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
