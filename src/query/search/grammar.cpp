#include "query/search/grammar.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "query/search/dates.h"
#include "query/search/numbers.h"

namespace qvr::query {
namespace {

using Found = std::optional<Atom>;

// The tokens between two connectors, each in its place.
struct Term {
  bool negated = false;
  std::optional<Comparison> comparison;
  const Token* like = nullptr;
  const Token* from = nullptr;
  const Token* first = nullptr;  // the operand, or the first end of a range
  bool dots = false;
  const Token* last = nullptr;

  bool is_range() const { return dots || from != nullptr; }
};

Term term_of(std::span<const Token> tokens) {
  Term term;
  for (const Token& token : tokens) {
    switch (token.kind) {
      case TokenKind::Not: term.negated = true; break;
      case TokenKind::Comparison: term.comparison = token.comparison; break;
      case TokenKind::Like: term.like = &token; break;
      case TokenKind::From: term.from = &token; break;
      case TokenKind::Dots: term.dots = true; break;
      default: (term.dots ? term.last : term.first) = &token;
    }
  }
  return term;
}

// Also for a value without an operator.
bool is_equality(const Term& term) {
  return !term.comparison || *term.comparison == Comparison::Equal || *term.comparison == Comparison::Different;
}

bool is_different(const Term& term) { return term.comparison == Comparison::Different; }

Atom single(Test test, bool negated = false) {
  Atom atom{.tests = {}, .negated = negated};
  atom.tests.push_back(std::move(test));
  return atom;
}

Atom range_of(Test first, Test last) {
  Atom atom = single(std::move(first));
  atom.tests.push_back(std::move(last));
  return atom;
}

class Grammar {
 public:
  Grammar(SearchType type, Engine engine) : type_(type), engine_(engine) {}

  Found atom(std::span<const Token> tokens) {
    const Term term = term_of(tokens);
    Found found = positive(term);
    if (found && term.negated) found->negated = !found->negated;
    if (found && !found->negated && selects_nothing(found->tests.front())) return std::nullopt;
    return found;
  }

  // Before the first date that the engine can hold.
  bool selects_nothing(const Test& test) const {
    const auto* date = std::get_if<CompareDate>(&test);
    return date != nullptr && date->comparison == Comparison::Less && date->period.from <= first_moment(engine_);
  }

 private:
  Found positive(const Term& term) {
    if (Found found = nothing_or_something(term)) return found;
    const bool simple = term.first != nullptr && !term.is_range();
    if (is_textual(type_)) return text(term);
    if (type_ == SearchType::Logical) return simple ? truth(term) : std::nullopt;
    return simple ? compared(term.comparison.value_or(Comparison::Equal), *term.first) : range(term);
  }

  // Null tests, and "*" for any value.
  Found nothing_or_something(const Term& term) const {
    if (term.is_range() || term.like != nullptr || !is_equality(term)) return std::nullopt;
    const bool different = is_different(term);
    if (term.first == nullptr) return term.comparison ? Found(nothing(different)) : std::nullopt;
    const TextView text = term.first->text;
    const FoundPhrase null = null_phrase(text);
    const bool phrase = null.length == text.size() && (!null.negated || !is_textual(type_) || !term.comparison);
    if (phrase) return single(IsNull(), different != null.negated);
    if (!is_textual(type_)) {
      if (is_null_word(text) || text == u"\"\"" || text == u"''") return single(IsNull(), different);
      return text == u"*" && !term.comparison ? Found(nothing(true)) : std::nullopt;
    }
    const Operand& value = term.first->operand;
    if (value.only_stars()) return nothing(!different);
    return value.empty() ? Found(nothing(different)) : std::nullopt;
  }

  Atom nothing(bool negated) const {
    return is_textual(type_) ? single(IsEmpty(), negated) : single(IsNull(), negated);
  }

  Found text(const Term& term) const {
    if (term.first == nullptr) return std::nullopt;
    if (term.like != nullptr) return pattern(term.first->operand, term.like->negated != is_different(term));
    if (term.dots) return text_range(term.first->operand, term.last->operand);
    const Operand& value = term.first->operand;
    if (value.too_long()) return std::nullopt;
    if (!term.comparison) return words(value);
    if (!is_equality(term)) return ordered_text(*term.comparison, value);
    const bool different = is_different(term);
    return value.has_wildcard() ? single(Like{value}, different)
                                : single(CompareText{Comparison::Equal, value}, different);
  }

  static Found pattern(const Operand& value, bool negated) {
    if (value.too_long()) return std::nullopt;
    if (value.empty()) return single(IsEmpty(), negated);
    return value.only_stars() ? single(IsEmpty(), !negated) : single(Like{value}, negated);
  }

  // Without wildcards each word is searched anywhere in the text; with one the operand is a single pattern.
  static Found words(const Operand& value) {
    if (value.has_wildcard()) return single(Like{value});
    Atom all;
    for (Operand& word : value.words()) {
      word.prepend_star();
      word.append_wildcard(u'*');
      all.tests.emplace_back(Like{std::move(word)});
    }
    return all.tests.empty() ? std::nullopt : Found(std::move(all));
  }

  // SQL Server and Oracle support only LIKE on memos (text, CLOB).
  bool has_order() const { return type_ != SearchType::Memo || engine_ == Engine::Jet; }

  Found ordered_text(Comparison comparison, Operand value) const {
    const bool begins = value.drop_last_star() &&
                        (comparison == Comparison::LessOrEqual || comparison == Comparison::Greater);
    if (!has_order() || value.has_wildcard() || value.empty()) return std::nullopt;
    return single(CompareText{comparison, std::move(value), begins});
  }

  Found text_range(Operand lower, Operand upper) const {
    if (!has_order() || lower.too_long() || upper.too_long()) return std::nullopt;
    lower.drop_last_star();
    upper.drop_last_star();
    const auto folded_less = [](const Text& a, const Text& b) {
      return std::ranges::lexicographical_compare(a, b, {}, fold, fold);
    };
    // "martin..m" is not reversed: texts that begin with the upper bound are within the range.
    const bool reversed = folded_less(upper.text(), lower.text()) && !starts_with_no_case(lower.text(), upper.text());
    if (reversed) std::swap(lower, upper);
    return range_of(CompareText{Comparison::GreaterOrEqual, std::move(lower)},
                    CompareText{Comparison::LessOrEqual, std::move(upper), true});
  }

  Found truth(const Term& term) const {
    const auto truth = truth_in(term.first->text);
    return truth && is_equality(term) ? Found(single(IsTrue{*truth}, is_different(term))) : std::nullopt;
  }

  Found range(const Term& term) {
    const Token *first = term.first, *last = term.last;
    const bool whole = first != nullptr && last != nullptr;
    // In words a range has both ends, or is open on purpose.
    const bool told = term.from == nullptr || (first != nullptr && (term.dots ? last != nullptr : term.from->open));
    if (!told || !is_equality(term) || (first == nullptr && last == nullptr)) return std::nullopt;
    Found found = whole              ? between(*first, *last)
                  : first != nullptr ? compared(Comparison::GreaterOrEqual, *first)
                                     : compared(Comparison::LessOrEqual, *last);
    if (found && is_different(term)) found->negated = !found->negated;
    return found;
  }

  static bool is_too_long(const Token& token) { return token.text.size() > kLongestOperand; }

  Found compared(Comparison comparison, const Token& value) {
    if (is_too_long(value)) return std::nullopt;
    if (type_ == SearchType::Date) return compared_date(comparison, value);
    auto digits = number_digits(value.text);
    if (!digits) return std::nullopt;
    const bool different = comparison == Comparison::Different;
    return single(CompareNumber{different ? Comparison::Equal : comparison, std::move(*digits)}, different);
  }

  Found between(const Token& first, const Token& last) {
    if (is_too_long(first) || is_too_long(last)) return std::nullopt;
    if (type_ == SearchType::Date) return between_dates(first, last);
    auto lower = number_digits(first.text), upper = number_digits(last.text);
    if (!lower || !upper) return std::nullopt;
    if (is_greater_number(*lower, *upper)) std::swap(*lower, *upper);
    return range_of(CompareNumber{Comparison::GreaterOrEqual, std::move(*lower)},
                    CompareNumber{Comparison::LessOrEqual, std::move(*upper)});
  }

  Found compared_date(Comparison comparison, const Token& value) {
    const auto typed = period_in(value.text, today_);
    if (!typed) return std::nullopt;
    const Period period = within(engine_, *typed);
    switch (comparison) {
      case Comparison::Less:
      case Comparison::GreaterOrEqual: return single(CompareDate{comparison, first_unit(period)});
      case Comparison::LessOrEqual: return up_to(period);
      case Comparison::Greater: return behind(period);
      default: break;
    }
    Atom equal = is_one_unit(period) && !is_endless(period) ? single(CompareDate{Comparison::Equal, period})
                                                            : inside(period, period);
    equal.negated = comparison == Comparison::Different;
    return equal;
  }

  Atom up_to(const Period& period) const {
    if (is_endless(period)) return single(IsNull(), true);
    return is_empty(period) ? before_all(period) : single(CompareDate{Comparison::LessOrEqual, last_unit(period)});
  }

  static Found behind(const Period& period) {
    if (is_endless(period)) return std::nullopt;
    return is_empty(period) ? single(CompareDate{Comparison::GreaterOrEqual, first_unit(period)})
                            : single(CompareDate{Comparison::Greater, last_unit(period)});
  }

  static Atom inside(const Period& lower, const Period& upper) {
    if (is_empty(upper)) return before_all(upper);
    Test first = CompareDate{Comparison::GreaterOrEqual, first_unit(lower)};
    if (is_endless(upper)) return single(std::move(first));
    return range_of(std::move(first), CompareDate{Comparison::LessOrEqual, last_unit(upper)});
  }

  // Selects nothing.
  static Atom before_all(const Period& empty) { return single(CompareDate{Comparison::Less, first_unit(empty)}); }

  Found between_dates(const Token& first, const Token& last) {
    const auto a = period_in(first.text, today_), b = period_in(last.text, today_);
    if (!a || !b) return std::nullopt;
    // A day and its year overlap and are not reversed: the bounds are swapped only when the range would be empty.
    const bool reversed = a->from >= b->to;
    return inside(within(engine_, reversed ? *b : *a), within(engine_, reversed ? *a : *b));
  }

  SearchType type_;
  Engine engine_;
  Today today_;
};

// The tokens between two of a kind.
template <class Use>
bool for_each_part(std::span<const Token> tokens, TokenKind separator, Use use) {
  for (;;) {
    const auto end = std::ranges::find(tokens, separator, &Token::kind);
    if (!use(std::span(tokens.begin(), end))) return false;
    if (end == tokens.end()) return true;
    tokens = std::span(end + 1, tokens.end());
  }
}

// What one alternative of the search gives. Nothing is multiplied out: a negation among other conditions stays one
// atom.
std::optional<Alternatives> parse_alternative(std::span<const Token> tokens, Grammar& grammar) {
  Alternative all;
  const bool valid = for_each_part(tokens, TokenKind::And, [&](std::span<const Token> term) {
    Found atom = grammar.atom(term);
    if (atom) all.push_back(std::move(*atom));
    return atom && all.size() <= kMostConnectors + 1;
  });
  if (!valid) return std::nullopt;
  if (all.size() > 1) return Alternatives(1, std::move(all));
  Alternatives alone = expanded(std::move(all.front()));
  std::erase_if(alone, [&](const Alternative& one) {
    return !one.front().negated && grammar.selects_nothing(one.front().tests.front());
  });
  return alone;
}

}  // namespace

std::optional<Alternatives> parse_search(std::span<const Token> tokens, SearchType type, Engine engine) {
  if (tokens.size() > kMostTokens) return std::nullopt;
  Grammar grammar(type, engine);
  Alternatives found;
  const bool valid = for_each_part(tokens, TokenKind::Or, [&](std::span<const Token> alternative) {
    if (alternative.empty()) return true;  // nothing behind the last ";" or between two
    auto some = parse_alternative(alternative, grammar);
    if (some) std::ranges::move(*some, std::back_inserter(found));
    return some && found.size() <= kMostConnectors + 1;
  });
  return valid && !found.empty() ? std::optional(std::move(found)) : std::nullopt;
}

}  // namespace qvr::query
