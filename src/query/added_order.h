// The order that a user builds by clicking column headers.
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

  // A click: on the first column of the order it reverses the direction, any other column becomes the first.
  void click(std::int16_t column, bool ascending_at_first);

  // "2 DESC,5": positions in the select list, the last clicked first.
  Text list() const;

  // "5,-2": columns in the order of the clicks, descending ones negative; and back, nothing for an invalid text or
  // column.
  Text clicks() const;
  static std::optional<AddedOrder> from_clicks(TextView text, std::size_t columns);

 private:
  struct Click {
    std::int16_t column;
    bool ascending;
  };

  // One click per column: earlier ones have no effect.
  std::vector<Click> clicks_;
};

}  // namespace qvr::query
