#include "com/clients/dispatch_ids.h"

#include <algorithm>

#include "com/late_failure.h"

namespace qvr::com {
namespace {

// GUID_NULL where the type has none.
IID interface_of(ITypeInfo& type_info) {
  const HostFloatingPoint host;
  TYPEATTR* attributes = nullptr;
  if (FAILED(type_info.GetTypeAttr(&attributes)) || attributes == nullptr) return GUID_NULL;
  const IID id = attributes->guid;
  type_info.ReleaseTypeAttr(attributes);
  return id;
}

}  // namespace

DISPID dispatch_id(IDispatch& object, const wchar_t* name) {
  DISPID id = DISPID_UNKNOWN;
  LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
  require(by_host([&] { return object.GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id); }));
  return id;
}

DISPID InterfaceIds::id_of(IDispatch& object, const wchar_t* name) {
  const auto kept = std::ranges::find(kept_, std::wstring_view(name), &decltype(kept_)::value_type::first);
  if (kept != kept_.end()) return kept->second;
  const DISPID id = dispatch_id(object, name);
  if (believed_) keep(name, id);
  return id;
}

void InterfaceIds::keep(const wchar_t* name, DISPID id) {
  MEMBERID told = MEMBERID_NIL;
  LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
  if (FAILED(by_host([&] { return type_info_->GetIDsOfNames(names, 1, &told); }))) return;
  if (told == id) return void(kept_.emplace_back(name, id));
  believed_ = false;
  kept_.clear();
}

InterfaceIds* DispatchIds::of_interface(IDispatch& object) {
  HostPtr<ITypeInfo> type_info;
  const HRESULT asked = by_host([&] { return object.GetTypeInfo(0, LOCALE_USER_DEFAULT, &type_info); });
  if (FAILED(asked) || !type_info) return nullptr;
  const IID id = interface_of(*type_info.Get());
  if (id == GUID_NULL) return nullptr;
  const auto known = std::ranges::find(known_, id, &InterfaceIds::id);
  return known != known_.end() ? &*known : &known_.emplace_back(id, std::move(type_info));
}

}  // namespace qvr::com
