#include "dialect/lists.h"

#include "base/failure.h"

namespace qvr::dialect {

const Array& list_in(const Value& value) {
  const Array* list = value.as<Array>();
  if (list == nullptr) throw RuntimeFailure(failure_number::kTypeMismatch);
  if (list->dimensions != 1) throw CallerFailure(failure_number::kSubscript);
  return *list;
}

const Value& element_at(const Array& list, std::int64_t index) {
  const std::int64_t position = index - list.lower;
  if (position < 0 || position >= static_cast<std::int64_t>(list.items.size())) {
    throw CallerFailure(failure_number::kSubscript);
  }
  return list.items[static_cast<std::size_t>(position)];
}

}  // namespace qvr::dialect
