// A search as it was understood.
#pragma once

#include <variant>
#include <vector>

#include "query/search_input.h"
#include "query/search_words.h"

namespace qvr::query {

enum class Comparison { Equal, Different, Less, LessOrEqual, Greater, GreaterOrEqual };
TextView sign_of(Comparison comparison);

// A moment to the second, days counted as in a Date.
struct Moment {
  std::int32_t day = 0, second = 0;
  auto operator<=>(const Moment&) const = default;
};

struct IsNull {
  bool negated;
};
struct IsEmpty {  // an empty text, or none
  bool negated;
};
struct CompareText {
  Comparison comparison;
  Operand operand;                  // without wildcards
  bool and_what_begins_so = false;  // an upper bound that includes all that begins with it
};
struct Like {
  bool negated;
  Operand pattern;
};
struct CompareNumber {
  Comparison comparison;
  Text digits;  // with "." and "-"
};
// Against all moments from `from` to before `to`: a day, a minute or a second.
struct CompareDate {
  Comparison comparison;
  Moment from, to;
  bool whole_day;
  bool with_seconds = false;
};
struct CompareTruth {
  bool negated;  // and then what is null belongs to it
  bool truth;
};

using Atom = std::variant<IsNull, IsEmpty, CompareText, Like, CompareNumber, CompareDate, CompareTruth>;

// All of an alternative must hold, one of the alternatives.
using Alternative = std::vector<Atom>;
using Alternatives = std::vector<Alternative>;

// What holds where none of the alternatives does; what is null belongs to it.
Alternatives negated(const Alternatives& alternatives);

}  // namespace qvr::query
