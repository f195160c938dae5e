// What a late-bound call of each member costs beside the same call by the system's dispatch and beside the one through
// the member's slot (with DispCallFunc, which the late-bound call needs too). Members, objects and arguments are those
// of the tests; every argument goes by reference and of the very type, since the system's dispatch takes no other. What
// works with files, databases or the user is left out.
#include "automation/boxes.h"
#include "automation/library.h"
#include "automation/stress/subjects.h"
#include "automation/timing.h"

namespace {

using namespace qvr::tests;
using qvr::bench::Times;

constexpr double kLongest = 20e-6, kRound = 1e-3;  // seconds

class MemberCalls {
 public:
  MemberCalls(const Subject& subject, const DescribedMember& member)
      : object_(subject.object()), member_(member), values_(subject.good_arguments(member)) {
    for (std::size_t i = values_.size(); i-- > 0;) passed_.push_back(as_passed(i));
    for (std::size_t i = 0; i < values_.size(); ++i) add(passed_[values_.size() - 1 - i], member.parameters[i]);
    result_place_.vt = static_cast<VARTYPE>(VT_BYREF | member.result_type);
    result_place_.byref = &result_;
    if (member.gives_result()) add(result_place_, {{}, member.result_type, true, false});
    const bool put = member.writes_property();
    parameters_ = {passed_.data(), put ? &put_name_ : nullptr, static_cast<UINT>(passed_.size()), put ? 1u : 0u};
    object_.GetTypeInfo(0, LOCALE_USER_DEFAULT, &info_);
  }
  MemberCalls(const MemberCalls&) = delete;
  MemberCalls& operator=(const MemberCalls&) = delete;

  bool by_slot() {
    result_ = {};
    VARIANT answer{};
    HRESULT called = DispCallFunc(&object_, static_cast<ULONG_PTR>(member_.slot_offset), CC_STDCALL, VT_ERROR,
                                  static_cast<UINT>(types_.size()), types_.data(), places_.data(), &answer);
    if (SUCCEEDED(called)) called = answer.scode;
    if (member_.result_type == VT_BSTR) SysFreeString(result_.text);
    if (member_.result_type == VT_VARIANT) VariantClear(&result_.value);
    return SUCCEEDED(called);
  }
  bool by_name() {
    VARIANT result{};
    const HRESULT called = object_.Invoke(member_.id, IID_NULL, LOCALE_USER_DEFAULT, member_.kind, &parameters_,
                                          &result, nullptr, nullptr);
    VariantClear(&result);
    return SUCCEEDED(called);
  }
  bool by_system() {
    VARIANT result{};
    const HRESULT called = info_->Invoke(&object_, member_.id, member_.kind, &parameters_, &result, nullptr, nullptr);
    VariantClear(&result);
    return SUCCEEDED(called);
  }

 private:
  VARIANT as_passed(std::size_t position) {
    VARIANT& value = values_[position].raw();
    const MemberParameter& parameter = member_.parameters[position];
    if (!parameter.by_reference) return value;
    VARIANT passed{};
    passed.vt = static_cast<VARTYPE>(VT_BYREF | parameter.type);
    passed.byref = parameter.type == VT_VARIANT ? static_cast<void*>(&value) : &value.byref;
    return passed;
  }
  void add(VARIANT& passed, const MemberParameter& parameter) {
    types_.push_back(static_cast<VARTYPE>(parameter.by_reference ? VT_BYREF | parameter.type : parameter.type));
    places_.push_back(&passed);
  }

  IDispatch& object_;
  const DescribedMember& member_;
  std::vector<Var> values_;
  std::vector<VARIANT> passed_;  // last to first
  std::vector<VARTYPE> types_;
  std::vector<VARIANT*> places_;
  VARIANT result_place_{};
  DISPID put_name_ = DISPID_PROPERTYPUT;
  DISPPARAMS parameters_{};
  ComPtr<ITypeInfo> info_;
  union {
    VARIANT value;
    BSTR text;
  } result_{};
};

void measure(Times& times, const DescribedInterface& described, const DescribedMember& member) {
  const Subject subject(described);
  MemberCalls calls(subject, member);
  const char* const accessor = member.kind == DISPATCH_PROPERTYGET ? "get_" : member.writes_property() ? "put_" : "";
  const std::string name = narrow(described.name) + "." + accessor + narrow(member.name);
  if (!calls.by_slot() || !calls.by_name() || !calls.by_system()) {
    std::fprintf(stderr, "%s cannot be called\n", name.c_str());
    return;
  }
  const double start = Times::now();
  calls.by_slot();
  const double once = Times::now() - start;
  if (once > kLongest) return;
  const int so_many = std::clamp(static_cast<int>(kRound / once), 50, 2000);
  times.take(
      "ITypeInfo::Invoke", name, [&] { calls.by_system(); }, so_many);
  times.take(
      "Invoke", name, [&] { calls.by_name(); }, so_many);
  times.take(
      "Early", name, [&] { calls.by_slot(); }, so_many);
}

void measure_all() {
  const Server library(beside_program(L"QVRlib21.dll")), ado(beside_program(L"testado.dll"));
  library.register_it();
  ado.register_it();
  {
    Times times;
    const Person person;
    for (const DescribedInterface& described : described_interfaces()) {
      for (const DescribedMember& member : described.members) measure(times, described, member);
    }
    times.print();
  }
  ado.unregister_it();
  library.unregister_it();
}

}  // namespace

int main() {
  OleInitialize(nullptr);
  measure_all();
  return 0;
}
