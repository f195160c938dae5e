// The columns of a query, looked up by the name that they have in a record set.
#pragma once

#include <cstdint>
#include <vector>

#include "base/engine.h"
#include "base/value.h"

namespace qvr::query {

// One column; its texts are the list's and stand until the list changes.
struct Column {
  TextView expression;
  TextView type;       // one letter, or none
  TextView field;      // its name in a record set
  bool named = false;  // the statement gives it that name
};

class ColumnList {
 public:
  // From pairs of (expression, descriptor): the descriptor's first letter is the type; "+" behind it takes the field
  // name from behind the expression's last ".", ">" gives a name of its own. Throws for what is no such list.
  static ColumnList from_pairs(const Value& pairs);

  void add(const Column& column);

  std::size_t size() const { return columns_.size(); }
  Column operator[](std::size_t index) const;
  // The column at this position, from 1; throws failure 9.
  Column at(std::int64_t position) const;
  // The position, from 1, of the first column with this field name in any case; 0 for none.
  std::size_t position_of(TextView field) const;

  // Appends the columns as they follow "SELECT ".
  void append_select_list(Text& list, Engine engine) const;
  // The first columns as they follow "GROUP BY ". Throws failure 9 when there are fewer.
  Text group_list(std::size_t count) const;

 private:
  // A column's texts follow each other: its expression, its type, its name.
  struct Place {
    std::size_t expression, type, field, end;
    bool named;
  };

  TextView between(std::size_t from, std::size_t to) const { return TextView(texts_).substr(from, to - from); }

  // All texts in one block: a query is made in a few allocations, however many columns it has.
  Text texts_;
  std::vector<Place> columns_;
};

}  // namespace qvr::query
