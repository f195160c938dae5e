// Class objects (IClassFactory).
#pragma once

#include "com/class_table.h"

namespace qvr::com {

// DllGetClassObject: CLASS_E_CLASSNOTAVAILABLE for an unknown CLSID.
HRESULT class_object(REFCLSID id, REFIID interface_id, void** found) noexcept;

}  // namespace qvr::com
