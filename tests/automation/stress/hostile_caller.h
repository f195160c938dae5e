// Calls every member of an interface with invalid arguments and checks the answers.
#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "automation/boxes.h"
#include "automation/family_component.h"
#include "automation/stress/subjects.h"
#include "support/traced.h"

namespace qvr::tests {

struct HostileCall {
  DISPID id;
  WORD flags;
  DISPPARAMS* parameters;
  const IID* reserved = &IID_NULL;
  LCID locale = LOCALE_USER_DEFAULT;
  bool wants_answers = true;  // the result, the error and the index of the argument
};

struct HostileAnswer {
  HRESULT result = S_OK;
  UINT wrong_argument = 0xFFFF;
};

// Positional arguments in the order that Invoke wants, and the name that a written property's value has.
class Arguments {
 public:
  Arguments(const DescribedMember& member, std::vector<Var> values);
  Arguments(const Arguments&) = delete;
  Arguments& operator=(const Arguments&) = delete;
  DISPPARAMS& parameters() { return parameters_; }
  VARIANT& at(std::size_t position) { return raw_[raw_.size() - 1 - position]; }
  UINT index_of(std::size_t position) const { return static_cast<UINT>(raw_.size() - 1 - position); }
  std::string picture() const;

 private:
  const std::vector<Var> values_;  // the owners
  std::vector<VARIANT> raw_;
  DISPID put_name_ = DISPID_PROPERTYPUT;
  DISPPARAMS parameters_{};
};

// The dual interfaces in the order of the type library; a test compares them with it. The type library itself can be
// read only when the tests are under way: some of its types are another library's, which is registered by then.
inline constexpr const char* kInterfaces[] = {"_Ov", "_QVRcfp", "_iSQL20", "_cSQL20", "_uSQL20", "_QVRScr", "_QVRprp"};

// One row for each dual interface. Everything happens on a thread of its own, whose failures go to a report component
// and whose boxes are answered.
class HostileCaller : public testing::TestWithParam<std::size_t> {
 protected:
  HostileCaller() { expect_any_traces(); }

  const DescribedInterface& interface_under_attack() const { return described_interfaces()[GetParam()]; }

  // Calls each member repeatedly, on a new object each time. No box stays open, no memory leaks, and the object works
  // afterwards.
  using Attack = std::function<void(const Subject&, const DescribedMember&)>;
  void attack_every_member(const Attack& attack) const;

  // Every answer is one of the documented ones, and what comes with it fits to it.
  static HostileAnswer invoke(const Subject& subject, const HostileCall& call);
  static HostileCall call_of(const DescribedMember& member, Arguments& arguments) {
    return {member.id, member.kind, &arguments.parameters()};
  }

 private:
  void attack_again_and_again(const DescribedMember& member, const Attack& attack,
                              std::initializer_list<FamilyComponent*> components) const;
};

std::string interface_name(const testing::TestParamInfo<std::size_t>& row);

}  // namespace qvr::tests
