// Writes single-precision numbers as text and reads them back: all that there are, or every n-th. One argument, the
// step; 1 takes all.
#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <thread>
#include <vector>

#include "base/number_text.h"

namespace qvr::tests {
namespace {

struct Tally {
  std::uint64_t walked = 0, wrong = 0;
};

bool reads_back(float number) {
  const Text text = shortest_number(number);
  char narrow[64];
  if (text.empty() || text.size() > sizeof narrow) return false;
  const char* end = std::ranges::transform(text, narrow, [](char16_t unit) { return static_cast<char>(unit); }).out;
  float read = 0;
  const auto [stop, error] = std::from_chars(narrow, end, read);
  return error == std::errc() && stop == end && read == number;
}

// Every `step`-th bit pattern from `first` on, finite numbers only.
Tally walk(std::uint64_t first, std::uint64_t step) {
  Tally tally;
  for (std::uint64_t bits = first; bits <= UINT32_MAX; bits += step) {
    const auto number = std::bit_cast<float>(static_cast<std::uint32_t>(bits));
    if (!std::isfinite(number)) continue;
    ++tally.walked;
    if (reads_back(number)) continue;
    if (tally.wrong++ < 10) std::printf("bits %08x do not read back\n", static_cast<unsigned>(bits));
  }
  return tally;
}

Tally walk_on_all_cores(std::uint64_t step) {
  const std::uint64_t threads = std::max(1U, std::thread::hardware_concurrency());
  std::vector<Tally> tallies(threads);
  {
    std::vector<std::jthread> running;
    for (std::uint64_t i = 0; i < threads; ++i) {
      running.emplace_back([&tallies, i, step, threads] { tallies[i] = walk(i * step, step * threads); });
    }
  }
  Tally all;
  for (const Tally& tally : tallies) {
    all.walked += tally.walked;
    all.wrong += tally.wrong;
  }
  return all;
}

}  // namespace
}  // namespace qvr::tests

int main(int argc, char** argv) {
  const std::string_view argument = argc == 2 ? argv[1] : "";
  std::uint64_t step = 0;
  std::from_chars(argument.data(), argument.data() + argument.size(), step);
  if (step == 0 || step > UINT32_MAX) {
    std::fputs("usage: float_text_sweep <step>\n", stderr);
    return EXIT_FAILURE;
  }
  const auto [walked, wrong] = qvr::tests::walk_on_all_cores(step);
  std::printf("%llu numbers, %llu wrong\n", static_cast<unsigned long long>(walked),
              static_cast<unsigned long long>(wrong));
  return walked > 0 && wrong == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
