// The module's entries in the registry: classes, programmatic identifiers and the type library.
#pragma once

#include <windows.h>

namespace qvr::tests::com {

HRESULT register_module();
HRESULT unregister_module();  // what is not registered is no failure

}  // namespace qvr::tests::com
