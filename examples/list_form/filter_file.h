// The filters that a user keeps, in a file beside the connection file.
#pragma once

#include <string>
#include <vector>

#include "order_list.h"

namespace list_form {

class FilterFile {
 public:
  // Filters of another version of the list, or for another engine, are not offered.
  FilterFile(const std::wstring& folder, long engine);

  const std::vector<Filter>& filters() const { return filters_; }
  // In place of the one with that name, if there is one.
  void keep(const Filter& filter);

 private:
  void write() const;

  std::wstring path_, heading_;
  std::vector<Filter> filters_;
};

}  // namespace list_form
