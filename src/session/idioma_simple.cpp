#include "session/idioma_simple.h"

#include <algorithm>

#include "base/failure.h"
#include "session/system_language.h"
#include "session/value_convert.h"

namespace qvr {
namespace {

Text filled(Text text, std::size_t first_placeholder, std::span<const Value> values) {
  for (std::size_t i = 0; i < values.size(); ++i) {
    const Text placeholder = u"|" + decimal(static_cast<std::int64_t>(first_placeholder + i));
    text = replace_all(text, placeholder, to_text(values[i]));
  }
  return text;
}

}  // namespace

bool IdiomaSimple::CargarEnMemoria(std::int32_t Idioma, std::vector<Value> Idiomas,
                                   const TextTable& Mensajes) noexcept {
  loaded_ = false;
  return or_default(kClass, false, [&] {
    language_count_ = Mensajes.columns();
    available_ = std::move(Idiomas);
    message_count_ = Mensajes.rows();
    catalogue_ = Mensajes;
    return loaded_ = select(Idioma);
  });
}

bool IdiomaSimple::select(std::int32_t idioma) {
  const std::int32_t nearest = nearest_available(idioma);
  const auto column = std::ranges::find_if(available_,
                                           [=](const Value& number) { return to_number(number) == nearest; });
  current_ = nearest;
  column_ = static_cast<std::int32_t>(column - available_.begin());
  return column != available_.end() && column_ < language_count_;
}

void IdiomaSimple::Idioma(std::int32_t NuevoIdioma) noexcept {
  if (loaded_) loaded_ = or_default(kClass, true, [&] { return select(NuevoIdioma); });
}

std::int32_t IdiomaSimple::nearest_available(std::int32_t idioma) const noexcept {
  return or_default(kClass, language::kSpanish, [&] {
    if (available_.empty()) return language::kSpanish;
    for (const Value& number : available_) {
      if (to_number(number) == idioma) return idioma;
    }
    const bool reads_spanish = idioma == language::kItalian ||
                               (idioma >= language::kCatalan && idioma <= language::kPortuguese);
    return reads_spanish ? language::kSpanish : language::kEnglish;
  });
}

Text IdiomaSimple::text_of(std::int32_t row) const {
  if (!loaded_ || row < 0 || row >= message_count_) throw RuntimeFailure(failure_number::kSubscript);
  return replace_all(catalogue_.at(row, column_), u"||", kLineBreak);
}

Text IdiomaSimple::filled_text_of(std::int32_t row, std::span<const Value> values) const {
  return filled(text_of(row), 1, values);
}

Text IdiomaSimple::CI(std::int32_t row) const noexcept {
  return or_default(kClass, Text(), [&] { return text_of(row); });
}

Text IdiomaSimple::CIp(std::int32_t row, std::span<const Value> Param) const noexcept {
  return or_default(kClass, Text(), [&] { return filled_text_of(row, Param); });
}

Text IdiomaSimple::CIsp(std::int32_t row, std::int32_t Cantidad, std::span<const Value> Param) const noexcept {
  return or_default(kClass, Text(), [&] {
    const std::int32_t form = Cantidad == 1 || row == INT32_MAX ? row : row + 1;
    return filled(replace_all(text_of(form), u"|1", decimal(Cantidad)), 2, Param);
  });
}

std::int32_t IdiomaSimple::IdiomaDesdeSOP() const noexcept {
  return or_default(kClass, language::kEnglish, [&] {
    const SystemLanguage system = system_language(system_->user_language());
    return system.needs_availability_check ? nearest_available(system.number) : system.number;
  });
}

std::vector<Value> IdiomaSimple::IdiomasDisponibles() const noexcept {
  return or_default(kClass, std::vector<Value>(), [&] { return available_; });
}

}  // namespace qvr
