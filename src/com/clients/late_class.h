// A class outside the library.
#pragma once

#include <optional>

#include "com/com.h"
#include "com/host_ptr.h"

namespace qvr::com {

// The CLSID of this ProgID; nothing when it is not registered.
std::optional<CLSID> registered_class(const wchar_t* program_id);

// Creates objects of the class that is registered under a ProgID when the first one is created. The class object is
// kept for the others: looking it up and loading it costs more than all calls of a short-lived object. What keeps a
// local server running meanwhile is the run's connection, so that the class object is not locked.
class LateClass {
 public:
  explicit LateClass(const wchar_t* program_id) : program_id_(program_id) {}

  // Throws failure 429 when that fails, and looks the class up anew for the next object.
  HostPtr<IDispatch> create();

 private:
  const wchar_t* program_id_;
  HostPtr<IClassFactory> class_object_;
};

}  // namespace qvr::com
