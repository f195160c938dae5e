#include "com/arguments.h"

#include <algorithm>
#include <string>
#include <vector>

#include "base/failure.h"
#include "com/argument_slot.h"
#include "com/late_failure.h"

namespace qvr::com {
namespace {

// The index into rgvarg of each parameter's argument; -1 for an omitted one.
using Positions = std::vector<int>;

HRESULT refuse(HRESULT result, UINT index, const LateCall& call) {
  if (call.wrong_argument != nullptr) *call.wrong_argument = index;
  return result;
}

bool writes_property(const Member& member) {
  return (member.kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
}

HRESULT place_named(const Member& member, const LateCall& call, Positions& positions) {
  const DISPPARAMS& given = *call.arguments;
  for (UINT i = 0; i < given.cNamedArgs; ++i) {
    DISPID position = given.rgdispidNamedArgs[i];
    if (position == DISPID_PROPERTYPUT && writes_property(member)) {
      position = static_cast<DISPID>(member.parameters.size()) - 1;
    }
    if (position < 0 || static_cast<std::size_t>(position) >= member.parameters.size()) {
      return refuse(DISP_E_PARAMNOTFOUND, i, call);
    }
    int& place = positions[static_cast<std::size_t>(position)];
    if (place >= 0) return refuse(DISP_E_PARAMNOTFOUND, i, call);
    place = static_cast<int>(i);
  }
  return S_OK;
}

// rgvarg is in reverse order: named arguments first, then the positional ones, last one first.
HRESULT place_arguments(const Member& member, const LateCall& call, Positions& positions) {
  const DISPPARAMS& given = *call.arguments;
  if (given.cNamedArgs > given.cArgs || given.cArgs > member.parameters.size()) return DISP_E_BADPARAMCOUNT;
  if (given.cArgs > 0 && given.rgvarg == nullptr) return E_INVALIDARG;
  if (given.cNamedArgs > 0 && given.rgdispidNamedArgs == nullptr) return E_INVALIDARG;
  const HRESULT named = place_named(member, call, positions);
  if (FAILED(named)) return named;
  const UINT unnamed = given.cArgs - given.cNamedArgs;
  for (UINT i = 0; i < unnamed; ++i) {
    if (positions[i] >= 0) return refuse(DISP_E_PARAMNOTFOUND, static_cast<UINT>(positions[i]), call);
    positions[i] = static_cast<int>(given.cArgs - 1 - i);
  }
  return S_OK;
}

class Call {
 public:
  Call(const Member& member, const LateCall& late)
      : member_(member), late_(late), positions_(member.parameters.size(), -1), slots_(member.parameters.size()) {}

  HRESULT run(void* object) {
    HRESULT result = place_arguments(member_, late_, positions_);
    if (SUCCEEDED(result)) result = convert();
    if (SUCCEEDED(result)) result = dispatch(object);
    if (SUCCEEDED(result)) write_back();
    return result;
  }

 private:
  HRESULT convert() {
    for (std::size_t i = 0; i < member_.parameters.size(); ++i) {
      const int at = positions_[i];
      const VARIANT* argument = at < 0 ? nullptr : &late_.arguments->rgvarg[at];
      const HRESULT result = slots_[i].take(member_.parameters[i], argument, late_.locale);
      if (FAILED(result)) return refuse(result, at < 0 ? 0 : static_cast<UINT>(at), late_);
    }
    return S_OK;
  }

  HRESULT dispatch(void* object) {
    std::vector<VARTYPE> types;
    std::vector<VARIANT*> values;
    types.reserve(slots_.size() + 1);
    values.reserve(slots_.size() + 1);
    for (ArgumentSlot& slot : slots_) {
      const ArgumentSlot::Passed passed = slot.passed();
      types.push_back(passed.type);
      values.push_back(passed.value);
    }
    OwnedVariant answer;
    VARIANT reference;
    if (member_.result != VT_EMPTY) {
      reference.vt = static_cast<VARTYPE>(VT_BYREF | member_.result);
      reference.byref = member_.result == VT_VARIANT ? static_cast<void*>(answer.get()) : &answer->llVal;
      if (member_.result != VT_VARIANT) answer->vt = member_.result;
      types.push_back(reference.vt);
      values.push_back(&reference);
    }
    VARIANT returned{};
    HRESULT result = DispCallFunc(object, member_.slot_offset, CC_STDCALL, VT_ERROR, static_cast<UINT>(types.size()),
                                  types.data(), values.data(), &returned);
    if (FAILED(result)) return result;
    result = returned.scode;
    if (FAILED(result)) return raise(result);
    if (late_.result != nullptr) *late_.result = answer.release();
    return S_OK;
  }

  // The member failed: fill EXCEPINFO from its error info.
  HRESULT raise(HRESULT failed) const {
    ComPtr<IErrorInfo> info;
    const bool told = GetErrorInfo(0, &info) == S_OK;
    if (late_.exception != nullptr) {
      *late_.exception = EXCEPINFO{};
      late_.exception->scode = failed;
      if (told) {
        info->GetDescription(&late_.exception->bstrDescription);
        info->GetSource(&late_.exception->bstrSource);
      }
    }
    return DISP_E_EXCEPTION;
  }

  void write_back() {
    for (std::size_t i = 0; i < member_.parameters.size(); ++i) {
      if (positions_[i] >= 0) slots_[i].give_back(late_.arguments->rgvarg[positions_[i]], late_.locale);
    }
  }

  const Member& member_;
  const LateCall& late_;
  Positions positions_;
  std::vector<ArgumentSlot> slots_;
};

}  // namespace

namespace {

HRESULT run(const Signatures& signatures, void* object, const LateCall& call) {
  if (call.arguments == nullptr) return E_INVALIDARG;
  const Member* member = signatures.called(call.id, call.flags);
  if (member == nullptr) return DISP_E_MEMBERNOTFOUND;
  if (call.result != nullptr) call.result->vt = VT_EMPTY;
  return Call(*member, call).run(object);
}

void trace_refusal(const Signatures& signatures, const LateCall& call, HRESULT result) noexcept {
  or_default(signatures.owner(), false, [&] {
    const Member* member = signatures.called(call.id, call.flags);
    const std::string name = member != nullptr ? std::string(member->name.begin(), member->name.end())
                                               : "dispatch id " + std::to_string(call.id);
    trace(
        {signatures.owner(), name, failure_number_of(result), u"The late-bound call was refused", SourcePlace::here()});
    return true;
  });
}

}  // namespace

HRESULT invoke(const Signatures& signatures, void* object, const LateCall& call) {
  const HRESULT result = run(signatures, object, call);
  // A member that failed has told the trace itself.
  if (FAILED(result) && result != DISP_E_EXCEPTION) trace_refusal(signatures, call, result);
  return result;
}

HRESULT ids_of_names(const Signatures& signatures, LPOLESTR* names, UINT count, DISPID* ids) noexcept {
  if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
  std::fill_n(ids, count, DISPID_UNKNOWN);
  const Member* member = names[0] != nullptr ? signatures.named(names[0]) : nullptr;
  if (member == nullptr) return DISP_E_UNKNOWNNAME;
  ids[0] = member->id;
  bool all = true;
  for (UINT i = 1; i < count; ++i) {
    const auto position = names[i] != nullptr ? position_of(*member, names[i]) : std::nullopt;
    ids[i] = position.value_or(DISPID_UNKNOWN);
    all = all && position;
  }
  return all ? S_OK : DISP_E_UNKNOWNNAME;
}

}  // namespace qvr::com
