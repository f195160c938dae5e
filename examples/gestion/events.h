// Listening to an object's events: what to listen to, and the names of the events, come from the object itself.
#pragma once

#include <ocidl.h>

#include <functional>
#include <string>

#include "automation.h"

namespace gestion {

using EventHandler = std::function<void(const std::wstring& event, const Value& argument)>;

// Listens to the first source of events that the object has, until the end of its life.
class Subscription {
 public:
  Subscription(const Object& source, EventHandler handler);
  ~Subscription();
  Subscription(const Subscription&) = delete;
  Subscription& operator=(const Subscription&) = delete;

 private:
  ComPtr<IConnectionPoint> point_;
  DWORD cookie_ = 0;
};

}  // namespace gestion
