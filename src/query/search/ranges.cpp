// Ranges.
#include <algorithm>

#include "query/search/grammar.h"

namespace qvr::query {
namespace {

// The first of the words that occurs as a whole word; npos for none.
struct FoundWord {
  std::size_t at, length;
};
std::optional<FoundWord> find_word(TextView text, std::span<const TextView> words) {
  for (std::size_t at = text.find(u' '); at != TextView::npos; at = text.find(u' ', at + 1)) {
    for (const TextView word : words) {
      if (word_at(text, at + 1, word)) return FoundWord{at + 1, word.size()};
    }
  }
  return std::nullopt;
}

// The end of the single-quoted part at the beginning of the text. The closing quote is one before ".." or at the end,
// as apostrophes inside are allowed. 0 for none.
std::size_t end_of_first_quoted(TextView text) {
  if (text.empty() || !is_single_quote(text[0])) return 0;
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (!is_single_quote(text[i])) continue;
    const TextView behind = trimmed(text.substr(i + 1));
    if (behind.empty() || behind.starts_with(u"..")) return i + 1;
  }
  return 0;
}

// The first ".." outside quotes that is not part of "...".
std::size_t find_dots(TextView text) {
  for (std::size_t i = end_of_first_quoted(text); i + 1 < text.size(); ++i) {
    if (is_double_quote(text[i])) {
      const std::size_t end = end_of_double_quoted(text, i);
      if (end != TextView::npos) i = end - 1;
      continue;
    }
    const bool dots = text[i] == u'.' && text[i + 1] == u'.';
    if (!dots) continue;
    if (i + 2 < text.size() && text[i + 2] == u'.') return TextView::npos;
    return i;
  }
  return TextView::npos;
}

}  // namespace

AtomParser::Found AtomParser::range(TextView text) const {
  if (type_ == SearchType::Logical) return std::nullopt;
  if (const std::size_t dots = find_dots(text); dots != TextView::npos) {
    return between(trimmed(text.substr(0, dots)), trimmed(text.substr(dots + 2)));
  }
  if (is_textual(type_)) return std::nullopt;
  const auto joined_by = [&](TextView first_word, std::span<const TextView> words) -> Found {
    if (!word_at(text, 0, first_word)) return std::nullopt;
    const TextView rest = text.substr(first_word.size());
    const auto joint = find_word(rest, words);
    if (!joint) return std::nullopt;
    return between(trimmed(rest.substr(0, joint->at)), trimmed(rest.substr(joint->at + joint->length)));
  };
  for (const TextView word : between_words()) {
    if (auto found = joined_by(word, and_words())) return found;
  }
  for (const RangeWords& words : range_words()) {
    if (auto found = joined_by(words.from, words.to)) return found;
  }
  return std::nullopt;
}

// "a..b" where the engine cannot compare texts of this type.
bool AtomParser::has_two_ends(TextView text) const {
  const std::size_t dots = find_dots(text);
  return dots != TextView::npos && !is_blank(text.substr(0, dots)) && !is_blank(text.substr(dots + 2));
}

AtomParser::Found AtomParser::between(TextView first, TextView last) const {
  const bool open = first.empty() || last.empty();
  if (is_textual(type_)) return open || !can_be_compared() ? std::nullopt : between_texts(first, last);
  if ((first.empty() && last.empty()) || std::max(first.size(), last.size()) > kLongestOperand) return std::nullopt;
  if (first.empty()) return compared(Comparison::LessOrEqual, last);
  if (last.empty()) return compared(Comparison::GreaterOrEqual, first);
  if (type_ == SearchType::Date) return between_dates(first, last);
  const auto one_end = number_digits(first), other_end = number_digits(last);
  if (!one_end || !other_end) return std::nullopt;
  const bool reversed = is_greater_number(*one_end, *other_end);
  return Alternatives{{CompareNumber{Comparison::GreaterOrEqual, reversed ? *other_end : *one_end},
                       CompareNumber{Comparison::LessOrEqual, reversed ? *one_end : *other_end}}};
}

AtomParser::Found AtomParser::between_texts(TextView first, TextView last) const {
  Operand lower = Operand::read(first), upper = Operand::read(last);
  lower.drop_last_star();
  upper.drop_last_star();
  if (lower.has_wildcard() || upper.has_wildcard() || lower.empty() || upper.empty()) return std::nullopt;
  if (lower.too_long() || upper.too_long()) return std::nullopt;
  const auto folded_less = [](const Text& a, const Text& b) {
    return std::ranges::lexicographical_compare(a, b, {}, fold, fold);
  };
  // "martin..m" is not reversed: texts that begin with the upper bound are within the range.
  const bool reversed = folded_less(upper.text(), lower.text()) && !starts_with_no_case(lower.text(), upper.text());
  if (reversed) std::swap(lower, upper);
  return Alternatives{{CompareText{Comparison::GreaterOrEqual, std::move(lower)},
                       CompareText{Comparison::LessOrEqual, std::move(upper), true}}};
}

AtomParser::Found AtomParser::between_dates(TextView first, TextView last) const {
  const auto a = period_in(first), b = period_in(last);
  if (!a || !b) return std::nullopt;
  // A day and its year overlap and are not reversed: the bounds are swapped only when the range would be empty.
  const bool reversed = a->from >= b->to;
  const Period& lower = reversed ? *b : *a;
  const Period& upper = reversed ? *a : *b;
  const auto bound = [](Comparison how, const Period& period, bool at_end) {
    if (!period.whole_days) return CompareDate{how, period.from, period.to, false, period.with_seconds};
    const Moment day = at_end ? day_before(period.to) : period.from;
    return CompareDate{how, day, {day.day + 1, 0}, true};
  };
  return Alternatives{{bound(Comparison::GreaterOrEqual, lower, false), bound(Comparison::LessOrEqual, upper, true)}};
}

}  // namespace qvr::query
