// A host that uses AgregarParametroADO.
#pragma once

#include "automation/both.h"

namespace qvr::tests {

// "@p: type 3, size 0, ..., I4 5": all that the command's parameter says of itself, its value last.
std::string described_parameter(const LateObject& command, int index);
long count_of_parameters(const LateObject& command);

struct ParameterRequest {
  Var type, name = L"@p", value = 5, width = 0, direction = 1;
};

class ParameterHost {
 public:
  void use(int engine) const;

  // "BOOL true", "BOOL false"
  std::string append_early(IDispatch* command, ParameterRequest request) const;
  std::string append_late(IDispatch* command, const ParameterRequest& request) const;

  // Expects True, and this parameter in a command, both early and late.
  void expect_appended(const ParameterRequest& request, const std::string& expected) const;
  // Expects False both early and late, and a command without parameters: the text of the box that both see, "silence"
  // where there is none.
  std::string refused(const ParameterRequest& request) const;

  const LateObject& object() const { return cfp_; }
  ComPtr<_QVRcfp> slots() const { return cfp_.as<_QVRcfp>(); }

 private:
  LateObject cfp_{L"QVRlib21.QVRcfp"};
};

}  // namespace qvr::tests
