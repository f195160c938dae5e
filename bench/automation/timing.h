// Times by QueryPerformanceCounter, written as Google Benchmark's JSON.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace qvr::bench {

class Times {
 public:
  // The state of most hosts: x87 at 53 bits, as Windows starts threads. mingw-w64's start-up code sets 64 bits.
  Times() {
    const unsigned short as_windows_starts = 0x027F;
    asm volatile("fldcw %0" : : "m"(as_windows_starts));
  }

  // The minimum over some rounds, as noise only adds time.
  template <class Body>
  void take(const std::string& what, const std::string& argument, Body&& body, int calls, int rounds = 15) {
    for (int i = 0; i < calls / 10; ++i) body();
    double best = 1e300;
    for (int round = 0; round < rounds; ++round) {
      const double start = now();
      for (int i = 0; i < calls; ++i) body();
      best = std::min(best, (now() - start) / calls);
    }
    rows_.push_back("{\"name\": \"" + what + "/" + argument + "\", \"cpu_time\": " + std::to_string(best * 1e9) +
                    ", \"time_unit\": \"ns\"}");
  }

  void print() const {
    std::printf("{\"benchmarks\": [");
    for (std::size_t i = 0; i < rows_.size(); ++i) std::printf("%s%s", i > 0 ? ",\n" : "", rows_[i].c_str());
    std::printf("]}\n");
  }

  // In seconds.
  static double now() {
    LARGE_INTEGER count, frequency;
    QueryPerformanceCounter(&count);
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
  }

 private:
  std::vector<std::string> rows_;
};

}  // namespace qvr::bench
