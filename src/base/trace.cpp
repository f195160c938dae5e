#include "base/trace.h"

#include <array>
#include <atomic>
#include <charconv>

namespace qvr {
namespace {

constexpr std::size_t kLongestDescription = 300;  // leaves room for the place

std::atomic<TraceSink> current_sink = nullptr;

class Line {
 public:
  void add(const auto&... pieces) { (append(pieces), ...); }
  TextView text() const { return {room_.data(), size_}; }

 private:
  // Line breaks become blanks: one failure, one line.
  void append(auto text) {
    text = text.substr(0, room_.size() - size_);
    for (const auto unit : text) room_[size_++] = unit < u' ' ? u' ' : static_cast<char16_t>(unit);
  }
  void append(std::int32_t number) {
    std::array<char, 16> digits;
    const char* const end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    append(std::string_view(digits.data(), static_cast<std::size_t>(end - digits.data())));
  }

  std::array<char16_t, 600> room_;
  std::size_t size_ = 0;
};

// The file with its folder, which tells the files of windows/ and posix/ apart.
std::string_view short_name(std::string_view file) {
  const std::size_t name = file.rfind('/');
  const std::size_t folder = name == std::string_view::npos || name == 0 ? name : file.rfind('/', name - 1);
  return folder == std::string_view::npos ? file : file.substr(folder + 1);
}

}  // namespace

TraceSink set_trace_sink(TraceSink sink) noexcept { return current_sink.exchange(sink); }

void trace(const TracedFailure& failure) noexcept {
  const TraceSink sink = current_sink;
  if (sink == nullptr) return;
  using namespace std::string_view_literals;
  Line line;
  line.add(failure.owner, failure.owner.empty() ? ""sv : "."sv, failure.member, ": "sv, failure.number, " "sv,
           failure.description.substr(0, kLongestDescription), " ("sv, short_name(failure.place.file), ":"sv,
           failure.place.line, ")"sv);
  sink(line.text());
}

}  // namespace qvr
