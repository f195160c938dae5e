// The current language of a thread and its messages. The noexcept members do not fail: they give an empty text, 0 or
// false.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "base/value.h"
#include "platform/platform.h"
#include "session/catalogue.h"

namespace qvr {

class IdiomaSimple {
 public:
  static constexpr TextView kClass = u"IdiomaSimple";  // in reports and the trace

  explicit IdiomaSimple(System& system) : system_(&system) {}

  // Copies the catalogue and selects the language, or the nearest one in the list; false, and not loaded, when that
  // language has no column.
  bool CargarEnMemoria(std::int32_t Idioma, std::vector<Value> Idiomas, const TextTable& Mensajes) noexcept;

  std::int32_t Idioma() const noexcept { return current_; }
  void Idioma(std::int32_t NuevoIdioma) noexcept;  // ignored while not loaded
  bool Creado() const noexcept { return loaded_; }

  // The row's text in the current language with "||" as line breaks.
  Text CI(std::int32_t row) const noexcept;
  // CI with "|1", "|2"... replaced in ascending order, each in the result of the previous replacement.
  Text CIp(std::int32_t row, std::span<const Value> Param) const noexcept;
  // The same for the library's own messages, which must not be shown empty: throws failure 9 where CI would be empty.
  Text text_of(std::int32_t row) const;
  Text filled_text_of(std::int32_t row, std::span<const Value> values) const;
  // Singular and plural: the row when Cantidad is 1, else the next one; "|1" is Cantidad, Param begins at "|2".
  Text CIsp(std::int32_t row, std::int32_t Cantidad, std::span<const Value> Param) const noexcept;

  std::int32_t NumIdiomas() const noexcept { return language_count_; }
  std::int32_t NumMensajes() const noexcept { return message_count_; }
  // The language number of the user's Windows language. Before loading, languages that depend on the list give 0.
  std::int32_t IdiomaDesdeSOP() const noexcept;
  std::vector<Value> IdiomasDisponibles() const noexcept;

 private:
  // Selects the language, or the nearest one in the list; false when it has no column.
  bool select(std::int32_t idioma);
  std::int32_t nearest_available(std::int32_t idioma) const noexcept;

  std::int32_t current_ = 0;
  std::int32_t language_count_ = 0;
  std::vector<Value> available_;
  std::int32_t message_count_ = 0;
  std::int32_t column_ = 0;  // of the current language
  bool loaded_ = false;
  TextTable catalogue_;
  System* system_;
};

}  // namespace qvr
