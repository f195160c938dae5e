// Arrays as hosts create them.
#pragma once

#include "automation/variant_list.h"

namespace qvr::tests {

// An array of variants, or of a type that the items are converted to.
Var array_of(const std::vector<Var>& items, LONG lower = 0, VARTYPE type = VT_VARIANT);

// Two dimensions.
Var square_array();

// An array variable without dimensions (Dim a() in Visual Basic).
Var no_array(VARTYPE type = VT_VARIANT);

// An array after SafeArrayDestroyData.
Var hollow_array(VARTYPE type, ULONG count);

// Locked by the caller, as by SafeArrayAccessData.
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
