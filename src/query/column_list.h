// The columns of a query, by their names in the record set.
#pragma once

#include <cstdint>
#include <vector>

#include "base/engine.h"
#include "base/value.h"

namespace qvr::query {

// One column; views into the list, valid until the list changes.
struct Column {
  TextView expression;
  TextView type;       // one letter, or empty
  TextView field;      // name in the record set
  bool named = false;  // the statement has an alias for it
};

class ColumnList {
 public:
  // From pairs of (expression, descriptor): the descriptor's first letter is the type; "+" behind it takes the field
  // name from the expression, behind its last ".", ">" precedes an explicit name. Throws for any other list.
  static ColumnList from_pairs(const Value& pairs);

  void add(const Column& column);

  std::size_t size() const { return columns_.size(); }
  Column operator[](std::size_t index) const;
  // The column at this position, from 1; throws failure 9 out of range.
  Column at(std::int64_t position) const;
  // The position, from 1, of the first column with this field name, without regard to case; 0 for none.
  std::size_t position_of(TextView field) const;

  // Appends the select list.
  void append_select_list(Text& list, Engine engine) const;
  // The first columns as the list of GROUP BY. Throws failure 9 when there are fewer.
  Text group_list(std::size_t count) const;

 private:
  // Expression, type and name of a column are adjacent in the block.
  struct Place {
    std::size_t expression, type, field, end;
    bool named;
  };

  TextView between(std::size_t from, std::size_t to) const { return TextView(texts_).substr(from, to - from); }

  // All texts in one block, so that the number of allocations does not grow with the number of columns.
  Text texts_;
  std::vector<Place> columns_;
};

}  // namespace qvr::query
