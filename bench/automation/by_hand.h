// A host that does by hand, over late binding, what the library does for it.
#pragma once

#include <cstdio>
#include <cstdlib>

#include "automation/arrays.h"
#include "automation/host.h"

namespace qvr::bench {

// Ends the program when a call fails: its time would mean nothing.
inline void require(bool succeeded, const std::string& what) {
  if (succeeded) return;
  std::fprintf(stderr, "the benchmark failed: %s\n", what.c_str());
  std::exit(1);
}

inline void require(const tests::LateAnswer& answer) {
  require(SUCCEEDED(answer.result), tests::narrow(answer.description));
}

inline void require_true(const tests::LateAnswer& answer) {
  require(answer);
  require(answer.value.raw().boolVal == VARIANT_TRUE, "a member answered False");
}

}  // namespace qvr::bench
