#include "com/clients/late_class.h"

#include "base/failure.h"

namespace qvr::com {
namespace {

HostPtr<IClassFactory> class_object(const wchar_t* program_id) {
  HostPtr<IClassFactory> found;
  if (const auto id = registered_class(program_id)) {
    constexpr DWORD kServers = CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER;
    const HRESULT asked = by_host([&] { return CoGetClassObject(*id, kServers, nullptr, IID_PPV_ARGS(&found)); });
    if (FAILED(asked)) found.Reset();
  }
  return found;
}

}  // namespace

std::optional<CLSID> registered_class(const wchar_t* program_id) {
  CLSID id;
  return SUCCEEDED(CLSIDFromProgID(program_id, &id)) ? std::optional(id) : std::nullopt;
}

HostPtr<IDispatch> LateClass::create() {
  if (!class_object_) class_object_ = class_object(program_id_);
  HostPtr<IDispatch> object;
  const bool created = class_object_ && SUCCEEDED(by_host([&] {
                         return class_object_->CreateInstance(nullptr, IID_PPV_ARGS(&object));
                       }));
  if (created && object) return object;
  class_object_.Reset();
  throw RuntimeFailure(failure_number::kCannotCreateObject);
}

}  // namespace qvr::com
