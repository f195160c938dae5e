// The syntax tree of a search: alternatives of atoms.
#pragma once

#include <optional>
#include <variant>
#include <vector>

#include "query/search/dates.h"
#include "query/search/keywords.h"
#include "query/search/operand.h"

namespace qvr::query {

struct IsNull {};
struct IsEmpty {};  // an empty text or null
struct IsTrue {
  bool truth;
};
struct Like {
  Operand pattern;
};
// What is compared is never different from the value: that is the negation of equal.
struct CompareText {
  Comparison comparison;
  Operand operand;                    // without wildcards
  bool with_all_that_begins = false;  // at most or greater: what begins with the value counts as the value
};
struct CompareNumber {
  Comparison comparison;
  Text digits;  // with "." and "-"
};
struct CompareDate {
  Comparison comparison;
  Period period;  // a day, a minute or a second
};

using Test = std::variant<IsNull, IsEmpty, IsTrue, Like, CompareText, CompareNumber, CompareDate>;

// All tests hold; negated, one of them does not, or the value is null.
struct Atom {
  std::vector<Test> tests;
  bool negated = false;
};

// Disjunctive normal form: all atoms of one of the alternatives hold.
using Alternative = std::vector<Atom>;
using Alternatives = std::vector<Alternative>;

// At most this many connectors ("And", "Or") stand in a condition; Jet takes some more.
inline constexpr std::size_t kMostConnectors = 90;

Comparison opposite(Comparison comparison);

// Less, more, at least or at most; nothing for a test of another kind.
std::optional<Comparison> order_in(const Test& test);

// A negated atom as alternatives that are not negated, but for single tests whose negation is a test as well ("<>",
// NOT LIKE, Is Not Null).
Alternatives expanded(Atom atom);

}  // namespace qvr::query
