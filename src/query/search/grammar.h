// Parses one piece of a search: a value, a comparison, a range, a pattern or a null test, possibly negated.
#pragma once

#include "base/engine.h"
#include "query/search/atoms.h"
#include "query/search/periods.h"

namespace qvr::query {

class AtomParser {
 public:
  AtomParser(SearchType type, Engine engine) : type_(type), engine_(engine) {}

  std::optional<Alternatives> parse(TextView piece) const;

 private:
  using Found = std::optional<Alternatives>;

  Found parse_positive(TextView text) const;
  Found nothing_or_something(TextView text) const;
  Found compared(Comparison comparison, TextView operand) const;
  Found compared_text(Comparison comparison, TextView operand) const;
  Found compared_number(Comparison comparison, TextView operand) const;
  Found compared_date(Comparison comparison, TextView operand) const;
  Found compared_truth(Comparison comparison, TextView operand) const;
  Found range(TextView text) const;
  bool has_two_ends(TextView text) const;
  Found between(TextView first, TextView last) const;
  Found between_texts(TextView first, TextView last) const;
  Found between_dates(TextView first, TextView last) const;
  Found pattern(TextView operand) const;
  Found words(TextView text) const;
  bool can_be_compared() const;

  SearchType type_;
  Engine engine_;
};

}  // namespace qvr::query
