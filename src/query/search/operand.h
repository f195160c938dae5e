// A value as the user typed it for a column of texts.
#pragma once

#include <vector>

#include "base/text.h"

namespace qvr::query {

// No more than people type.
inline constexpr std::size_t kLongestOperand = 1000;

// A text, and which of its characters were quoted and so are literal.
class Operand {
 public:
  static Operand literal(TextView text);

  void add(char16_t unit, bool quoted);
  void trim();  // blanks at the end that were not quoted

  const Text& text() const { return text_; }
  bool empty() const { return text_.empty(); }
  bool is_wildcard(std::size_t i) const { return !quoted_[i] && (text_[i] == u'*' || text_[i] == u'?'); }
  bool has_wildcard() const;
  bool only_stars() const;  // at least one, and nothing else
  // Whether it exceeds the limit. Stars at the ends do not count: the criterion may have them where the search had
  // none, and has to be accepted when it is typed.
  bool too_long() const;

  // The words; quoted blanks do not separate them. Punctuation alone is a word only if there is no other.
  std::vector<Operand> words() const;
  void append_wildcard(char16_t wildcard);
  void prepend_star();
  // Removes a trailing wildcard star; false when there is none.
  bool drop_last_star();
  // Whether it can be the end of a range: a value that may end in a star.
  bool is_range_end() const;

 private:
  bool any_quoted() const;

  Text text_;
  std::vector<bool> quoted_;
};

}  // namespace qvr::query
