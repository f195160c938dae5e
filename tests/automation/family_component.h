// A component of the application family as a test plays it: registered under its program id for as long as it lives.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "automation/host.h"

namespace qvr::tests {

class FamilyComponent {
 public:
  // What it writes to an argument goes back to the caller where a text came by reference.
  using Answer = std::function<LateAnswer(const std::wstring& member, std::vector<Var>& arguments)>;

  FamilyComponent(const wchar_t* program_id, std::vector<std::wstring> members, Answer answer);
  ~FamilyComponent();
  FamilyComponent(const FamilyComponent&) = delete;
  FamilyComponent& operator=(const FamilyComponent&) = delete;

  // Takes the class away but leaves the program id registered.
  void revoke();
  // How many components that tests played have not been released.
  static long living();
  const std::vector<std::string>& calls() const { return calls_; }
  void forget_calls() { calls_.clear(); }

 private:
  std::wstring program_id_;
  DWORD cookie_ = 0;
  std::vector<std::string> calls_;
};

}  // namespace qvr::tests
