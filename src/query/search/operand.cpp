#include "query/search/operand.h"

#include <algorithm>
#include <utility>

namespace qvr::query {
namespace {

// Punctuation, which alone is not a word; wildcards excluded.
bool is_punctuation(char16_t unit) {
  const bool ascii = unit > u' ' && unit < 0x7F && unit != u'*' && unit != u'?';
  const bool letter = fold(unit) != unit || (unit >= u'A' && unit <= u'Z');
  return (ascii && !letter && !is_digit(unit)) || (unit >= 0x2010 && unit <= 0x2027);
}

}  // namespace

Operand Operand::literal(TextView text) {
  Operand operand;
  for (const char16_t unit : text) operand.add(unit, true);
  return operand;
}

void Operand::add(char16_t unit, bool quoted) {
  text_.push_back(unit);
  quoted_.push_back(quoted);
}

void Operand::trim() {
  while (!text_.empty() && text_.back() == u' ' && !quoted_.back()) {
    text_.pop_back();
    quoted_.pop_back();
  }
}

bool Operand::has_wildcard() const {
  for (std::size_t i = 0; i < text_.size(); ++i) {
    if (is_wildcard(i)) return true;
  }
  return false;
}

bool Operand::only_stars() const {
  for (std::size_t i = 0; i < text_.size(); ++i) {
    if (quoted_[i] || text_[i] != u'*') return false;
  }
  return !text_.empty();
}

bool Operand::any_quoted() const { return std::ranges::find(quoted_, true) != quoted_.end(); }

bool Operand::too_long() const {
  const auto star_at = [this](std::size_t i) { return text_[i] == u'*' && !quoted_[i]; };
  std::size_t size = text_.size();
  if (size > 0 && star_at(size - 1)) --size;
  if (size > 0 && star_at(0)) --size;
  return size > kLongestOperand;
}

std::vector<Operand> Operand::words() const {
  std::vector<Operand> words;
  bool within = false;
  for (std::size_t i = 0; i < text_.size(); ++i) {
    const bool was_within = std::exchange(within, text_[i] != u' ' || quoted_[i]);
    if (within && !was_within) words.emplace_back();
    if (within) words.back().add(text_[i], quoted_[i]);
  }
  const auto lone = [](const Operand& word) {
    return !word.any_quoted() && std::ranges::all_of(word.text_, is_punctuation);
  };
  if (!std::ranges::all_of(words, lone)) std::erase_if(words, lone);
  return words;
}

void Operand::append_wildcard(char16_t wildcard) { add(wildcard, false); }

void Operand::prepend_star() {
  text_.insert(text_.begin(), u'*');
  quoted_.insert(quoted_.begin(), false);
}

bool Operand::drop_last_star() {
  if (text_.empty() || quoted_.back() || text_.back() != u'*') return false;
  text_.pop_back();
  quoted_.pop_back();
  return true;
}

bool Operand::is_range_end() const {
  Operand end = *this;
  end.drop_last_star();
  return !end.empty() && !end.has_wildcard();
}

}  // namespace qvr::query
