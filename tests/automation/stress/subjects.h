// The dual interfaces as hostile callers find them: an object in a known state, arguments that work, and what it
// answers as long as it does.
#pragma once

#include <string>

#include "automation/stress/members.h"

namespace qvr::tests {

class Subject {
 public:
  explicit Subject(const DescribedInterface& described);

  const DescribedInterface& described() const { return described_; }
  IDispatch& object() const { return *object_.get(); }

  // Into the state that the other one knows.
  void prepare() const;
  void expect_works() const;

  // An argument that the member takes without opening, deleting or asking anything.
  Var good_argument(const MemberParameter& parameter) const;
  std::vector<Var> good_arguments(const DescribedMember& member) const;

 private:
  bool is_query() const { return described_.name.ends_with(L"SQL20"); }
  LateAnswer call(const wchar_t* name, std::vector<Var> arguments = {}) const;
  LateAnswer get(const wchar_t* name) const;
  std::string state() const;

  const DescribedInterface& described_;
  const std::wstring prefix_;  // of the contract's members
  LateObject object_;
  Var definition_;  // a query's, as a text
};

}  // namespace qvr::tests
