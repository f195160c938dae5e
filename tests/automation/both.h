// Early and late: the same member called through its slot and through Invoke, with both results compared.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "QVRlib21.h"
#include "automation/host.h"

namespace qvr::tests {

// What a slot gave, as a variant of the type that the late-bound call must give.
inline Var early_result(Bstr& result) { return Var(result.text()); }
inline Var early_result(VARIANT_BOOL result) {
  Var var(true);
  var.raw().boolVal = result;
  return var;
}
inline Var early_result(long result) { return Var(static_cast<int>(result)); }

// One row: a member's late-bound call and, in words, what its slot gave.
inline void expect_same(const LateAnswer& late, HRESULT early_status, const Var& early, const std::string& expected) {
  EXPECT_EQ(early_status, S_OK);
  EXPECT_EQ(late.result, S_OK);
  EXPECT_EQ(describe(early.raw()), expected) << "early-bound";
  EXPECT_EQ(describe(late.value.raw()), expected) << "late-bound";
}

}  // namespace qvr::tests
