#include "com/slot_call.h"

#include <array>
#include <utility>

namespace qvr::com {
namespace {

using Caller = HRESULT (*)(void* object, const void* slot, const Word* words);

template <std::size_t>
using WordAt = Word;

// The system's DispCallFunc allocates room for the arguments in every call; here the compiler knows how many there are.
template <std::size_t... At>
constexpr Caller caller_of(std::index_sequence<At...>) {
  return [](void* object, const void* slot, [[maybe_unused]] const Word* words) {
    using Slot = HRESULT(STDMETHODCALLTYPE*)(void*, WordAt<At>...);
    return reinterpret_cast<Slot>(const_cast<void*>(slot))(object, words[At]...);
  };
}

template <std::size_t... Counts>
constexpr std::array<Caller, sizeof...(Counts)> callers_of(std::index_sequence<Counts...>) {
  return {caller_of(std::make_index_sequence<Counts>())...};
}

constexpr auto kCallers = callers_of(std::make_index_sequence<kMostWords + 1>());

}  // namespace

std::optional<std::size_t> words_by_value(VARTYPE type) noexcept {
  switch (type) {
    // 64-bit callers pass the address of a copy of what is larger than a word.
    case VT_VARIANT: return sizeof(Word) == 4 ? sizeof(VARIANT) / sizeof(Word) : 1;
    case VT_I1:
    case VT_UI1:
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_ERROR:
    case VT_BSTR:
    case VT_DISPATCH:
    case VT_UNKNOWN: return 1;
    default: return std::nullopt;
  }
}

HRESULT call_slot(void* object, std::size_t offset, const Word* words, std::size_t count) noexcept {
  const void* const* const table = *static_cast<const void* const* const*>(object);
  return kCallers[count](object, table[offset / sizeof(void*)], words);
}

}  // namespace qvr::com
