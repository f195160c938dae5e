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
  return or_default(false, [&] { return load(Idioma, std::move(Idiomas), Mensajes); });
}

bool IdiomaSimple::load(std::int32_t idioma, std::vector<Value> idiomas, const TextTable& mensajes) {
  loaded_ = false;
  language_count_ = mensajes.columns();
  available_ = std::move(idiomas);
  message_count_ = mensajes.rows();
  current_ = nearest_available(idioma);
  catalogue_ = mensajes;
  const auto column = std::ranges::find_if(available_,
                                           [this](const Value& number) { return to_number(number) == current_; });
  if (column == available_.end()) return false;
  std::vector<Text> texts;
  texts.reserve(static_cast<std::size_t>(message_count_));
  for (std::int32_t row = 0; row < message_count_; ++row) {
    texts.push_back(catalogue_.at(row, static_cast<std::int32_t>(column - available_.begin())));
  }
  texts_ = std::move(texts);
  return loaded_ = true;
}

void IdiomaSimple::Idioma(std::int32_t NuevoIdioma) noexcept {
  or_default(false, [&] {
    if (!loaded_) return false;
    const std::int32_t wanted = nearest_available(NuevoIdioma);
    if (wanted == current_) return true;
    // Loaded elsewhere first: for want of memory the language in force stays.
    IdiomaSimple changed(*user_language_);
    changed.load(wanted, available_, catalogue_);
    *this = std::move(changed);
    return true;
  });
}

std::int32_t IdiomaSimple::nearest_available(std::int32_t idioma) const noexcept {
  return or_default(language::kSpanish, [&] {
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
  return replace_all(texts_[static_cast<std::size_t>(row)], u"||", kLineBreak);
}

Text IdiomaSimple::filled_text_of(std::int32_t row, std::span<const Value> values) const {
  return filled(text_of(row), 1, values);
}

Text IdiomaSimple::CI(std::int32_t row) const noexcept {
  return or_default(Text(), [&] { return text_of(row); });
}

Text IdiomaSimple::CIp(std::int32_t row, std::span<const Value> Param) const noexcept {
  return or_default(Text(), [&] { return filled_text_of(row, Param); });
}

Text IdiomaSimple::CIsp(std::int32_t row, std::int32_t Cantidad, std::span<const Value> Param) const noexcept {
  return or_default(Text(), [&] {
    const std::int32_t form = Cantidad == 1 || row == INT32_MAX ? row : row + 1;
    return filled(replace_all(text_of(form), u"|1", decimal(Cantidad)), 2, Param);
  });
}

std::int32_t IdiomaSimple::language_of_system() const {
  return or_default_unless_memory(language::kEnglish, [&] {
    const SystemLanguage system = system_language(user_language_->default_identifier());
    return system.needs_availability_check ? nearest_available(system.number) : system.number;
  });
}

std::int32_t IdiomaSimple::IdiomaDesdeSOP() const noexcept {
  return or_default(language::kEnglish, [&] { return language_of_system(); });
}

std::vector<Value> IdiomaSimple::IdiomasDisponibles() const noexcept {
  return or_default(std::vector<Value>(), [&] { return available_; });
}

}  // namespace qvr
