// The message catalogue: every text shown in the user's language, one row per message and one column per language.
#pragma once

#include <cstdint>
#include <vector>

#include "base/text.h"

namespace qvr {

// Rows of the catalogue, in order; a key is its row's number.
enum Message : std::int32_t {
  MsgContandoComandos,
  MsgEjecutarRestantes,
  MsgTipoInesperado,
  MsgObjeto,
  MsgError,
  MsgEsComo,
  MsgY,
  MsgEsNulo,
  MsgComandosEjecutados,
  MsgMetodo,
  kMessageCount
};

// Language numbers. The catalogue has a column for each of the first four.
namespace language {
inline constexpr std::int32_t kSpanish = 0, kEnglish = 1, kItalian = 2, kFrench = 3, kCatalan = 4, kGalician = 5,
                              kBasque = 6, kPortuguese = 7, kGerman = 8;
inline constexpr std::int32_t kCarried = 4;
}  // namespace language

// A table of texts by row and column.
class TextTable {
 public:
  TextTable() = default;
  TextTable(std::int32_t rows, std::int32_t columns);

  std::int32_t rows() const { return rows_; }
  std::int32_t columns() const { return columns_; }
  // Throws failure 9 outside the table.
  Text& at(std::int32_t row, std::int32_t column);
  const Text& at(std::int32_t row, std::int32_t column) const;

 private:
  std::size_t index(std::int32_t row, std::int32_t column) const;

  std::int32_t rows_ = 0, columns_ = 0;
  std::vector<Text> cells_;
};

// Writes every cell of the catalogue.
void CtesMensajes(TextTable& Mensajes);

}  // namespace qvr
