#include "query/search/tokens.h"

#include <algorithm>
#include <utility>

#include "query/search/operand.h"

namespace qvr::query {
namespace {

// Limits the look-ahead for a wildcard, which each word repeats (quadratic otherwise); longer operands are refused
// anyway.
constexpr std::size_t kFarthest = kLongestOperand + 10;

struct Connector {
  std::size_t length;
  bool is_or;
  bool is_word = false;
};

TextView without_leading_blanks(TextView text) {
  return text.substr(std::min(text.find_first_not_of(u' '), text.size()));
}

bool begins_atom(TextView text) {
  text = without_leading_blanks(text);
  return operator_length(text) > 0 || null_phrase(text) > 0 || like_operand(text).has_value();
}

class Splitter {
 public:
  Splitter(TextView search, SearchType type) : search_(search), type_(type) {}

  std::vector<SearchPiece> pieces() {
    bool starts = true;
    begin_piece(0);
    for (at_ = 0; at_ < search_.size();) {
      if (const std::size_t end = quoted_end()) {
        at_ = end;
        continue;
      }
      if (dots_at(at_)) {
        begin_last_end();
        continue;
      }
      const auto connector = connector_at(at_);
      if (!connector || skips_range_and(*connector)) {
        at_ += connector ? connector->length : 1;
        continue;
      }
      add(starts);
      starts = connector->is_or;
      begin_piece(at_ + connector->length);
      at_ = begin_;
    }
    add(starts);
    return std::move(pieces_);
  }

 private:
  void begin_piece(std::size_t at) {
    begin_ = at;
    text_ = behind_blanks(at);
    const std::size_t atom = behind_blanks(text_ + negation_length(search_.substr(text_), type_));
    operand_ = operand_of(atom);
    dots_ahead_ = operand_ == atom;
    range_and_ahead_ = starts_with_between(search_.substr(atom));
  }

  // Skips "..", but not the first two of "...".
  void begin_last_end() {
    dots_ahead_ = false;
    at_ += 2;
    if (at_ == search_.size() || search_[at_] != u'.') operand_ = behind_blanks(at_);
  }

  bool dots_at(std::size_t at) const { return dots_ahead_ && search_.substr(at).starts_with(u".."); }

  void add(bool starts_alternative) {
    pieces_.push_back({trimmed(search_.substr(begin_, at_ - begin_)), starts_alternative});
  }

  std::size_t behind_blanks(std::size_t at) const {
    return std::min(search_.find_first_not_of(u' ', at), search_.size());
  }

  // Skips an operator or LIKE.
  std::size_t operand_of(std::size_t atom) const {
    const std::size_t at = behind_blanks(atom + operator_length(search_.substr(atom)));
    const auto operand = like_operand(search_.substr(at));
    return operand ? static_cast<std::size_t>(operand->data() - search_.data()) : at;
  }

  bool starts_with_between(TextView text) const {
    if (is_textual(type_) || type_ == SearchType::Logical) return false;
    return std::ranges::any_of(between_words(), [&](TextView word) { return word_at(text, 0, word); });
  }

  bool skips_range_and(const Connector& connector) {
    return connector.is_word && !connector.is_or && std::exchange(range_and_ahead_, false);
  }

  // The end of the quoted part that begins here; 0 for none.
  std::size_t quoted_end() {
    const char16_t unit = search_[at_];
    if (is_double_quote(unit) && !open_ended_) {
      const std::size_t end = end_of_double_quoted(search_, at_);
      open_ended_ = end == TextView::npos;
      return open_ended_ ? 0 : end;
    }
    return is_single_quote(unit) && at_ == operand_ ? end_of_single_quoted() : 0;
  }

  // A closing single quote is one before a connector, before the ".." of a range or at the end: apostrophes inside are
  // allowed.
  std::size_t end_of_single_quoted() {
    const TextView near = search_.substr(0, at_ + kLongestPiece);  // longer pieces are refused
    for (std::size_t i = at_ + 1; i < near.size(); ++i) {
      if (is_double_quote(near[i])) {
        const std::size_t end = end_of_double_quoted(near, i);
        if (end != TextView::npos) i = end - 1;
      } else if (is_single_quote(near[i])) {
        const std::size_t next = behind_blanks(i + 1);
        if (next == search_.size() || connector_at(next) || dots_at(next)) return i + 1;
      }
    }
    return 0;
  }

  std::optional<Connector> connector_at(std::size_t at) const {
    const char16_t unit = search_[at];
    if (unit == u';') return Connector{1, true};
    if (unit == u'|' || unit == u'&') {
      const bool apart = !is_textual(type_) ||
                         (blank_before(at) && (blank_at(at + 1) || begins_atom(search_.substr(at + 1))));
      return apart ? std::optional(Connector{1, unit == u'|'}) : std::nullopt;
    }
    if (!blank_before(at) || at <= text_) return std::nullopt;
    for (const auto& [words, is_or] : {std::pair(or_words(), true), std::pair(and_words(), false)}) {
      for (const TextView word : words) {
        if (!word_at(search_, at, word)) continue;
        const TextView rest = search_.substr(at + word.size());
        if (is_blank(rest) || (is_textual(type_) && !begins_atom(rest))) return std::nullopt;
        return Connector{word.size(), is_or, true};
      }
    }
    return std::nullopt;
  }

  bool blank_at(std::size_t at) const { return at >= search_.size() || search_[at] == u' '; }
  bool blank_before(std::size_t at) const { return at > 0 && search_[at - 1] == u' '; }

  TextView search_;
  SearchType type_;
  std::vector<SearchPiece> pieces_;
  std::size_t at_ = 0, begin_ = 0, operand_ = 0;
  std::size_t text_ = 0;          // start of the piece, without leading blanks
  bool open_ended_ = false;       // there was an unclosed double quote
  bool range_and_ahead_ = false;  // the next "and" belongs to a range
  bool dots_ahead_ = false;       // and so does the next ".."
};

}  // namespace

std::vector<SearchPiece> split_search(TextView search, SearchType type) { return Splitter(search, type).pieces(); }

std::size_t operator_length(TextView text) {
  for (const TextView two : {u">=", u"<=", u"<>", u"!="}) {
    if (text.starts_with(two)) return 2;
  }
  return text.starts_with(u'=') || text.starts_with(u'>') || text.starts_with(u'<') ? 1 : 0;
}

std::size_t negation_length(TextView text, SearchType type) {
  if (text.starts_with(u'!')) return operator_length(text) == 0 ? 1 : 0;
  if (is_textual(type)) return 0;
  for (const TextView word : not_words()) {
    if (word_at(text, 0, word) && text.size() > word.size() && text[word.size()] == u' ') return word.size();
  }
  return 0;
}

std::optional<TextView> like_operand(TextView text) {
  constexpr TextView kLike = u"LIKE";
  std::size_t length = like_phrase(text);
  const bool capitals = text.starts_with(kLike);
  if (length == 0 && starts_with_no_case(text, kLike)) {
    const bool ends = text.size() == kLike.size() || text[kLike.size()] == u' ' ||
                      is_single_quote(text[kLike.size()]) || is_double_quote(text[kLike.size()]);
    length = ends ? kLike.size() : 0;
  }
  if (length == 0) return std::nullopt;
  const TextView operand = without_leading_blanks(text.substr(length));
  if (operand.empty() || operand[0] == u';') return std::nullopt;
  if (capitals) return operand;
  const bool quoted = is_single_quote(operand[0]) || is_double_quote(operand[0]);
  const TextView near = operand.substr(0, kFarthest);
  const bool wild = near.substr(0, near.find(u';')).find_first_of(u"*?") != TextView::npos;
  return quoted || wild ? std::optional(operand) : std::nullopt;
}

}  // namespace qvr::query
