// The facts that the doctor judges: the library, its registration and what it works with. Gathered by windows/ or
// posix/.
#pragma once

#include <cstdint>
#include <vector>

#include "base/text.h"

namespace qvr::script_tool {

// A library file.
struct LibraryFile {
  Text path;  // empty: none
  bool exists = false;
  unsigned width = 0;  // 32 or 64; 0: not a library
  Text version;        // of its version resource, as "2.10.24"
};

// The answers of `Ov` of the library beside this program; empty when it could not be created.
struct OvMembers {
  bool asked = false;
  std::int32_t version = 0;
  Text version_text, folder, whole_path;
};

enum class RegistrationScope { Machine, User };

// The registration for one width in one scope.
struct Registration {
  RegistrationScope scope = RegistrationScope::Machine;
  unsigned width = 0;
  std::size_t classes = 0;  // that have a file
  bool one_file = true;     // all of them name the same file
  LibraryFile file;
};

struct TypeLibraryFacts {
  Text registered;  // the file for this width; empty: none
  bool registered_exists = false;
  Text loaded_from, name, version;  // empty where none could be loaded
};

// A class of another product.
struct Component {
  Text program_id;
  bool registered = false;  // for hosts of this width
  bool usable = false;      // its file exists; for the family's components: an object can be created
};

// The languages by their numbers.
struct LanguageFacts {
  Text setting;               // empty: none
  std::uint16_t of_user = 0;  // Windows' identifier
  std::int32_t asked = 0, shown = 0;
};

struct Facts {
  bool windows = true;
  bool wine = false;
  Text system;         // its name and version
  unsigned width = 0;  // of this program
  unsigned system_width = 0;
  Text own_version;
  Text folder;         // of this program
  LibraryFile beside;  // the library there
  bool manifest_beside = false;
  OvMembers ov;
  std::size_t class_count = 0;  // of a complete registration
  std::vector<Registration> registrations;
  std::vector<Text> stale_names;  // ProgIDs without a class, in either width
  TypeLibraryFacts type_library;
  Component ado;
  Text ado_version;
  std::vector<Component> providers, components;
  LanguageFacts language;
  bool desktop = true;
};

// The language that the library would choose.
LanguageFacts language_facts();

// Gathers the facts. Defined by windows/ or posix/, and by tests.
Facts facts_of_this_machine();

}  // namespace qvr::script_tool
