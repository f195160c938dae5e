#include "com/signature.h"

#include <algorithm>
#include <memory>
#include <ranges>
#include <utility>

#include "com/late_failure.h"
#include "com/text_bstr.h"
#include "com/type_library.h"

namespace qvr::com {
namespace {

bool equal_names(std::wstring_view a, std::wstring_view b) noexcept {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](wchar_t x, wchar_t y) {
           return x == y || fold(static_cast<char16_t>(x)) == fold(static_cast<char16_t>(y));
         });
}

// A dispatch id is a base, which differs by kind, plus the member's position.
std::size_t position_in(DISPID id) noexcept { return static_cast<std::uint32_t>(id) & 0xFFFF; }

// VT_USERDEFINED: enumerations are numbers, all other types in the signatures are objects.
VARTYPE named_type(ITypeInfo& info, HREFTYPE reference, VARTYPE otherwise) {
  ComPtr<ITypeInfo> referred;
  TYPEATTR* attributes = nullptr;
  if (FAILED(info.GetRefTypeInfo(reference, &referred)) || FAILED(referred->GetTypeAttr(&attributes))) return otherwise;
  const VARTYPE type = attributes->typekind == TKIND_ENUM ? VT_I4 : VT_DISPATCH;
  referred->ReleaseTypeAttr(attributes);
  return type;
}

struct ResolvedType {
  VARTYPE type;
  bool by_reference;
};

ResolvedType resolve(ITypeInfo& info, const ELEMDESC& element) {
  const TYPEDESC* at = &element.tdesc;
  int pointers = 0;
  for (; at->vt == VT_PTR; at = at->lptdesc) ++pointers;
  // ADO's types cannot be read where its type library is not registered. An object is a pointer by itself, besides the
  // one to the caller's variable.
  const int of_variable = element.paramdesc.wParamFlags & PARAMFLAG_FOUT ? 1 : 0;
  const VARTYPE unread = pointers > of_variable ? VT_DISPATCH : VT_I4;
  const VARTYPE type = at->vt == VT_USERDEFINED ? named_type(info, at->hreftype, unread) : at->vt;
  const bool object = type == VT_DISPATCH || type == VT_UNKNOWN;
  // A pointer to an interface is an object.
  return {type, pointers > (object && at->vt == VT_USERDEFINED ? 1 : 0)};
}

std::optional<LONG> default_number(const PARAMDESC& described) {
  if (!(described.wParamFlags & PARAMFLAG_FHASDEFAULT) || described.pparamdescex == nullptr) return std::nullopt;
  VARIANT number;
  VariantInit(&number);
  if (FAILED(VariantChangeType(&number, &described.pparamdescex->varDefaultValue, 0, VT_I4))) return std::nullopt;
  return number.lVal;
}

void add_parameters(Member& member, ITypeInfo& info, const FUNCDESC& function, const BSTR* names, UINT name_count) {
  for (SHORT index = 0; index < function.cParams; ++index) {
    const ELEMDESC& element = function.lprgelemdescParam[index];
    const ResolvedType type = resolve(info, element);
    if (element.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) {
      member.result = type.type;
      continue;
    }
    Parameter parameter;
    const auto name_index = static_cast<UINT>(index) + 1;
    if (name_index < name_count) parameter.name = names[name_index];
    parameter.type = type.type;
    parameter.by_reference = type.by_reference;
    parameter.optional = (element.paramdesc.wParamFlags & PARAMFLAG_FOPT) != 0;
    parameter.fallback = default_number(element.paramdesc);
    member.parameters.push_back(std::move(parameter));
  }
}

Member read_member(ITypeInfo& info, const FUNCDESC& function) {
  Member member;
  member.id = function.memid;
  member.kind = static_cast<WORD>(function.invkind);
  member.slot_offset = static_cast<std::size_t>(function.oVft & ~3);
  std::vector<OwnedBstr> names(static_cast<std::size_t>(function.cParams) + 1);
  std::vector<BSTR> raw(names.size());
  UINT count = 0;
  require(info.GetNames(function.memid, raw.data(), static_cast<UINT>(raw.size()), &count));
  for (UINT i = 0; i < count; ++i) *names[i].out() = raw[i];
  member.name.assign(raw[0], SysStringLen(raw[0]));
  add_parameters(member, info, function, raw.data(), count);
  return member;
}

// The type info of a dual interface is the dispinterface; its related vtable interface has the slots.
ComPtr<ITypeInfo> slots_of(ITypeInfo& dispatch) {
  HREFTYPE reference = 0;
  ComPtr<ITypeInfo> slots;
  require(dispatch.GetRefTypeOfImplType(static_cast<UINT>(-1), &reference));
  require(dispatch.GetRefTypeInfo(reference, &slots));
  return slots;
}

}  // namespace

Signatures::Signatures(REFIID id) {
  const ComPtr<ITypeInfo> info = slots_of(*own_type_info(id).Get());
  TYPEATTR* attributes = nullptr;
  require(info->GetTypeAttr(&attributes));
  const WORD count = attributes->cFuncs;
  info->ReleaseTypeAttr(attributes);
  OwnedBstr name;
  require(info->GetDocumentation(MEMBERID_NIL, name.out(), nullptr, nullptr, nullptr));
  owner_ = name.text().substr(1);
  members_.reserve(count);
  for (UINT index = 0; index < count; ++index) {
    FUNCDESC* function = nullptr;
    require(info->GetFuncDesc(index, &function));
    const auto release = [&info](FUNCDESC* description) { info->ReleaseFuncDesc(description); };
    const std::unique_ptr<FUNCDESC, decltype(release)> keep(function, release);
    members_.push_back(read_member(*info.Get(), *function));
  }
  for (Member& member : members_ | std::views::reverse) {
    const std::size_t at = position_in(member.id);
    if (at >= at_position_.size()) at_position_.resize(at + 1, nullptr);
    member.next = std::exchange(at_position_[at], &member);
  }
}

const Member* Signatures::named(std::wstring_view name) const noexcept {
  const auto found = std::ranges::find_if(members_, [&](const Member& m) { return equal_names(m.name, name); });
  return found == members_.end() ? nullptr : &*found;
}

const Member* Signatures::called(DISPID id, WORD flags) const noexcept {
  const std::size_t at = position_in(id);
  const Member* member = at < at_position_.size() ? at_position_[at] : nullptr;
  while (member != nullptr && (member->id != id || !(member->kind & flags))) member = member->next;
  return member;
}

std::optional<DISPID> position_of(const Member& member, std::wstring_view parameter) noexcept {
  for (std::size_t index = 0; index < member.parameters.size(); ++index) {
    if (equal_names(member.parameters[index].name, parameter)) return static_cast<DISPID>(index);
  }
  return std::nullopt;
}

}  // namespace qvr::com
