#include "query/search/tokens.h"

#include <algorithm>
#include <utility>

namespace qvr::query {
namespace {

// Limits look-ahead, which is repeated for each word (quadratic otherwise); longer operands are refused anyway.
constexpr std::size_t kFarthest = 2 * kLongestOperand + 20;

bool is_blank_like(char16_t unit) {
  return unit < 0x20 || unit == 0x7F || unit == u'\u00a0' || unit == u'\u202f' || unit == u'\u2007' ||
         unit == u'\u2060' || unit == u'\ufeff' || (unit >= 0x80 && unit < 0xA0);
}

// The position behind the closing quote of the quoted part that begins at `at`; npos when it is unclosed. A doubled
// quote inside is an escaped one.
std::size_t end_of_double_quoted(TextView text, std::size_t at) {
  for (std::size_t i = at + 1; i < text.size(); ++i) {
    if (!is_double_quote(text[i])) continue;
    if (i + 1 == text.size() || !is_double_quote(text[i + 1])) return i + 1;
    ++i;
  }
  return TextView::npos;
}

TextView without_leading_blanks(TextView text) {
  return text.substr(std::min(text.find_first_not_of(u' '), text.size()));
}

// The operator LIKE, as a word or phrase, at the beginning of the text. "LIKE" in capitals always counts, all others
// only before a quote or a wildcard.
FoundPhrase like_operator(TextView text) {
  const FoundPhrase phrase = like_phrase(text);
  if (phrase.length == 0) return {};
  const std::size_t operand = text.find_first_not_of(u' ', phrase.length);
  if (operand == TextView::npos || text[operand] == u';') return {};
  const TextView typed = text.substr(0, phrase.length);
  if (typed == u"LIKE" || (typed.starts_with(u"NOT ") && typed.ends_with(u" LIKE"))) return phrase;
  const bool quoted = is_single_quote(text[operand]) || is_double_quote(text[operand]);
  const TextView near = text.substr(operand, kFarthest);
  const bool wild = near.substr(0, near.find(u';')).find_first_of(u"*?") != TextView::npos;
  return quoted || wild ? phrase : FoundPhrase();
}

// Whether an operator, a null phrase or LIKE begins here: before these a word connects texts, too. "!" is one before
// another or a quote, as criteria show it.
bool begins_test(TextView text) {
  text = without_leading_blanks(text);
  if (text.starts_with(u'!')) {
    const TextView negated = without_leading_blanks(text.substr(1));
    return comparison_in(text).length > 0 || comparison_in(negated).length > 0 || negated.starts_with(u'"');
  }
  const FoundPhrase null = null_phrase(text);
  return comparison_in(text).length > 0 || (null.length > 0 && !null.negated) || like_operator(text).length > 0;
}

class Lexer {
 public:
  Lexer(TextView search, SearchType type) : search_(search), type_(type) { tokens_.reserve(8); }

  std::vector<Token> tokens() {
    read_term();
    while (at_ < search_.size() && tokens_.size() <= kMostTokens) {
      const Connector connector = connector_at(at_);
      const bool nothing_between = connector.is_or && !tokens_.empty() && tokens_.back().kind == TokenKind::Or;
      if (nothing_between) tokens_.pop_back();
      add({connector.is_or ? TokenKind::Or : TokenKind::And}, connector.length);
      read_term();
    }
    return std::move(tokens_);
  }

 private:
  struct Connector {
    std::size_t length = 0;
    bool is_or = false;
  };

  // What stands between two connectors.
  void read_term() {
    skip_blanks();
    term_ = at_;
    content_ = search_.find_first_not_of(u" &|", at_);
    range_ = nullptr;
    dots_ahead_ = true;
    read_negation();
    const auto comparison = read_comparison();
    pattern_ = is_textual(type_) && comparison.value_or(Comparison::Different) == Comparison::Different && read_like();
    if (is_textual(type_)) dots_ahead_ = !comparison && !pattern_;
    if (!comparison && (type_ == SearchType::Number || type_ == SearchType::Date)) read_range_word();
    read_range_or_operand();
  }

  void read_negation() {
    if (rest().starts_with(u'!')) {
      if (!rest().starts_with(u"!=")) add({TokenKind::Not}, 1);
    } else if (!is_textual(type_)) {
      const std::size_t length = not_word(rest()), next = behind_blanks(at_ + length);
      const bool alone = next == search_.size() || connector_at(next).length > 0;  // a word for false
      if (length > 0 && !alone) add({TokenKind::Not}, length);
    }
  }

  std::optional<Comparison> read_comparison() {
    const auto [length, comparison] = comparison_in(rest());
    if (length == 0) return std::nullopt;
    add({.kind = TokenKind::Comparison, .comparison = comparison}, length);
    return comparison;
  }

  bool read_like() {
    const auto [length, negated] = like_operator(rest());
    if (length > 0) add({.kind = TokenKind::Like, .negated = negated}, length);
    return length > 0;
  }

  void read_range_word() {
    if (const std::size_t length = up_to_word(rest())) {
      add({TokenKind::Dots}, length);
      dots_ahead_ = false;
    } else if (const FoundRange found = range_word(rest()); found.words != nullptr) {
      add({.kind = TokenKind::From, .open = found.words->open}, found.length);
      range_ = found.words;
    }
  }

  void read_range_or_operand() {
    const std::size_t start = at_, before = tokens_.size();
    read_operand();
    const std::size_t length = dots_at(at_);
    if (length == 0) return;
    add({TokenKind::Dots}, length);
    range_ = nullptr;
    dots_ahead_ = false;
    read_operand();
    if (!is_textual(type_) || has_two_ends(before)) return;
    tokens_.erase(tokens_.begin() + static_cast<std::ptrdiff_t>(before), tokens_.end());
    at_ = start;
    read_operand();
  }

  // Texts need both ends, and no wildcards but a star behind.
  bool has_two_ends(std::size_t first) const {
    return tokens_.size() == first + 3 && tokens_[first].operand.is_range_end() &&
           tokens_.back().operand.is_range_end();
  }

  void read_operand() {
    const std::size_t start = at_;
    Operand operand;
    if (const std::size_t end = end_of_single_quoted()) {
      ++at_;
      // Only wildcards and double quotes keep their meaning, and these only in a pattern.
      while (at_ < end - 1) pattern_ ? read_into(operand) : keep(operand, search_[at_++], true);
      at_ = end;
    } else {
      while (!ends_operand()) read_into(operand);
      operand.trim();
    }
    const TextView text = trimmed(search_.substr(start, at_ - start));
    skip_blanks();
    if (!text.empty()) tokens_.push_back({.kind = TokenKind::Operand, .text = text, .operand = std::move(operand)});
  }

  // A quoted part or one character.
  void read_into(Operand& operand) {
    // "ene...mar." is a range of two names with points.
    if (type_ != SearchType::Date && rest().starts_with(u"...")) dots_ahead_ = false;
    const std::size_t end = end_of_double_quoted();
    if (end == 0) return keep(operand, search_[at_++], false);
    for (++at_; at_ < end - 1; ++at_) {
      keep(operand, search_[at_], true);
      if (is_double_quote(search_[at_])) ++at_;  // skips the second of a doubled quote
    }
    at_ = end;
  }

  // Only texts need more than what was typed.
  void keep(Operand& operand, char16_t unit, bool quoted) const {
    if (is_textual(type_)) operand.add(unit, quoted);
  }

  bool ends_operand() const { return at_ == search_.size() || dots_at(at_) > 0 || connector_at(at_).length > 0; }

  // The end of the quoted part that begins here; 0 for none.
  std::size_t end_of_double_quoted() {
    if (open_ended_ || !is_double_quote(search_[at_])) return 0;
    const std::size_t end = query::end_of_double_quoted(search_, at_);
    open_ended_ = end == TextView::npos;
    return open_ended_ ? 0 : end;
  }

  // The same for an operand in single quotes. A closing one is one before a connector, before the ".." of a range or at
  // the end: apostrophes inside are allowed.
  std::size_t end_of_single_quoted() const {
    if (at_ == search_.size() || !is_single_quote(search_[at_])) return 0;
    const TextView near = search_.substr(0, at_ + kFarthest);
    for (std::size_t i = at_ + 1; i < near.size(); ++i) {
      if (is_double_quote(near[i])) {
        const std::size_t end = query::end_of_double_quoted(near, i);
        if (end != TextView::npos) i = end - 1;
      } else if (is_single_quote(near[i])) {
        const std::size_t next = behind_blanks(i + 1);
        if (next == search_.size() || dots_at(next) > 0 || connector_at(next).length > 0) return i + 1;
      }
    }
    return 0;
  }

  // The length of the two points, or of the word in their place; 0 for none. Three points are text.
  std::size_t dots_at(std::size_t at) const {
    const TextView text = search_.substr(at);
    if (range_ != nullptr) return blank_before(at) ? last_end_word(text, *range_) : 0;
    return dots_ahead_ && text.starts_with(u"..") && !text.starts_with(u"...") ? 2 : 0;
  }

  Connector connector_at(std::size_t at) const {
    const char16_t unit = search_[at];
    if (unit == u';') return {1, true};
    if (unit == u'|' || unit == u'&') {
      return !is_textual(type_) || sign_connects_texts(at) ? Connector{1, unit == u'|'} : Connector();
    }
    if (!blank_before(at) || at <= term_) return {};
    const TextView text = search_.substr(at);
    const std::size_t either = or_word(text), length = either > 0 ? either : and_word(text);
    if (length == 0 || is_blank(text.substr(length))) return {};
    return !is_textual(type_) || begins_test(text.substr(length)) ? Connector{length, either > 0} : Connector();
  }

  // Not at either end of a text, where it is punctuation.
  bool sign_connects_texts(std::size_t at) const {
    if (at < content_ || !blank_before(at)) return false;
    const std::size_t next = behind_blanks(at + 1);
    if (next == search_.size() || TextView(u";&|").find(search_[next]) != TextView::npos) return false;
    return next > at + 1 || begins_test(search_.substr(next));
  }

  bool blank_before(std::size_t at) const { return at > 0 && search_[at - 1] == u' '; }
  TextView rest() const { return search_.substr(at_); }
  void skip_blanks() { at_ = behind_blanks(at_); }
  std::size_t behind_blanks(std::size_t at) const {
    return std::min(search_.find_first_not_of(u' ', at), search_.size());
  }
  void add(Token token, std::size_t length) {
    tokens_.push_back(std::move(token));
    at_ = behind_blanks(at_ + length);
  }

  TextView search_;
  SearchType type_;
  std::vector<Token> tokens_;
  std::size_t at_ = 0;
  std::size_t term_ = 0;               // where the term began
  std::size_t content_ = 0;            // and what is no mere connecting sign in it
  const RangeWords* range_ = nullptr;  // whose last end is still to come
  bool dots_ahead_ = false;            // two points here would join the ends of a range
  bool pattern_ = false;               // the operand is one of LIKE
  bool open_ended_ = false;            // there was an unclosed double quote
};

}  // namespace

Text normalised_search(TextView typed) {
  Text text(typed);
  std::ranges::replace_if(text, is_blank_like, u' ');
  text.erase(text.find_last_not_of(u' ') + 1);
  return text.erase(0, text.find_first_not_of(u' '));
}

std::vector<Token> tokens_of(TextView search, SearchType type) { return Lexer(search, type).tokens(); }

}  // namespace qvr::query
