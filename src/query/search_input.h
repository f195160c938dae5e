// What a user typed, made ready for reading: blanks, quotes and words.
#pragma once

#include <vector>

#include "base/text.h"

namespace qvr::query {

// Control characters and no-break blanks as blanks, none at the edges.
Text normalised_search(TextView typed);

bool is_double_quote(char16_t unit);  // also the curly ones
bool is_single_quote(char16_t unit);

// Where the quoted part that begins at `at` ends, behind its closing quote; npos when it is never closed. Two quotes
// side by side within it are one.
std::size_t end_of_double_quoted(TextView text, std::size_t at);

// Whether the word stands there by itself, and in any case.
bool word_at(TextView text, std::size_t at, TextView word);

inline constexpr std::size_t kLongestOperand = 1000;
// Two of them, or one in which all are double quotes and doubled, with what may stand around: "<> est comme '*"..."*'".
inline constexpr std::size_t kLongestPiece = 2 * kLongestOperand + 20;

// A text that a user gave as a value: which of its units were quoted and so stand for themselves.
class Operand {
 public:
  // With double quotes anywhere, and with `single_quoted` what is between single quotes around the whole of it, where
  // only wildcards keep their meaning. Without those, single quotes around the whole quote all of it.
  static Operand read(TextView typed, bool single_quoted = false);
  static Operand literal(TextView text);

  const Text& text() const { return text_; }
  bool empty() const { return text_.empty(); }
  bool is_wildcard(std::size_t i) const { return !quoted_[i] && (text_[i] == u'*' || text_[i] == u'?'); }
  bool has_wildcard() const;
  bool only_stars() const;  // at least one, and nothing else
  bool any_quoted() const;
  // More than people type. A star at either end does not count, nor do quotes: what is shown may have them where what
  // was typed had none, and can be typed again.
  bool too_long() const;

  // Its words, quoted blanks being part of one; punctuation by itself is none unless there is nothing else.
  std::vector<Operand> words() const;
  void append_wildcard(char16_t wildcard);
  void prepend_star();
  // Without a wildcard star at its end; false when there is none.
  bool drop_last_star();

 private:
  void add(char16_t unit, bool quoted);

  Text text_;
  std::vector<bool> quoted_;
  bool quoted_nothing_ = false;  // "" was there: an empty value, not a missing one

 public:
  bool given() const { return !text_.empty() || quoted_nothing_; }
};

}  // namespace qvr::query
