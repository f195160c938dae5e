// Lexical rules of the search box: blanks, quotes and words.
#pragma once

#include <vector>

#include "base/text.h"

namespace qvr::query {

// Replaces control characters and no-break spaces by blanks, and trims.
Text normalised_search(TextView typed);

bool is_double_quote(char16_t unit);  // also the curly ones
bool is_single_quote(char16_t unit);

// The position behind the closing quote of the quoted part that begins at `at`; npos when it is unclosed. A doubled
// quote inside is an escaped one.
std::size_t end_of_double_quoted(TextView text, std::size_t at);

// Whether the word occurs there as a whole word, without regard to case.
bool word_at(TextView text, std::size_t at, TextView word);

inline constexpr std::size_t kLongestOperand = 1000;
// Two of them, or one in which all are double quotes and doubled, with what may stand around: "<> est comme '*"..."*'".
inline constexpr std::size_t kLongestPiece = 2 * kLongestOperand + 20;

// An operand, and which of its characters were quoted and so are literal.
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
  // Whether it exceeds the limit. Stars at the ends and quotes do not count: the criterion may have them where the
  // search had none, and has to be accepted when it is typed.
  bool too_long() const;

  // The words; quoted blanks do not separate them. Punctuation alone is a word only if there is no other.
  std::vector<Operand> words() const;
  void append_wildcard(char16_t wildcard);
  void prepend_star();
  // Removes a trailing wildcard star; false when there is none.
  bool drop_last_star();

 private:
  void add(char16_t unit, bool quoted);

  Text text_;
  std::vector<bool> quoted_;
  bool quoted_nothing_ = false;  // the operand is "", an empty value, not a missing one

 public:
  bool given() const { return !text_.empty() || quoted_nothing_; }
};

}  // namespace qvr::query
