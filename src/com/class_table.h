// The creatable classes: one table for class objects, registration and unregistration.
#pragma once

#include <span>

#include "base/text.h"
#include "com/com.h"

namespace qvr::com {

struct ClassRow {
  const CLSID& id;
  TextView name;                               // the program id is the library's name, ".", this
  HRESULT (*create)(REFIID id, void** found);  // creates an object and returns this interface; throws
};

std::span<const ClassRow> class_table();

// For the trace; empty for an id that is not in the table.
TextView class_name(REFCLSID id) noexcept;

}  // namespace qvr::com
