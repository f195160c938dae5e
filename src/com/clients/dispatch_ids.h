// Dispatch ids that are kept from one object to the next.
#pragma once

#include <list>
#include <string_view>
#include <utility>
#include <vector>

#include "com/com.h"
#include "com/host_ptr.h"

namespace qvr::com {

// The member's dispatch id as the object itself tells it. Throws what it fails with.
DISPID dispatch_id(IDispatch& object, const wchar_t* name);

// Those of one interface's members, which are the same for all of its objects, as the type information says. Where it
// contradicts an object, it is not believed any more.
class InterfaceIds {
 public:
  InterfaceIds(REFIID id, HostPtr<ITypeInfo> type_info) : id_(id), type_info_(std::move(type_info)) {}

  const IID& id() const { return id_; }
  // The object is asked at the first time only, but each time for a member that the type information does not know.
  DISPID id_of(IDispatch& object, const wchar_t* name);

 private:
  void keep(const wchar_t* name, DISPID id);

  IID id_;
  HostPtr<ITypeInfo> type_info_;
  std::vector<std::pair<std::wstring_view, DISPID>> kept_;
  bool believed_ = true;
};

// Those of all interfaces that a run meets. The ids live as long as this.
class DispatchIds {
 public:
  // Null for an object without type information: objects of one class may have different ids (IDispatchEx, scripts),
  // so that nothing can be kept.
  InterfaceIds* of_interface(IDispatch& object);

 private:
  std::list<InterfaceIds> known_;
};

}  // namespace qvr::com
