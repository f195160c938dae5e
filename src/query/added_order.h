// An order made by clicks on columns.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "base/text.h"

namespace qvr::query {

class AddedOrder {
 public:
  bool empty() const { return clicks_.empty(); }
  void clear() noexcept { clicks_.clear(); }

  // Another click: on the column clicked last it turns the direction round, on any other it makes that column the
  // first.
  void click(std::int16_t column, bool ascending_at_first);

  // "2 DESC,5": positions in the select list, the last clicked first.
  Text list() const;

  // "5,-2": columns as they were clicked, descending ones negative; and back, nothing for what is no such text or names
  // a column beyond the last.
  Text clicks() const;
  static std::optional<AddedOrder> from_clicks(TextView text, std::size_t columns);

 private:
  struct Click {
    std::int16_t column;
    bool ascending;
  };

  // One for each column: an older click has no effect left.
  std::vector<Click> clicks_;
};

}  // namespace qvr::query
