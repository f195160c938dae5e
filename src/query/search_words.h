// The words that a search understands, in all languages at once.
#pragma once

#include <optional>
#include <span>

#include "base/text.h"

namespace qvr::query {

// Types of columns that searches tell apart.
enum class SearchType { Text, Memo, Number, Date, Logical };
std::optional<SearchType> search_type(char16_t letter);
inline bool is_textual(SearchType type) { return type == SearchType::Text || type == SearchType::Memo; }

std::span<const TextView> or_words();
std::span<const TextView> and_words();
std::span<const TextView> not_words();
std::span<const TextView> between_words();  // what begins a range whose ends are joined by an "and"

// "from a to b": the word before the first end and those before the second.
struct RangeWords {
  TextView from;
  std::span<const TextView> to;
};
std::span<const RangeWords> range_words();

// The length of a null or LIKE phrase that the text begins with as whole words; 0 for none. LIKE phrases leave the word
// LIKE itself out.
std::size_t null_phrase(TextView text);
std::size_t like_phrase(TextView text);

bool is_null_word(TextView text);  // "nulo", "empty"...: only where no text can be meant
std::optional<bool> truth_in(TextView text);

// Days from today: "hoy" 0, "yesterday" -1; with the length of the word.
struct DayWord {
  std::size_t length;
  int days;
};
std::optional<DayWord> day_word(TextView text);

// The words for true and false in the thread's language, as a criterion shows them.
TextView truth_word(bool truth);

}  // namespace qvr::query
