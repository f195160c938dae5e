// The registry keys of the library as one list, which registration writes and unregistration deletes.
#pragma once

#include <string>
#include <vector>

#include "com/com.h"

namespace qvr::com {

struct RegistryValue {
  std::wstring key;   // relative to Software\Classes
  std::wstring name;  // empty for the key's default value
  std::wstring data;
};

// A key that unregistration deletes, with its subkeys. Shared keys belong to both widths.
struct RegistryTree {
  std::wstring key;
  bool shared;
  bool only_when_empty = false;  // other versions may be registered below it
};

struct RegistryRows {
  std::vector<RegistryValue> values;
  std::vector<RegistryTree> trees;
};

// For the library file at this path. Throws when its type library cannot be read.
RegistryRows registry_rows(const std::wstring& library_file);

}  // namespace qvr::com
