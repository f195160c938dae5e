#include "automation/prepared_call.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace qvr::tests {
namespace {

DISPID id_of(IDispatch* object, const wchar_t* member) {
  DISPID id = DISPID_UNKNOWN;
  LPOLESTR names[] = {const_cast<LPOLESTR>(member)};
  EXPECT_EQ(object->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id), S_OK) << narrow(member);
  return id;
}

class Late final : public PreparedCall {
 public:
  Late(IDispatch* object, const wchar_t* member, WORD kind, std::vector<Var> arguments)
      : object_(object), id_(id_of(object, member)), kind_(kind), arguments_(std::move(arguments)) {
    for (auto argument = arguments_.rbegin(); argument != arguments_.rend(); ++argument)
      raw_.push_back(argument->raw());
    const bool put = kind == DISPATCH_PROPERTYPUT;
    parameters_ = {raw_.data(), put ? &put_name_ : nullptr, static_cast<UINT>(raw_.size()), put ? 1u : 0u};
  }

  void run() override {
    status_ = object_->Invoke(id_, IID_NULL, LOCALE_USER_DEFAULT, kind_, &parameters_, &result_.raw(), nullptr,
                              nullptr);
  }

 private:
  ComPtr<IDispatch> object_;
  DISPID id_;
  WORD kind_;
  std::vector<Var> arguments_;  // the owners
  std::vector<VARIANT> raw_;
  DISPID put_name_ = DISPID_PROPERTYPUT;
  DISPPARAMS parameters_{};
};

// The dual interface's own half of the type information, where the slots are.
ComPtr<ITypeInfo> slots_of(IDispatch* object) {
  ComPtr<ITypeInfo> dispatch, slots;
  HREFTYPE reference = 0;
  EXPECT_EQ(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, &dispatch), S_OK);
  EXPECT_EQ(dispatch->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference), S_OK);
  EXPECT_EQ(dispatch->GetRefTypeInfo(reference, &slots), S_OK);
  return slots;
}

class Early final : public PreparedCall {
 public:
  Early(IDispatch* object, const wchar_t* member, WORD kind, std::vector<Var> arguments)
      : object_(object), arguments_(std::move(arguments)), passed_(16) {
    const ComPtr<ITypeInfo> info = slots_of(object);
    const DISPID id = id_of(object, member);
    for (UINT index = 0;; ++index) {
      FUNCDESC* function = nullptr;
      if (FAILED(info->GetFuncDesc(index, &function))) break;
      if (function->memid == id && function->invkind == static_cast<INVOKEKIND>(kind)) take(*function);
      info->ReleaseFuncDesc(function);
    }
    EXPECT_NE(slot_, 0u) << narrow(member);
  }

  void run() override {
    VARIANT answer{};
    status_ = DispCallFunc(object_.Get(), slot_, CC_STDCALL, VT_ERROR, static_cast<UINT>(types_.size()), types_.data(),
                           pointers_.data(), &answer);
    if (SUCCEEDED(status_)) status_ = answer.scode;
  }

 private:
  void take(const FUNCDESC& function) {
    slot_ = static_cast<std::size_t>(function.oVft & ~3);
    for (SHORT i = 0; i < function.cParams; ++i) {
      const ELEMDESC& parameter = function.lprgelemdescParam[i];
      const auto at = static_cast<std::size_t>(i);
      const bool is_result = (parameter.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) != 0;
      VARIANT* const given = is_result ? &result_.raw() : at < arguments_.size() ? &arguments_[at].raw() : nullptr;
      pass(passed_[at], parameter.tdesc, given, is_result);
      pointers_.push_back(&passed_[at]);
    }
  }

  // What stands behind a pointer is a content of the variant, or the variant itself. One that was left out is null.
  void pass(VARIANT& passed, const TYPEDESC& type, VARIANT* given, bool is_result) {
    if (type.vt != VT_PTR) {
      if (type.vt != VT_VARIANT) VariantChangeType(given, given, 0, type.vt);
      passed = *given;
      types_.push_back(type.vt);
      return;
    }
    const bool object = type.lptdesc->vt == VT_PTR || type.lptdesc->vt == VT_DISPATCH;
    VARTYPE inner = object ? VARTYPE{VT_DISPATCH} : type.lptdesc->vt;
    if (inner == VT_USERDEFINED) inner = VT_I4;  // an enumeration
    if (is_result && inner != VT_VARIANT) given->vt = inner;
    if (given != nullptr && !is_result && inner != VT_VARIANT) VariantChangeType(given, given, 0, inner);
    passed.vt = VT_BYREF | VT_I4;
    passed.byref = nullptr;
    if (given != nullptr) passed.byref = inner == VT_VARIANT ? static_cast<void*>(given) : &given->llVal;
    types_.push_back(passed.vt);
  }

  ComPtr<IDispatch> object_;
  std::vector<Var> arguments_;
  std::size_t slot_ = 0;
  std::vector<VARIANT> passed_;
  std::vector<VARTYPE> types_;
  std::vector<VARIANT*> pointers_;
};

}  // namespace

std::string PreparedCall::outcome() const {
  if (status_ == S_OK) return describe(result_.raw());
  char text[32];
  std::snprintf(text, sizeof text, "failed %08lx", static_cast<unsigned long>(status_));
  return text;
}

std::unique_ptr<PreparedCall> late_call(IDispatch* object, const wchar_t* member, WORD kind,
                                        std::vector<Var> arguments) {
  return std::make_unique<Late>(object, member, kind, std::move(arguments));
}

std::unique_ptr<PreparedCall> early_call(IDispatch* object, const wchar_t* member, WORD kind,
                                         std::vector<Var> arguments) {
  return std::make_unique<Early>(object, member, kind, std::move(arguments));
}

}  // namespace qvr::tests
