// The columns of a query, looked up by the name that they have in a record set.
#pragma once

#include <cstdint>
#include <vector>

#include "dialect/engine.h"
#include "frame/value.h"

namespace qvr::query {

struct Column {
  Text expression;
  Text type;   // one letter, or none
  Text field;  // its name in a record set
  bool named = false;  // the statement gives it that name
};

class ColumnList {
 public:
  // From pairs of (expression, descriptor): the descriptor's first letter is the type; "+" behind it takes the field
  // name from behind the expression's last ".", ">" gives a name of its own. Throws for what is no such list.
  static ColumnList from_pairs(const Value& pairs);

  void add(Column column) { columns_.push_back(std::move(column)); }

  std::size_t size() const { return columns_.size(); }
  const std::vector<Column>& all() const { return columns_; }
  // The column at this position, from 1; throws failure 9.
  const Column& at(std::int64_t position) const;
  // The position, from 1, of the first column with this field name in any case; 0 for none.
  std::size_t position_of(TextView field) const;

  // Appends the columns as they follow "SELECT ".
  void append_select_list(Text& list, const dialect::Engine& engine) const;
  // The first columns as they follow "GROUP BY ". Throws failure 9 when there are fewer.
  Text group_list(std::size_t count) const;

 private:
  std::vector<Column> columns_;
};

}  // namespace qvr::query
