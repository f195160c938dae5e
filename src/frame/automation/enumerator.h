// A standard enumerator over items that were copied when it was made.
#pragma once

#include <algorithm>
#include <memory>
#include <vector>

#include "frame/automation/module.h"

namespace qvr::automation {

// `Traits` has: Interface, Item (what Next hands out), Stored (what is kept), `static Item give(const Stored&)` which
// adds the reference that the caller will own.
template <class Traits>
class Enumerator final : public Traits::Interface {
 public:
  using Stored = typename Traits::Stored;
  using Items = std::shared_ptr<const std::vector<Stored>>;

  explicit Enumerator(Items items, std::size_t at = 0) : items_(std::move(items)), at_(at) {}

  STDMETHODIMP QueryInterface(REFIID id, void** found) noexcept override {
    if (found == nullptr) return E_POINTER;
    *found = id == IID_IUnknown || id == __uuidof(typename Traits::Interface) ? this : nullptr;
    if (*found == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return static_cast<ULONG>(InterlockedIncrement(&count_)); }
  STDMETHODIMP_(ULONG) Release() noexcept override {
    const LONG left = InterlockedDecrement(&count_);
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
  }

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
  ~Enumerator() = default;

  Items items_;
  std::size_t at_;
  volatile LONG count_ = 1;
  ModuleLock lock_;
};

}  // namespace qvr::automation
