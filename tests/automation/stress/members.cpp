#include "automation/stress/members.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace qvr::tests {
namespace {

// Enumerations are numbers; other types that signatures name are objects.
VARTYPE named_type(ITypeInfo& info, HREFTYPE reference) {
  ComPtr<ITypeInfo> referred;
  TYPEATTR* attributes = nullptr;
  if (FAILED(info.GetRefTypeInfo(reference, &referred)) || FAILED(referred->GetTypeAttr(&attributes))) {
    return VT_DISPATCH;
  }
  const VARTYPE type = attributes->typekind == TKIND_ENUM ? VT_I4 : VT_DISPATCH;
  referred->ReleaseTypeAttr(attributes);
  return type;
}

VARTYPE innermost_type(ITypeInfo& info, const TYPEDESC& described) {
  const TYPEDESC* at = &described;
  while (at->vt == VT_PTR) at = at->lptdesc;
  return at->vt == VT_USERDEFINED ? named_type(info, at->hreftype) : at->vt;
}

DescribedMember described_member(ITypeInfo& info, UINT index) {
  FUNCDESC* function = nullptr;
  EXPECT_EQ(info.GetFuncDesc(index, &function), S_OK);
  DescribedMember member{
      {}, function->memid, static_cast<WORD>(function->invkind), static_cast<SHORT>(function->oVft & ~3), {}, VT_EMPTY};
  BSTR names[20] = {};
  UINT count = 0;
  info.GetNames(function->memid, names, 20, &count);
  member.name = names[0];
  for (SHORT i = 0; i < function->cParams; ++i) {
    const ELEMDESC& element = function->lprgelemdescParam[i];
    if (element.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) {
      member.result_type = innermost_type(info, element.tdesc);
      continue;
    }
    const bool named = static_cast<UINT>(i) + 1 < count;
    member.parameters.push_back({named ? names[i + 1] : L"", innermost_type(info, element.tdesc),
                                 element.tdesc.vt == VT_PTR, (element.paramdesc.wParamFlags & PARAMFLAG_FOPT) != 0});
  }
  for (BSTR name : names) SysFreeString(name);
  info.ReleaseFuncDesc(function);
  return member;
}

// The slots of a dual interface, whose type information describes its dispatch half.
ComPtr<ITypeInfo> slots_of(ITypeInfo& dispatch) {
  HREFTYPE reference = 0;
  ComPtr<ITypeInfo> slots;
  EXPECT_EQ(dispatch.GetRefTypeOfImplType(static_cast<UINT>(-1), &reference), S_OK);
  EXPECT_EQ(dispatch.GetRefTypeInfo(reference, &slots), S_OK);
  return slots;
}

DescribedInterface described_interface(ITypeInfo& dispatch, const IID& id) {
  DescribedInterface described{{}, id, {}};
  BSTR name = nullptr;
  dispatch.GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
  described.name = name;
  SysFreeString(name);
  const ComPtr<ITypeInfo> slots = slots_of(dispatch);
  TYPEATTR* attributes = nullptr;
  EXPECT_EQ(slots->GetTypeAttr(&attributes), S_OK);
  const UINT count = attributes->cFuncs;
  slots->ReleaseTypeAttr(attributes);
  for (UINT i = 0; i < count; ++i) described.members.push_back(described_member(*slots.Get(), i));
  return described;
}

}  // namespace

bool DescribedInterface::has(DISPID member, WORD flags) const {
  return std::ranges::any_of(members, [&](const auto& each) { return each.id == member && (each.kind & flags) != 0; });
}

namespace {

std::vector<DescribedInterface> read_interfaces() {
  std::vector<DescribedInterface> found;
  ComPtr<ITypeLib> library;
  EXPECT_EQ(LoadTypeLibEx(beside_program(L"QVRlib21.dll").c_str(), REGKIND_NONE, &library), S_OK);
  for (UINT i = 0; library && i < library->GetTypeInfoCount(); ++i) {
    ComPtr<ITypeInfo> info;
    TYPEATTR* attributes = nullptr;
    EXPECT_EQ(library->GetTypeInfo(i, &info), S_OK);
    EXPECT_EQ(info->GetTypeAttr(&attributes), S_OK);
    const TYPEATTR type = *attributes;
    info->ReleaseTypeAttr(attributes);
    if (type.typekind == TKIND_DISPATCH && (type.wTypeFlags & TYPEFLAG_FDUAL)) {
      found.push_back(described_interface(*info.Get(), type.guid));
    }
  }
  return found;
}

}  // namespace

const std::vector<DescribedInterface>& described_interfaces() {
  static const std::vector<DescribedInterface> all = read_interfaces();
  return all;
}

}  // namespace qvr::tests
