#include "query/search/grammar.h"

#include "query/search/tokens.h"

namespace qvr::query {
namespace {

Alternatives one(Atom atom) { return {{std::move(atom)}}; }

Comparison comparison_of(TextView sign) {
  if (sign == u">=") return Comparison::GreaterOrEqual;
  if (sign == u"<=") return Comparison::LessOrEqual;
  if (sign == u"<>" || sign == u"!=") return Comparison::Different;
  if (sign == u">") return Comparison::Greater;
  return sign == u"<" ? Comparison::Less : Comparison::Equal;
}

bool is_equality(Comparison comparison) {
  return comparison == Comparison::Equal || comparison == Comparison::Different;
}

bool is_null_test(TextView text, SearchType type) {
  if (null_phrase(text) == text.size()) return true;
  return !is_textual(type) && (is_null_word(text) || text == u"\"\"" || text == u"''");
}

}  // namespace

std::optional<Alternatives> AtomParser::parse(TextView piece) const {
  if (piece.empty() || piece.size() > kLongestPiece) return std::nullopt;
  const std::size_t negation = negation_length(piece, type_);
  piece = trimmed(piece.substr(negation));
  const auto found = parse_positive(piece);
  return found && negation > 0 ? std::optional(negated(*found)) : found;
}

AtomParser::Found AtomParser::parse_positive(TextView text) const {
  if (text.empty()) return std::nullopt;
  if (auto found = nothing_or_something(text)) return found;
  if (const std::size_t length = operator_length(text)) {
    return compared(comparison_of(text.substr(0, length)), trimmed(text.substr(length)));
  }
  if (is_textual(type_)) {
    if (const auto operand = like_operand(text)) return pattern(*operand);
  }
  if (auto found = range(text)) return found;
  if (is_textual(type_) && !can_be_compared() && has_two_ends(text)) return std::nullopt;
  return is_textual(type_) ? words(text) : compared(Comparison::Equal, text);
}

// Null tests, and "*" for any value.
AtomParser::Found AtomParser::nothing_or_something(TextView text) const {
  if (is_null_test(text, type_)) return one(IsNull{false});
  const std::size_t length = operator_length(text);
  const Comparison comparison = comparison_of(text.substr(0, length));
  const bool negation = length > 0 && comparison == Comparison::Different;
  if (length > 0 && !is_equality(comparison)) return std::nullopt;
  const TextView operand = trimmed(text.substr(length));
  if (length > 0 && !operand.empty() && is_null_test(operand, type_)) return one(IsNull{negation});
  if (!is_textual(type_)) {
    if (length > 0 && operand.empty()) return one(IsNull{negation});
    return length == 0 && operand == u"*" ? std::optional(one(IsNull{true})) : std::nullopt;
  }
  const Operand value = Operand::read(operand);
  if (value.only_stars() && length == 0) return one(IsEmpty{true});
  if (length == 0 && !value.given()) return std::nullopt;
  return value.empty() ? std::optional(one(IsEmpty{negation})) : std::nullopt;
}

AtomParser::Found AtomParser::compared(Comparison comparison, TextView operand) const {
  if (operand.empty() || (!is_textual(type_) && operand.size() > kLongestOperand)) return std::nullopt;
  switch (type_) {
    case SearchType::Number: return compared_number(comparison, operand);
    case SearchType::Date: return compared_date(comparison, operand);
    case SearchType::Logical: return compared_truth(comparison, operand);
    default: return compared_text(comparison, operand);
  }
}

// SQL Server and Oracle support only LIKE on memos (text, CLOB).
bool AtomParser::can_be_compared() const { return type_ != SearchType::Memo || engine_ == Engine::Jet; }

AtomParser::Found AtomParser::compared_text(Comparison comparison, TextView operand) const {
  if (is_equality(comparison)) {
    const bool negation = comparison == Comparison::Different;
    if (const auto like = like_operand(operand); like && negation) {
      auto found = pattern(*like);
      return found ? std::optional(negated(*found)) : std::nullopt;
    }
    Operand value = Operand::read(operand);
    if (value.too_long()) return std::nullopt;
    if (!value.has_wildcard()) return one(CompareText{comparison, std::move(value)});
    if (value.only_stars()) return one(IsEmpty{!negation});
    return one(Like{negation, std::move(value)});
  }
  if (!can_be_compared()) return std::nullopt;
  Operand value = Operand::read(operand);
  const bool begins = value.drop_last_star();
  if (value.has_wildcard() || value.empty() || value.too_long()) return std::nullopt;
  if (!begins || comparison == Comparison::Less || comparison == Comparison::GreaterOrEqual) {
    return one(CompareText{comparison, std::move(value)});
  }
  if (comparison == Comparison::LessOrEqual) return one(CompareText{comparison, std::move(value), true});
  Operand all_that_begins = value;
  all_that_begins.append_wildcard(u'*');
  return Alternatives{{CompareText{comparison, std::move(value)}, Like{true, std::move(all_that_begins)}}};
}

AtomParser::Found AtomParser::compared_number(Comparison comparison, TextView operand) const {
  auto digits = number_digits(operand);
  return digits ? std::optional(one(CompareNumber{comparison, std::move(*digits)})) : std::nullopt;
}

// Years and months become a range of days, as the criterion shows them.
AtomParser::Found AtomParser::compared_date(Comparison comparison, TextView operand) const {
  const auto period = period_in(operand);
  if (!period) return std::nullopt;
  if (!period->whole_days || is_one_day(*period)) {
    return one(CompareDate{comparison, period->from, period->to, period->whole_days, period->with_seconds});
  }
  const auto day = [](Comparison how, Moment moment) { return CompareDate{how, moment, {moment.day + 1, 0}, true}; };
  const Moment first = period->from, last = day_before(period->to);
  switch (comparison) {
    case Comparison::Equal:
      return Alternatives{{day(Comparison::GreaterOrEqual, first), day(Comparison::LessOrEqual, last)}};
    case Comparison::Different:
      return Alternatives{{day(Comparison::Less, first)}, {day(Comparison::Greater, last)}, {IsNull{false}}};
    case Comparison::Less:
    case Comparison::GreaterOrEqual: return one(day(comparison, first));
    default: return one(day(comparison, last));
  }
}

AtomParser::Found AtomParser::compared_truth(Comparison comparison, TextView operand) const {
  const auto truth = truth_in(operand);
  if (!truth || !is_equality(comparison)) return std::nullopt;
  return one(CompareTruth{comparison == Comparison::Different, *truth});
}

AtomParser::Found AtomParser::pattern(TextView operand) const {
  Operand value = Operand::read(operand, true);
  if (!value.given() || value.too_long()) return std::nullopt;
  if (value.empty()) return one(IsEmpty{false});
  return one(value.only_stars() ? Atom(IsEmpty{true}) : Atom(Like{false, std::move(value)}));
}

// Without wildcards each word is searched anywhere in the text; with one the operand is a single pattern.
AtomParser::Found AtomParser::words(TextView text) const {
  Operand value = Operand::read(text);
  if (value.empty() || value.too_long()) return std::nullopt;
  if (value.has_wildcard()) return one(Like{false, std::move(value)});
  Alternative all;
  for (Operand& word : value.words()) {
    word.prepend_star();
    word.append_wildcard(u'*');
    all.push_back(Like{false, std::move(word)});
  }
  return all.empty() ? std::nullopt : std::optional(Alternatives{std::move(all)});
}

}  // namespace qvr::query
