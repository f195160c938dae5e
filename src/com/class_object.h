// Class objects: what hands out new objects of a class.
#pragma once

#include "com/class_table.h"

namespace qvr::com {

// The class object's interface for the class with this id; CLASS_E_CLASSNOTAVAILABLE when it is none of ours.
HRESULT class_object(REFCLSID id, REFIID interface_id, void** found) noexcept;

}  // namespace qvr::com
