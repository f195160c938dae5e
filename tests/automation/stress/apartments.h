// Marshalling of objects to another apartment.
#pragma once

#include <functional>

#include "automation/host.h"

namespace qvr::tests {

// Gives the object through the standard marshaller to a new thread with an apartment of this kind, which uses it while
// this thread serves the calls. The result is that of handing over and taking the interface; `use` runs on the other
// thread and must make no assertions.
HRESULT hand_over(COINIT apartment, IUnknown& object, REFIID id, const std::function<void(IUnknown&)>& use);

template <class I>
HRESULT hand_over(COINIT apartment, IUnknown& object, const std::function<void(I&)>& use) {
  return hand_over(apartment, object, __uuidof(I), [&](IUnknown& proxy) { use(static_cast<I&>(proxy)); });
}

}  // namespace qvr::tests
