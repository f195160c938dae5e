// A call through an interface's slot whose signature is known at run time only.
#pragma once

#include <cstdint>
#include <optional>

#include "com/com.h"

namespace qvr::com {

// What an argument takes on the stack or in a register; some take several.
using Word = std::uintptr_t;

inline constexpr std::size_t kMostWords = 24;

// How many words an argument of this type takes by value; none for a type that is not passed in words alone.
std::optional<std::size_t> words_by_value(VARTYPE type) noexcept;

// Calls the slot at this offset with the object and the first `count` words.
HRESULT call_slot(void* object, std::size_t offset, const Word* words, std::size_t count) noexcept;

}  // namespace qvr::com
