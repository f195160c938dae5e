// Times by QueryPerformanceCounter, written as Google Benchmark's JSON.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <limits>
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

  // The library's work and the same done by hand, in turn, so that a busy moment meets both; of each the quickest round
  // counts, as noise only adds time. A round is this many calls. Each body ends the program when its work fails.
  template <class Library, class ByHand>
  void beside(const std::string& what, Library&& library, ByHand&& by_hand, int calls, int rounds) {
    in_turn(
        what, [&] { return time_of(library, calls); }, [&] { return time_of(by_hand, calls); }, rounds);
  }

  // The same for work on something that `make` makes for each round before the clock runs, and whose check() ends the
  // program after it has stopped.
  template <class Make, class Library, class ByHand>
  void beside_on(const std::string& what, Make&& make, Library&& library, ByHand&& by_hand, int rounds) {
    const auto time_on = [&](auto& body) {
      auto place = make();
      const double time = time_of([&] { body(place); }, 1);
      place.check();
      return time;
    };
    in_turn(
        what, [&] { return time_on(library); }, [&] { return time_on(by_hand); }, rounds);
  }

  // What is part of both.
  template <class Body>
  void alone(const std::string& what, Body&& body, int rounds) {
    double quickest = kNever;
    for (int round = 0; round < rounds; ++round) quickest = std::min(quickest, time_of(body, 1));
    add(what, "both", quickest);
  }

  // A time in seconds that was measured elsewhere.
  void add(const std::string& what, const std::string& whose, double seconds) {
    rows_.push_back("{\"name\": \"" + what + "/" + whose + "\", \"real_time\": " + std::to_string(seconds * 1e9) +
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
  static constexpr double kNever = std::numeric_limits<double>::max();

  template <class Library, class ByHand>
  void in_turn(const std::string& what, Library&& time_of_library, ByHand&& time_by_hand, int rounds) {
    double quickest = kNever, quickest_by_hand = kNever;
    for (int round = 0; round < rounds; ++round) {
      quickest_by_hand = std::min(quickest_by_hand, time_by_hand());
      quickest = std::min(quickest, time_of_library());
    }
    add(what, "library", quickest);
    add(what, "by_hand", quickest_by_hand);
  }

  template <class Body>
  static double time_of(Body&& body, int calls) {
    const double start = now();
    for (int i = 0; i < calls; ++i) body();
    return (now() - start) / calls;
  }

  std::vector<std::string> rows_;
};

}  // namespace qvr::bench
