// Text as the contract counts it: UTF-16 code units.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace qvr {

using Text = std::u16string;
using TextView = std::u16string_view;

inline constexpr TextView kLineBreak = u"\r\n";

// The code unit's simple upper-case form: independent of the locale, the same on every platform.
char16_t fold(char16_t unit);

// Comparison without regard to case, by `fold`; the only one of the library.
bool equal_no_case(TextView a, TextView b);
bool starts_with_no_case(TextView text, TextView prefix);

// Every occurrence of `what`, left to right and exact in case, replaced by `by`. An empty `what` is found nowhere.
Text replace_all(TextView text, TextView what, TextView by);

// The number's decimal digits, with "-" in front of a negative one.
Text decimal(std::int64_t number);

// The pieces in order, in one allocation.
Text join(std::initializer_list<TextView> pieces);

// A text of at most 500 units as it stands; of a longer one the first and the last 250 units of its one-line form,
// so that a message box still fits on a screen.
Text abbreviate_for_display(TextView text);

// Overwrites the text's units and empties it; for keys and passwords.
void wipe(Text& text);

}  // namespace qvr
