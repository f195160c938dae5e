// The library's own type information, read from its own file: never by name, never through the registry.
#pragma once

#include "com/com.h"

namespace qvr::com {

// Type library in resource 1 of the library file. Throws the HRESULT's failure when it cannot be read.
ComPtr<ITypeLib> own_type_library();

ComPtr<ITypeInfo> own_type_info(REFGUID id);

}  // namespace qvr::com
