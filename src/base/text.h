// Text in UTF-16; lengths and positions are code units.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace qvr {

using Text = std::u16string;
using TextView = std::u16string_view;

inline constexpr TextView kLineBreak = u"\r\n";

// The code unit's simple upper-case form: independent of the locale, the same on every platform.
char16_t fold(char16_t unit);

// Case-insensitive comparison by `fold`, the only one of the library.
bool equal_no_case(TextView a, TextView b);
bool starts_with_no_case(TextView text, TextView prefix);
bool less_no_case(TextView a, TextView b);

// Replaces every occurrence of `what`, left to right, in one allocation; the first compares case-sensitively. An empty
// `what` does not occur. Adjusts a position in the text, if given.
Text replace_all(TextView text, TextView what, TextView by, std::size_t* position = nullptr);
Text replace_all_no_case(TextView text, TextView what, TextView by, std::size_t* position = nullptr);

// The first occurrence of `what`, case-insensitively; npos for none.
std::size_t find_no_case(TextView text, TextView what, std::size_t from = 0);

inline constexpr TextView kWhiteSpace = u" \t\r\n";

// Whether the text consists of blanks, or of these units, only.
inline bool is_blank(TextView text, TextView blanks = u" ") { return text.find_first_not_of(blanks) == TextView::npos; }

// Trims blanks, or these units, at both ends.
TextView trimmed(TextView text, TextView blanks = u" ");

// Without blanks, tabs and line ends at its end.
inline TextView without_white_end(TextView text) { return text.substr(0, text.find_last_not_of(kWhiteSpace) + 1); }

inline bool is_digit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }
bool all_digits(TextView text);  // at least one

// An ASCII letter.
inline bool is_ascii_letter(char16_t unit) { return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z'); }

// The number's decimal digits, with "-" in front of a negative one.
Text decimal(std::int64_t number);

// The number's digits, padded with leading zeros to this width.
Text padded(int number, std::size_t width);

// The number in hexadecimal, its last `width` digits.
Text hexadecimal(std::uint32_t number, std::size_t width, TextView digits = u"0123456789ABCDEF");

// Concatenates the pieces in one allocation.
Text join(std::initializer_list<TextView> pieces);
Text join(std::span<const Text> pieces, TextView between);

// What `write` gives for each of the items, one behind the other.
template <class Items, class Write>
Text joined(const Items& items, TextView between, Write write) {
  auto item = std::begin(items);
  if (item == std::end(items)) return {};
  Text text = write(*item);
  while (++item != std::end(items)) {
    text += between;
    text += write(*item);
  }
  return text;
}

// Splits at the separator; empty pieces are kept.
std::vector<TextView> split(TextView text, TextView separator);

// Shortens a text of more than 500 units to the first and the last 250 of its one-line form, so that a message box fits
// on the screen.
Text abbreviate_for_display(TextView text);

// Overwrites the text's whole capacity and clears it; for keys and passwords.
void wipe(Text& text) noexcept;
void wipe_memory(void* memory, std::size_t bytes) noexcept;

}  // namespace qvr
