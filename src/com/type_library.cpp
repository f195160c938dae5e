#include "com/type_library.h"

#include "com/late_failure.h"
#include "platform/platform.h"

namespace qvr::com {

ComPtr<ITypeLib> own_type_library() {
  ComPtr<ITypeLib> library;
  const Text path = system_platform().system.module_path();
  require(LoadTypeLibEx(std::wstring(path.begin(), path.end()).c_str(), REGKIND_NONE, &library));
  return library;
}

ComPtr<ITypeInfo> own_type_info(REFGUID id) {
  ComPtr<ITypeInfo> info;
  require(own_type_library()->GetTypeInfoOfGuid(id, &info));
  return info;
}

}  // namespace qvr::com
