// What a look at this machine tells of the library and of what it works with. Gathered by the system's own part of the
// program, judged by the doctor.
#pragma once

#include <cstdint>
#include <vector>

#include "base/text.h"

namespace qvr::script_tool {

// A library file, looked at from outside.
struct LibraryFile {
  Text path;  // empty: none
  bool exists = false;
  unsigned width = 0;  // 32 or 64; 0 where it is no library
  Text version;        // of its version resource, as "2.10.24"
};

// What its own `Ov` says of the file beside this program; empty where it could not be asked.
struct OvMembers {
  bool asked = false;
  std::int32_t version = 0;
  Text version_text, folder, whole_path;
};

enum class RegistrationScope { Machine, User };

// What is registered for hosts of one width in one scope.
struct Registration {
  RegistrationScope scope = RegistrationScope::Machine;
  unsigned width = 0;
  std::size_t classes = 0;  // that have a file
  bool one_file = true;     // all of them lead to it
  LibraryFile file;
};

struct TypeLibraryFacts {
  Text registered;  // the file for this width; empty: none
  bool registered_exists = false;
  Text loaded_from, name, version;  // empty where none could be loaded
};

// A class that others bring along.
struct Component {
  Text program_id;
  bool registered = false;  // for hosts of this width
  bool usable = false;      // its file is there; for the family's own components: an object can be made
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
  std::size_t class_count = 0;  // that a whole registration has
  std::vector<Registration> registrations;
  std::vector<Text> stale_names;  // program ids that lead to no class, for hosts of either width
  TypeLibraryFacts type_library;
  Component ado;
  Text ado_version;
  std::vector<Component> providers, components;
  LanguageFacts language;
  bool desktop = true;
};

// The language as this thread's library would choose it.
LanguageFacts language_facts();

// Each program defines it once: what this machine shows now.
Facts facts_of_this_machine();

}  // namespace qvr::script_tool
