// The creatable classes: one table for class objects, registration and unregistration.
#pragma once

#include <span>

#include "com/com.h"

namespace qvr::com {

struct ClassRow {
  const CLSID& id;
  const wchar_t* name;                         // the program id is the library's name, ".", this
  HRESULT (*create)(REFIID id, void** found);  // creates an object and returns this interface; throws
};

std::span<const ClassRow> class_table();

}  // namespace qvr::com
