#include "query/search/operand.h"

#include <algorithm>

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
  std::vector<Operand> words, all;
  Operand word;
  const auto finish = [&] {
    if (word.empty()) return;
    all.push_back(word);
    if (word.any_quoted() || !std::ranges::all_of(word.text_, is_punctuation)) words.push_back(word);
    word = {};
  };
  for (std::size_t i = 0; i < text_.size(); ++i) {
    if (text_[i] == u' ' && !quoted_[i]) {
      finish();
    } else {
      word.add(text_[i], quoted_[i]);
    }
  }
  finish();
  return words.empty() ? all : words;
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
