// Marshalling of objects to another apartment.
#pragma once

#include <functional>

#include "automation/host.h"

namespace qvr::tests {

// Runs the body on a new thread with an apartment of this kind, while this thread serves calls. The body must make no
// assertions: the test framework keeps something for every thread that makes one.
HRESULT run_in(COINIT apartment, const std::function<void()>& body);

// Gives the object through the standard marshaller to a such a thread. The result is that of handing over and taking
// the interface.
HRESULT hand_over(COINIT apartment, IUnknown& object, REFIID id, const std::function<void(IUnknown&)>& use);

template <class I>
HRESULT hand_over(COINIT apartment, IUnknown& object, const std::function<void(I&)>& use) {
  return hand_over(apartment, object, __uuidof(I), [&](IUnknown& proxy) { use(static_cast<I&>(proxy)); });
}

}  // namespace qvr::tests
