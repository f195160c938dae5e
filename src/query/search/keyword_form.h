// Keywords are compared without regard to case and accents, as people type them.
#pragma once

#include "base/text.h"

namespace qvr::query {

// In upper case and without accents, whether they are part of a letter or follow it (combining marks); curly
// apostrophes become straight ones, and runs of blanks one blank.
Text keyword_form(TextView typed);

// The length of the beginning of the text that is the phrase in any form of typing it; 0 when it does not begin so.
std::size_t phrase_length(TextView text, TextView phrase);

inline bool is_phrase(TextView text, TextView phrase) {
  return !text.empty() && phrase_length(text, phrase) == text.size();
}

}  // namespace qvr::query
