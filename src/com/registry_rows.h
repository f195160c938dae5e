// The registry keys of a registered library, as one list: registration writes it, unregistration deletes it.
#pragma once

#include <string>
#include <vector>

#include "com/com.h"

namespace qvr::com {

struct RegistryValue {
  std::wstring key;   // below the classes root
  std::wstring name;  // empty for the key's default value
  std::wstring data;
};

// A key that goes, with all below it, when the library is unregistered. Shared keys belong to both widths.
struct RegistryTree {
  std::wstring key;
  bool shared;
};

struct RegistryRows {
  std::vector<RegistryValue> values;
  std::vector<RegistryTree> trees;
};

// For the library file at this path. Throws when its type library cannot be read.
RegistryRows registry_rows(const std::wstring& library_file);

}  // namespace qvr::com
