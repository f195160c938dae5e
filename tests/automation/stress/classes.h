// The classes of the library, each with one call whose answer is known: enough to see that an object works.
#pragma once

#include <span>
#include <string>

#include "automation/host.h"

namespace qvr::tests {

struct ClassUnderStress {
  const CLSID& id;
  const wchar_t* program_id;
  std::string (*use)(const LateObject&);  // what a late-bound call answers
  const char* expected;

  bool works(const LateObject& object) const { return use(object) == expected; }
};

std::span<const ClassUnderStress> classes_under_stress();

// A new object from the class object, without the system's help.
ComPtr<IDispatch> created_by(IClassFactory& factory);

}  // namespace qvr::tests
