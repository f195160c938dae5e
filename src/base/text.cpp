#include "base/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <iterator>

#include "base/fold_table.h"

namespace qvr {

namespace {

char16_t fold_beyond_ascii(char16_t unit) {
  const auto* run = std::upper_bound(std::begin(kFoldRuns), std::end(kFoldRuns), unit,
                                     [](char16_t value, const FoldRun& r) { return value < r.first; });
  if (run == std::begin(kFoldRuns)) return unit;
  --run;
  if (unit > run->last || (unit - run->first) % run->stride != 0) return unit;
  return static_cast<char16_t>(unit + run->shift);
}

}  // namespace

char16_t fold(char16_t unit) {
  if (unit >= 0x80) return fold_beyond_ascii(unit);
  return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - 0x20) : unit;
}

bool equal_no_case(TextView a, TextView b) {
  return a.size() == b.size() &&
         std::equal(a.begin(), a.end(), b.begin(), [](char16_t x, char16_t y) { return x == y || fold(x) == fold(y); });
}

bool starts_with_no_case(TextView text, TextView prefix) {
  return text.size() >= prefix.size() && equal_no_case(text.substr(0, prefix.size()), prefix);
}

bool less_no_case(TextView a, TextView b) { return std::ranges::lexicographical_compare(a, b, {}, fold, fold); }

namespace {

// `find(from)` gives the next occurrence of `what`.
template <class Find>
Text replaced(TextView text, TextView what, TextView by, std::size_t* position, Find&& find) {
  std::size_t count = 0;
  for (std::size_t at = find(0); at != TextView::npos; ++count) at = find(at + what.size());
  Text result;
  result.reserve(text.size() - count * what.size() + count * by.size());
  std::size_t from = 0, place = position != nullptr ? *position : 0;
  for (std::size_t at = find(0); at != TextView::npos; at = find(from)) {
    result.append(text, from, at - from);
    // A position inside a replaced piece moves behind the first unit of its replacement.
    if (position != nullptr && *position > at) {
      place = *position < at + what.size() ? result.size() + 1 : place + by.size() - what.size();
    }
    result.append(by);
    from = at + what.size();
  }
  result.append(text, from);
  if (position != nullptr) *position = place;
  return result;
}

// Boyer-Moore-Horspool: most of a script is skipped.
class FoldedSearch {
 public:
  explicit FoldedSearch(TextView what) : what_(what) {
    const std::size_t seen = std::min<std::size_t>(what.size(), UINT8_MAX);
    strides_.fill(static_cast<std::uint8_t>(seen));
    for (std::size_t left = seen; left > 1; --left) {
      strides_[fold(what[what.size() - left]) & 0xFF] = static_cast<std::uint8_t>(left - 1);
    }
  }

  std::size_t find(TextView text, std::size_t from) const {
    const std::size_t size = what_.size();
    if (size == 0) return TextView::npos;
    const char16_t last = fold(what_.back());
    for (std::size_t end = from + size; end <= text.size();) {
      const char16_t unit = fold(text[end - 1]);
      if (unit == last && equal_no_case(text.substr(end - size, size), what_)) return end - size;
      end += strides_[unit & 0xFF];
    }
    return TextView::npos;
  }

 private:
  TextView what_;
  // How far the end of the window moves when its last unit has this low byte.
  std::array<std::uint8_t, 256> strides_;
};

}  // namespace

Text replace_all(TextView text, TextView what, TextView by, std::size_t* position) {
  return replaced(text, what, by, position,
                  [&](std::size_t from) { return what.empty() ? TextView::npos : text.find(what, from); });
}

Text replace_all_no_case(TextView text, TextView what, TextView by, std::size_t* position) {
  const FoldedSearch search(what);
  return replaced(text, what, by, position, [&](std::size_t from) { return search.find(text, from); });
}

std::size_t find_no_case(TextView text, TextView what, std::size_t from) { return FoldedSearch(what).find(text, from); }

TextView trimmed(TextView text, TextView blanks) {
  const std::size_t first = text.find_first_not_of(blanks);
  return first == TextView::npos ? TextView() : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool all_digits(TextView text) { return !text.empty() && std::ranges::all_of(text, is_digit); }

Text decimal(std::int64_t number) {
  char digits[20];  // enough for the smallest number with its sign
  const auto written = std::to_chars(std::begin(digits), std::end(digits), number);
  return Text(digits, written.ptr);
}

Text padded(int number, std::size_t width) {
  Text digits = decimal(number);
  if (digits.size() < width) digits.insert(0, width - digits.size(), u'0');
  return digits;
}

Text hexadecimal(std::uint32_t number, std::size_t width, TextView digits) {
  Text written(width, u'0');
  for (; width > 0; number >>= 4) written[--width] = digits[number & 15];
  return written;
}

Text join(std::initializer_list<TextView> pieces) {
  std::size_t size = 0;
  for (TextView piece : pieces) size += piece.size();
  Text result;
  result.reserve(size);
  for (const TextView piece : pieces) {
    if (!piece.empty()) result.append(piece);  // many clauses of a statement are empty
  }
  return result;
}

Text join(std::span<const Text> pieces, TextView between) {
  std::size_t size = 0;
  for (const Text& piece : pieces) size += piece.size() + between.size();
  Text result;
  result.reserve(size);
  for (const Text& piece : pieces) {
    if (&piece != pieces.data()) result += between;
    result += piece;
  }
  return result;
}

std::vector<TextView> split(TextView text, TextView separator) {
  std::vector<TextView> pieces;
  std::size_t from = 0;
  for (auto at = text.find(separator); at != TextView::npos; at = text.find(separator, from)) {
    pieces.push_back(text.substr(from, at - from));
    from = at + separator.size();
  }
  pieces.push_back(text.substr(from));
  return pieces;
}

// Not by way of the whole text in one line: it may be a command of millions of characters.
Text abbreviate_for_display(TextView text) {
  constexpr std::size_t kLongest = 500, kPart = 250;
  if (text.size() <= kLongest) return Text(text);
  // A line break of two units becomes one blank, and one is perhaps parted where the piece is cut off.
  constexpr std::size_t kPiece = 2 * kPart + 1;
  const Text head = replace_all(text.substr(0, kPiece), kLineBreak, u" "),
             tail = replace_all(text.substr(text.size() - kPiece), kLineBreak, u" ");
  return join({TextView(head).substr(0, kPart), u"\r\n\r\n...\r\n\r\n", TextView(tail).substr(tail.size() - kPart)});
}

void wipe(Text& text) noexcept {
  text.resize(text.capacity());
  wipe_memory(text.data(), text.size() * sizeof(char16_t));
  text.clear();
}

// The assembly reads the zeros as far as the compiler knows, which would leave out stores to memory that is freed.
void wipe_memory(void* memory, std::size_t bytes) noexcept {
  if (bytes != 0) std::memset(memory, 0, bytes);
  asm volatile("" : : "r"(memory) : "memory");
}

}  // namespace qvr
