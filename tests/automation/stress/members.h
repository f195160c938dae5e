// Every member of every dual interface, as the type library tells of them.
#pragma once

#include <string>
#include <vector>

#include "automation/host.h"

namespace qvr::tests {

struct MemberParameter {
  std::wstring name;
  VARTYPE type;  // VT_BSTR, VT_I4, VT_VARIANT...; VT_DISPATCH for objects
  bool by_reference, optional;
};

struct DescribedMember {
  std::wstring name;
  DISPID id;
  WORD kind;  // DISPATCH_METHOD, DISPATCH_PROPERTYGET, DISPATCH_PROPERTYPUT
  SHORT slot_offset;
  std::vector<MemberParameter> parameters;  // without the result
  VARTYPE result_type;                      // VT_EMPTY for none

  bool gives_result() const { return result_type != VT_EMPTY; }
  bool writes_property() const { return kind == DISPATCH_PROPERTYPUT; }
};

struct DescribedInterface {
  std::wstring name;
  IID id;
  std::vector<DescribedMember> members;

  // Whether a call of this kind has a member under this id.
  bool has(DISPID member, WORD flags) const;
};

// In the order of the type library, read once.
const std::vector<DescribedInterface>& described_interfaces();

}  // namespace qvr::tests
