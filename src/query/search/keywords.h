// The words that a search understands, in all languages at once.
#pragma once

#include <optional>
#include <span>

#include "base/text.h"

namespace qvr::query {

// Types of columns that searches distinguish.
enum class SearchType { Text, Memo, Number, Date, Logical };
std::optional<SearchType> search_type(char16_t letter);
inline bool is_textual(SearchType type) { return type == SearchType::Text || type == SearchType::Memo; }

std::span<const TextView> or_words();
std::span<const TextView> and_words();
std::span<const TextView> not_words();
std::span<const TextView> between_words();  // "between": begins a range whose ends are joined by "and"

// "from a to b": the word before the first end and those before the second.
struct RangeWords {
  TextView from;
  std::span<const TextView> to;
};
std::span<const RangeWords> range_words();

// The length of the null or LIKE phrase at the beginning of the text, whole words only; 0 for none. The word LIKE
// itself is not among the LIKE phrases.
std::size_t null_phrase(TextView text);
std::size_t like_phrase(TextView text);

bool is_null_word(TextView text);  // "nulo", "empty"...: not for text columns, where the word itself may be searched
std::optional<bool> truth_in(TextView text);

// Days from today ("hoy" 0, "yesterday" -1), and the length of the word.
struct DayWord {
  std::size_t length;
  int days;
};
std::optional<DayWord> day_word(TextView text);

// The words for true and false in the thread's language, for criteria.
TextView truth_word(bool truth);

}  // namespace qvr::query
