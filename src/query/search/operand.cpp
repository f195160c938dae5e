#include "query/search/operand.h"

#include <algorithm>

namespace qvr::query {
namespace {

bool is_blank_like(char16_t unit) {
  return unit < 0x20 || unit == 0x7F || unit == u'\u00a0' || unit == u'\u202f' || unit == u'\u2007' ||
         unit == u'\u2060' || unit == u'\ufeff' || (unit >= 0x80 && unit < 0xA0);
}

bool is_word_unit(char16_t unit) { return unit != u' ' && unit != u';' && unit != u'&' && unit != u'|'; }

// Punctuation, which alone is not a word; wildcards excluded.
bool is_punctuation(char16_t unit) {
  return (unit > 0x20 && unit < 0x7F && !is_digit(unit) && fold(unit) == unit && !(unit >= u'A' && unit <= u'Z')) ||
         (unit >= 0x2010 && unit <= 0x2027);
}

bool single_quoted_whole(TextView typed) {
  return typed.size() >= 2 && is_single_quote(typed.front()) && is_single_quote(typed.back());
}

}  // namespace

Text normalised_search(TextView typed) {
  Text text(typed);
  std::ranges::replace_if(text, is_blank_like, u' ');
  return Text(trimmed(text));
}

bool is_double_quote(char16_t unit) { return unit == u'"' || unit == u'\u201c' || unit == u'\u201d'; }
bool is_single_quote(char16_t unit) { return unit == u'\'' || unit == u'\u2018' || unit == u'\u2019'; }

std::size_t end_of_double_quoted(TextView text, std::size_t at) {
  for (std::size_t i = at + 1; i < text.size(); ++i) {
    if (!is_double_quote(text[i])) continue;
    if (i + 1 == text.size() || !is_double_quote(text[i + 1])) return i + 1;
    ++i;
  }
  return TextView::npos;
}

bool word_at(TextView text, std::size_t at, TextView word) {
  if (!starts_with_no_case(text.substr(at), word)) return false;
  const std::size_t end = at + word.size();
  return (at == 0 || !is_word_unit(text[at - 1])) && (end == text.size() || !is_word_unit(text[end]));
}

void Operand::add(char16_t unit, bool quoted) {
  text_.push_back(unit);
  quoted_.push_back(quoted);
}

Operand Operand::literal(TextView text) {
  Operand operand;
  for (const char16_t unit : text) operand.add(unit, true);
  return operand;
}

Operand Operand::read(TextView typed, bool single_quoted) {
  const bool whole = single_quoted_whole(typed);
  if (whole) typed = typed.substr(1, typed.size() - 2);
  if (whole && !single_quoted) {
    Operand all = literal(typed);
    all.quoted_nothing_ = typed.empty();
    return all;
  }
  Operand operand;
  operand.quoted_nothing_ = whole && typed.empty();
  bool closed = true;  // once one quote is unclosed, so are all later ones; avoids quadratic searching
  for (std::size_t i = 0; i < typed.size();) {
    const std::size_t end = closed && is_double_quote(typed[i]) ? end_of_double_quoted(typed, i) : TextView::npos;
    if (end == TextView::npos) {
      closed = closed && !is_double_quote(typed[i]);
      operand.add(typed[i++], false);
      continue;
    }
    operand.quoted_nothing_ = operand.quoted_nothing_ || end == i + 2;
    for (++i; i < end - 1; ++i) {
      operand.add(typed[i], true);
      if (is_double_quote(typed[i])) ++i;  // skips the second of a doubled quote
    }
    i = end;
  }
  return operand;
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

}  // namespace qvr::query
