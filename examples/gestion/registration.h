// Making the library known to the system: to this user where that suffices, which needs no rights over the machine.
#pragma once

#include <string>

namespace gestion {

enum class Scope { User, Machine };

// Some systems, Wine 8 among them, look for classes among the machine's registrations only. When `class_name` does not
// lead to the library after registering it for the user, it is registered for the machine instead.
Scope register_library(const std::wstring& dll, const std::wstring& class_name);
void unregister_library(const std::wstring& dll, Scope scope);

// Whether the system takes that library for an object of the class.
bool leads_to(const std::wstring& class_name, const std::wstring& dll);

}  // namespace gestion
