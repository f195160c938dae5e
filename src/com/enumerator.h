// A standard COM enumerator over a copy of the items.
#pragma once

#include <algorithm>
#include <memory>
#include <vector>

#include "com/counted.h"

namespace qvr::com {

// `Traits` has: Interface, Item (of Next), Stored (in the copy), and `static Item give(const Stored&)`, which adds the
// caller's reference.
template <class Traits>
class Enumerator final : public Counted<typename Traits::Interface> {
 public:
  using Stored = typename Traits::Stored;
  using Items = std::shared_ptr<const std::vector<Stored>>;

  explicit Enumerator(Items items, std::size_t at = 0) : items_(std::move(items)), at_(at) {}

  STDMETHODIMP Next(ULONG wanted, typename Traits::Item* out, ULONG* given) noexcept override {
    if (out == nullptr || (given == nullptr && wanted != 1)) return E_POINTER;
    const auto count = std::min<std::size_t>(wanted, items_->size() - at_);
    for (std::size_t i = 0; i < count; ++i) out[i] = Traits::give((*items_)[at_ + i]);
    at_ += count;
    if (given != nullptr) *given = static_cast<ULONG>(count);
    return count == wanted ? S_OK : S_FALSE;
  }

  STDMETHODIMP Skip(ULONG wanted) noexcept override {
    const auto count = std::min<std::size_t>(wanted, items_->size() - at_);
    at_ += count;
    return count == wanted ? S_OK : S_FALSE;
  }

  STDMETHODIMP Reset() noexcept override {
    at_ = 0;
    return S_OK;
  }

  STDMETHODIMP Clone(typename Traits::Interface** copy) noexcept override {
    if (copy == nullptr) return E_POINTER;
    *copy = new (std::nothrow) Enumerator(items_, at_);
    return *copy != nullptr ? S_OK : E_OUTOFMEMORY;
  }

 private:
  Items items_;
  std::size_t at_;
};

}  // namespace qvr::com
