// What a late-bound call of each member costs beside the same call by the system's dispatch and beside the one through
// the member's slot. Members, objects and arguments are those of the tests; every argument goes by reference and of the
// very type, since the system's dispatch takes no other. What works with files, databases or the user is left out.
#include <cstring>

#include "automation/boxes.h"
#include "automation/library.h"
#include "automation/stress/subjects.h"
#include "automation/timing.h"
#include "com/slot_call.h"

namespace {

using namespace qvr::tests;
using qvr::bench::Times;
using qvr::com::Word;

constexpr double kLongest = 20e-6, kRound = 1e-3;  // seconds

class MemberCalls {
 public:
  MemberCalls(const Subject& subject, const DescribedMember& member)
      : object_(subject.object()), member_(member), values_(subject.good_arguments(member)) {
    for (std::size_t i = values_.size(); i-- > 0;) passed_.push_back(as_passed(i));
    for (std::size_t i = 0; i < values_.size(); ++i) add_words(passed_[values_.size() - 1 - i], member.parameters[i]);
    if (member.gives_result()) words_.push_back(reinterpret_cast<Word>(&result_));
    const bool put = member.writes_property();
    parameters_ = {passed_.data(), put ? &put_name_ : nullptr, static_cast<UINT>(passed_.size()), put ? 1u : 0u};
    object_.GetTypeInfo(0, LOCALE_USER_DEFAULT, &info_);
  }
  MemberCalls(const MemberCalls&) = delete;
  MemberCalls& operator=(const MemberCalls&) = delete;

  bool by_slot() {
    result_ = {};
    const HRESULT called = qvr::com::call_slot(&object_, static_cast<std::size_t>(member_.slot_offset), words_.data(),
                                               words_.size());
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
  void add_words(VARIANT& passed, const MemberParameter& parameter) {
    const std::size_t count = parameter.by_reference ? 1 : qvr::com::words_by_value(parameter.type).value_or(0);
    const bool whole = !parameter.by_reference && parameter.type == VT_VARIANT;
    if (whole && count == 1) return words_.push_back(reinterpret_cast<Word>(&passed));
    words_.resize(words_.size() + count);
    std::memcpy(&words_[words_.size() - count], whole ? static_cast<void*>(&passed) : &passed.byref,
                count * sizeof(Word));
  }

  IDispatch& object_;
  const DescribedMember& member_;
  std::vector<Var> values_;
  std::vector<VARIANT> passed_;  // last to first
  std::vector<Word> words_;
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
