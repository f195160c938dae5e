// The classes that can be created by identifier.
#pragma once

#include <span>

#include "support/ado/com/dispatch_object.h"

namespace qvr::tests::com {

struct Class {
  GUID id;
  TextView name;      // after "ADODB."
  TextView creation;  // as the operation is called in the log
  Ref<DispatchObject> (*create)();
};

std::span<const Class> classes();

}  // namespace qvr::tests::com
