// main() of a benchmark: the library's work and the same done by hand, by the clock.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace qvr::bench {

// Ends the program when the work failed: its time would mean nothing.
inline void require(bool succeeded, const char* what) {
  if (succeeded) return;
  std::fprintf(stderr, "the benchmark failed: %s\n", what);
  std::exit(1);
}

inline int beside(const std::string& what, void (*library)(benchmark::State&), void (*by_hand)(benchmark::State&),
                  int count, char** arguments) {
  benchmark::RegisterBenchmark((what + "/library").c_str(), library)->UseRealTime();
  benchmark::RegisterBenchmark((what + "/by_hand").c_str(), by_hand)->UseRealTime();
  benchmark::Initialize(&count, arguments);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

}  // namespace qvr::bench
