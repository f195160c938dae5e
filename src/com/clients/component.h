// A registered component of the application family.
#pragma once

#include "com/clients/late_object.h"

namespace qvr::com {

// Kept by a thread until its apartment ends: the services of the thread are let go then, so that the component is
// released while COM still works. In a thread that ends without CoUninitialize the reference stays, and the debug
// output tells it.
class Component {
 public:
  // Throws failure 429 when the component cannot be created.
  static Component create(const wchar_t* program_id);

  Component(Component&&) noexcept = default;
  ~Component();

  const LateObject* operator->() const noexcept { return &object_; }

 private:
  Component(const wchar_t* program_id, LateObject object) : program_id_(program_id), object_(std::move(object)) {}

  const wchar_t* program_id_;
  LateObject object_;
};

}  // namespace qvr::com
