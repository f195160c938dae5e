// Arrays as hosts make them.
#pragma once

#include "automation/variant_list.h"

namespace qvr::tests {

// An array of variants, or of a type that the items are converted to.
Var array_of(const std::vector<Var>& items, LONG lower = 0, VARTYPE type = VT_VARIANT);

// Two rows of two.
Var square_array();

// A variable for an array that was never given bounds.
Var no_array(VARTYPE type = VT_VARIANT);

// An array with bounds whose elements were taken away.
Var hollow_array(VARTYPE type, ULONG count);

// Held by the caller as one does who looks at its elements.
class Locked {
 public:
  explicit Locked(const Var& array) : array_(array.raw().parray) { SafeArrayLock(array_); }
  ~Locked() { SafeArrayUnlock(array_); }
  Locked(const Locked&) = delete;
  Locked& operator=(const Locked&) = delete;

 private:
  SAFEARRAY* array_;
};

}  // namespace qvr::tests
