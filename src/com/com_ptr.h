// A reference to a COM object. Our own because the one that the compiler ships adds a reference in Attach.
#pragma once

#include <windows.h>

#include <unknwn.h>

#include <utility>

namespace qvr::com {

// What is there while code of the object runs; nothing for objects of the library and of the system.
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

  // For an out-parameter: lets go of what was held.
  I** operator&() noexcept {
    Reset();
    return &object_;
  }
  // Takes over the caller's reference.
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
  // The object's other interface.
  template <class Other>
  HRESULT As(Other** other) const noexcept {
    [[maybe_unused]] const Around around;
    return object_->QueryInterface(__uuidof(Other), reinterpret_cast<void**>(other));
  }

 private:
  I* object_ = nullptr;
};

}  // namespace qvr::com
