// A smart pointer to a COM object. Our own, as mingw-w64's ComPtr adds a reference in Attach.
#pragma once

#include <windows.h>

#include <unknwn.h>

#include <utility>

namespace qvr::com {

// Guard during calls of the object; empty for objects of the library and of the system.
struct AsItIs {};

template <class I, class Around = AsItIs>
class ComPtr {
 public:
  ComPtr() = default;
  explicit ComPtr(I* object) noexcept : object_(object) {
    if (object_ == nullptr) return;
    [[maybe_unused]] const Around around;
    object_->AddRef();
  }
  ComPtr(const ComPtr& other) noexcept : ComPtr(other.object_) {}
  ComPtr(ComPtr&& other) noexcept : object_(other.Detach()) {}
  ~ComPtr() { Reset(); }
  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }

  I* Get() const noexcept { return object_; }
  I* operator->() const noexcept { return object_; }
  explicit operator bool() const noexcept { return object_ != nullptr; }

  // For an out parameter: releases the pointer that was held.
  I** operator&() noexcept {
    Reset();
    return &object_;
  }
  // Takes ownership without AddRef.
  void Attach(I* object) noexcept {
    Reset();
    object_ = object;
  }
  I* Detach() noexcept { return std::exchange(object_, nullptr); }
  void Reset() noexcept {
    I* const object = Detach();
    if (object == nullptr) return;
    [[maybe_unused]] const Around around;
    object->Release();
  }
  // QueryInterface.
  template <class Other>
  HRESULT As(Other** other) const noexcept {
    [[maybe_unused]] const Around around;
    return object_->QueryInterface(__uuidof(Other), reinterpret_cast<void**>(other));
  }

 private:
  I* object_ = nullptr;
};

}  // namespace qvr::com
