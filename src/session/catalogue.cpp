#include "session/catalogue.h"

#include "base/failure.h"

namespace qvr {
namespace {

struct MessageRow {
  Message key;
  TextView spanish, english, french;
};

// "|1", "|2" are placeholders of arguments. French has a blank before the question mark.
constexpr MessageRow kRows[] = {
    {MsgContandoComandos, u"Contando comandos...", u"Counting commands...", u"Comptage des commandes..."},
    {MsgEjecutarRestantes, u"\u00bfDesea que se ejecuten los restantes comandos?",
     u"Do you want further commands to execute?", u"Souhaitez-vous ex\u00e9cuter les commandes restantes ?"},
    {MsgTipoInesperado, u"Tipo inesperado en AgregarParametroADO: |1 (|2)",
     u"Unexpected type in AgregarParametroADO: |1 (|2)", u"Type inattendu dans AgregarParametroADO: |1 (|2)"},
    {MsgObjeto, u"Objeto", u"Object", u"Objet"},
    {MsgError, u"Error", u"Error", u"Erreur"},
    {MsgEsComo, u"es como", u"is like", u"est comme"},
    {MsgY, u"y", u"and", u"et"},
    {MsgEsNulo, u"Es Nulo", u"Is Null", u"Est nul"},
    {MsgComandosEjecutados, u"Comandos ejecutados", u"Commands executed", u"Commandes ex\u00e9cut\u00e9es"},
    {MsgMetodo, u"M\u00e9todo", u"Method", u"M\u00e9thode"},
};
static_assert(std::size(kRows) == kMessageCount);

}  // namespace

TextTable::TextTable(std::int32_t rows, std::int32_t columns)
    : rows_(rows), columns_(columns), cells_(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns)) {}

std::size_t TextTable::index(std::int32_t row, std::int32_t column) const {
  if (row < 0 || row >= rows_ || column < 0 || column >= columns_) throw RuntimeFailure(failure_number::kSubscript);
  return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) + static_cast<std::size_t>(column);
}

Text& TextTable::at(std::int32_t row, std::int32_t column) { return cells_[index(row, column)]; }
const Text& TextTable::at(std::int32_t row, std::int32_t column) const { return cells_[index(row, column)]; }

void CtesMensajes(TextTable& Mensajes) {
  for (const MessageRow& row : kRows) {
    Mensajes.at(row.key, language::kSpanish) = row.spanish;
    Mensajes.at(row.key, language::kEnglish) = row.english;
    Mensajes.at(row.key, language::kItalian) = row.spanish;  // Italian can be selected, but has no translation
    Mensajes.at(row.key, language::kFrench) = row.french;
  }
}

}  // namespace qvr
