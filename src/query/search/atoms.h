// The syntax tree of a search: alternatives of atoms.
#pragma once

#include <variant>
#include <vector>

#include "query/search/keywords.h"
#include "query/search/operand.h"

namespace qvr::query {

enum class Comparison { Equal, Different, Less, LessOrEqual, Greater, GreaterOrEqual };
TextView sign_of(Comparison comparison);

// A point in time to the second; days as in Date.
struct Moment {
  std::int32_t day = 0, second = 0;
  auto operator<=>(const Moment&) const = default;
};

struct IsNull {
  bool negated;
};
struct IsEmpty {  // an empty text or null
  bool negated;
};
struct CompareText {
  Comparison comparison;
  Operand operand;                  // without wildcards
  bool and_what_begins_so = false;  // an upper bound that includes texts that begin with it
};
struct Like {
  bool negated;
  Operand pattern;
};
struct CompareNumber {
  Comparison comparison;
  Text digits;  // with "." and "-"
};
// The half-open interval from `from` to `to`: a day, a minute or a second.
struct CompareDate {
  Comparison comparison;
  Moment from, to;
  bool whole_day;
  bool with_seconds = false;
};
struct CompareTruth {
  bool negated;  // null counts as different
  bool truth;
};

using Atom = std::variant<IsNull, IsEmpty, CompareText, Like, CompareNumber, CompareDate, CompareTruth>;

// Disjunctive normal form: all atoms of one of the alternatives hold.
using Alternative = std::vector<Atom>;
using Alternatives = std::vector<Alternative>;

// The negation of the alternatives; null fulfils it.
Alternatives negated(const Alternatives& alternatives);

}  // namespace qvr::query
