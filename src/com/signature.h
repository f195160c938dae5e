// What the type library says of an interface's members, read once per interface: what late-bound calls are matched
// against.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "com/com.h"

namespace qvr::com {

struct Parameter {
  std::wstring name;
  VARTYPE type = VT_EMPTY;  // VT_BSTR, VT_I4, VT_VARIANT...; VT_DISPATCH for objects of any interface
  bool by_reference = false;
  bool optional = false;
  std::optional<LONG> fallback;  // default value of an optional number
};

struct Member {
  std::wstring name;
  DISPID id = DISPID_UNKNOWN;
  WORD kind = 0;  // DISPATCH_METHOD, DISPATCH_PROPERTYGET...
  std::size_t slot_offset = 0;
  std::vector<Parameter> parameters;  // without the result
  VARTYPE result = VT_EMPTY;          // VT_EMPTY for none
  const Member* next = nullptr;       // at the same position: the other accessor of a property
};

class Signatures {
 public:
  // Of the dual interface with this id. Throws when the type library cannot be read.
  explicit Signatures(REFIID id);
  Signatures(const Signatures&) = delete;
  Signatures& operator=(const Signatures&) = delete;

  // The member with this name, whatever its case; null for none.
  const Member* named(std::wstring_view name) const noexcept;
  // The member that answers a call of this kind under this id; null for none.
  const Member* called(DISPID id, WORD flags) const noexcept;

 private:
  std::vector<Member> members_;
  std::vector<const Member*> at_position_;  // the first of each
};

// The parameter's position, which is also its dispatch id in a named call.
std::optional<DISPID> position_of(const Member& member, std::wstring_view parameter) noexcept;

}  // namespace qvr::com
