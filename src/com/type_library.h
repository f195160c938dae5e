// The library's own type information, loaded from its own module, not through the registry.
#pragma once

#include "com/com.h"

namespace qvr::com {

// The type library in resource 1 of the module. Throws when it cannot be read.
ComPtr<ITypeLib> own_type_library();

ComPtr<ITypeInfo> own_type_info(REFGUID id);

}  // namespace qvr::com
