// The words and signs that a search understands, in all languages at once.
#pragma once

#include <optional>
#include <span>

#include "base/text.h"

namespace qvr::query {

// Types of columns that searches distinguish.
enum class SearchType { Text, Memo, Number, Date, Logical };
std::optional<SearchType> search_type(char16_t letter);
inline bool is_textual(SearchType type) { return type == SearchType::Text || type == SearchType::Memo; }

bool is_double_quote(char16_t unit);  // also the curly ones
bool is_single_quote(char16_t unit);

enum class Comparison { Equal, Different, Less, LessOrEqual, Greater, GreaterOrEqual };
TextView sign_of(Comparison comparison);

// The lengths below are those of what begins the text, 0 for none. Words count only as whole words.

struct FoundComparison {
  std::size_t length;
  Comparison comparison;
};
FoundComparison comparison_in(TextView text);

std::size_t or_word(TextView text);
std::size_t and_word(TextView text);
std::size_t not_word(TextView text);

// A phrase that tests or searches, and whether it negates: "is null", "is not null".
struct FoundPhrase {
  std::size_t length = 0;
  bool negated = false;
};
FoundPhrase null_phrase(TextView text);
FoundPhrase like_phrase(TextView text);  // also the word LIKE itself

bool is_null_word(TextView text);  // "nulo", "empty"...: not for text columns, where the word itself may be searched
std::optional<bool> truth_in(TextView text);
TextView truth_word(bool truth);  // in the thread's language, for criteria

// "from a to b": the word before the first end and those before the last one. An open range may do without a last end.
struct RangeWords {
  TextView from;
  bool open;
  std::span<const TextView> to;
};
struct FoundRange {
  std::size_t length = 0;
  const RangeWords* words = nullptr;
};
FoundRange range_word(TextView text);
std::size_t last_end_word(TextView text, const RangeWords& words);
std::size_t up_to_word(TextView text);  // "up to b", which has no first end

}  // namespace qvr::query
