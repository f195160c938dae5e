// main() of the benchmarks: the first one is the baseline of the others.
#pragma once

#include <benchmark/benchmark.h>

#include <vector>

namespace qvr::bench {

inline benchmark::internal::Benchmark* registered(const char* name, void (*run)(benchmark::State&),
                                                  const std::vector<std::int64_t>& arguments = {}) {
  auto* const added = benchmark::RegisterBenchmark(name, run);
  for (const std::int64_t each : arguments) added->Arg(each);
  return added;
}

inline void run_all(int count, char** arguments) {
  benchmark::Initialize(&count, arguments);
  benchmark::RunSpecifiedBenchmarks();
}

}  // namespace qvr::bench
