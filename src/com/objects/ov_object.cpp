#include "com/objects/ov_object.h"

#include "platform/platform.h"
#include "session/ov.h"

namespace qvr::com {
namespace {

// Without the shared initialisation: reading the version must not load the catalogue.
Text library_file() {
  return or_default(qvr::Ov::kClass, Text(), [] { return system_platform().system.module_path(); });
}

}  // namespace

HRESULT OvObject::Version(LONG* Resultado) noexcept {
  return answer(Resultado, [] { return qvr::Ov::Version(own_version()); });
}
HRESULT OvObject::CadenaVersion(BSTR* Resultado) noexcept {
  return answer(Resultado, [] { return qvr::Ov::CadenaVersion(own_version()); });
}
HRESULT OvObject::Path(BSTR* Resultado) noexcept {
  return answer(Resultado, [] { return qvr::Ov::Path(library_file()); });
}
HRESULT OvObject::PathCompleto(BSTR* Resultado) noexcept {
  return answer(Resultado, [] { return qvr::Ov::PathCompleto(library_file()); });
}

}  // namespace qvr::com
