// Text as the contract counts it: UTF-16 code units.
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

// Comparison without regard to case, by `fold`; the only one of the library.
bool equal_no_case(TextView a, TextView b);
bool starts_with_no_case(TextView text, TextView prefix);
bool less_no_case(TextView a, TextView b);

// Every occurrence of `what`, left to right and exact in case, replaced by `by`. An empty `what` is found nowhere.
Text replace_all(TextView text, TextView what, TextView by);

// The same without regard to case, in one allocation. A position in the text that is given along stays at its place
// between the same pieces.
Text replace_all_no_case(TextView text, TextView what, TextView by, std::size_t* position = nullptr);

// Where `what` first occurs in any case; npos for nowhere.
std::size_t find_no_case(TextView text, TextView what, std::size_t from = 0);

inline constexpr TextView kWhiteSpace = u" \t\r\n";

// Whether it has nothing but blanks, or but these units.
inline bool is_blank(TextView text, TextView blanks = u" ") { return text.find_first_not_of(blanks) == TextView::npos; }

// Without the blanks, or these units, at both ends.
TextView trimmed(TextView text, TextView blanks = u" ");

inline bool is_digit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }
bool all_digits(TextView text);  // of one at least

// A letter of the alphabet of 26 in either case.
inline bool is_ascii_letter(char16_t unit) { return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z'); }

// The number's decimal digits, with "-" in front of a negative one.
Text decimal(std::int64_t number);

// The number's digits, with zeros in front up to this width.
Text padded(int number, std::size_t width);

// The number's last digits to the base of 16, as many as the width says.
Text hexadecimal(std::uint32_t number, std::size_t width, TextView digits = u"0123456789ABCDEF");

// The pieces in order, in one allocation.
Text join(std::initializer_list<TextView> pieces);
Text join(std::span<const Text> pieces, TextView between);

// The pieces between the separators, empty ones kept.
std::vector<TextView> split(TextView text, TextView separator);

// A text of at most 500 units as it stands; of a longer one the first and the last 250 units of its one-line form,
// so that a message box still fits on a screen.
Text abbreviate_for_display(TextView text);

// Overwrites all of the text's memory, what longer texts left in it too, and empties it; for keys and passwords.
void wipe(Text& text) noexcept;

}  // namespace qvr
