// The signatures of an interface's members for late-bound calls, read from the type library once per interface.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
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
  const Member* next = nullptr;       // the other accessor of a property, which has the same position
};

class Signatures {
 public:
  // Reads the dual interface with this IID. Throws when the type library cannot be read.
  explicit Signatures(REFIID id);
  Signatures(const Signatures&) = delete;
  Signatures& operator=(const Signatures&) = delete;

  // The class: the interface's name without its underscore.
  TextView owner() const noexcept { return owner_; }
  // The member with this name, without regard to case; null for none.
  const Member* named(std::wstring_view name) const noexcept;
  // The member with this dispatch id and kind of call; null for none.
  const Member* called(DISPID id, WORD flags) const noexcept;

 private:
  Text owner_;
  std::vector<Member> members_;
  std::vector<const Member*> at_position_;  // first member of each position
};

// The parameter's position, which is also its dispatch id as a named argument.
std::optional<DISPID> position_of(const Member& member, std::wstring_view parameter) noexcept;

}  // namespace qvr::com
