#include "qvrscript/windows/registered.h"

#include <array>

#include "QVRlib21.h"
#include "com/clients/late_class.h"
#include "platform/windows/wide_text.h"
#include "qvrscript/windows/library_file.h"

namespace qvr::script_tool::windows {
namespace {

struct LibraryClass {
  const wchar_t* program_id;
  CLSID id;
};

const auto& classes() {
  static const std::array rows = {
      LibraryClass{L"QVRlib21.QVRcfp", __uuidof(QVRcfp)}, LibraryClass{L"QVRlib21.Ov", __uuidof(Ov)},
      LibraryClass{L"QVRlib21.QVRScr", __uuidof(QVRScr)}, LibraryClass{L"QVRlib21.cSQL20", __uuidof(cSQL20)},
      LibraryClass{L"QVRlib21.uSQL20", __uuidof(uSQL20)}, LibraryClass{L"QVRlib21.QVRprp", __uuidof(QVRprp)},
  };
  return rows;
}

struct Place {
  RegistrationScope scope;
  unsigned width;
};

constexpr Place kPlaces[] = {{RegistrationScope::User, 32},
                             {RegistrationScope::Machine, 32},
                             {RegistrationScope::User, 64},
                             {RegistrationScope::Machine, 64}};

std::wstring text_of(REFGUID id) {
  wchar_t text[40];
  StringFromGUID2(id, text, static_cast<int>(std::size(text)));
  return text;
}

// The default value of a key below Software\Classes, environment variables expanded.
std::optional<std::wstring> class_value(const Place& place, const std::wstring& key) {
  const HKEY root = place.scope == RegistrationScope::User ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
  HKEY opened = nullptr;
  const REGSAM view = place.width == 64 ? KEY_WOW64_64KEY : KEY_WOW64_32KEY;
  if (RegOpenKeyExW(root, (L"Software\\Classes\\" + key).c_str(), 0, KEY_READ | view, &opened) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  wchar_t value[4096];
  DWORD size = sizeof value;
  const LSTATUS status = RegGetValueW(opened, nullptr, nullptr, RRF_RT_REG_SZ, nullptr, value, &size);
  RegCloseKey(opened);
  return status == ERROR_SUCCESS ? std::optional<std::wstring>(value) : std::nullopt;
}

std::optional<std::wstring> server_of(const Place& place, const std::wstring& class_id) {
  return class_value(place, L"CLSID\\" + class_id + L"\\InprocServer32");
}

Registration registration_at(const Place& place) {
  Registration found{place.scope, place.width, 0, true, {}};
  for (const LibraryClass& each : classes()) {
    const auto file = server_of(place, text_of(each.id));
    if (!file) continue;
    if (++found.classes == 1) {
      found.file = library_file(*file);
    } else if (!equal_no_case(found.file.path, qvr::windows::text_from(*file))) {
      found.one_file = false;
    }
  }
  return found;
}

bool system_has(const Place& place) {
  SYSTEM_INFO system;
  GetNativeSystemInfo(&system);
  return place.width == 32 || system.wProcessorArchitecture == PROCESSOR_ARCHITECTURE_AMD64;
}

// In this program's width, the user's scope first, as COM does.
template <class Look>
auto first_of_own_width(Look look) -> decltype(look(Place{})) {
  for (const RegistrationScope scope : {RegistrationScope::User, RegistrationScope::Machine}) {
    if (auto found = look(Place{scope, sizeof(void*) * 8})) return found;
  }
  return std::nullopt;
}

std::optional<std::wstring> class_id_of(const wchar_t* program_id) {
  const std::wstring key = std::wstring(program_id) + L"\\CLSID";
  return first_of_own_width([&](const Place& place) { return class_value(place, key); });
}

// InprocServer32 may be quoted, may contain environment variables and may be a file name without a folder.
bool server_exists(const std::wstring& value) {
  wchar_t expanded[4096];
  if (ExpandEnvironmentStringsW(value.c_str(), expanded, static_cast<DWORD>(std::size(expanded))) == 0) return false;
  std::wstring path = expanded;
  if (path.size() > 1 && path.front() == L'"') path = path.substr(1, path.find(L'"', 1) - 1);
  return SearchPathW(nullptr, path.c_str(), nullptr, 0, nullptr, nullptr) != 0;
}

}  // namespace

std::size_t class_count() { return classes().size(); }

std::vector<Registration> registrations(bool one_user_view) {
  std::vector<Registration> found;
  for (const Place& place : kPlaces) {
    if (!system_has(place)) continue;
    Registration each = registration_at(place);
    if (each.classes == 0) continue;
    const unsigned meant = each.file.width != 0 ? each.file.width : static_cast<unsigned>(sizeof(void*) * 8);
    if (one_user_view && place.scope == RegistrationScope::User && place.width != meant) continue;
    found.push_back(std::move(each));
  }
  return found;
}

std::vector<Text> stale_names() {
  std::vector<Text> names;
  for (const LibraryClass& each : classes()) {
    bool named = false, there = false;
    for (const Place& place : kPlaces) {
      if (!system_has(place)) continue;
      named = named || class_value(place, std::wstring(each.program_id) + L"\\CLSID").has_value();
      there = there || server_of(place, text_of(each.id)).has_value();
    }
    if (named && !there) names.push_back(qvr::windows::text_from(each.program_id));
  }
  return names;
}

std::wstring registered_type_library() {
  const std::wstring key = L"TypeLib\\" + text_of(LIBID_QVRlib21) + L"\\1.1\\0\\" +
                           (sizeof(void*) == 8 ? L"win64" : L"win32");
  return first_of_own_width([&](const Place& place) { return class_value(place, key); }).value_or(L"");
}

Component provider(const wchar_t* program_id) {
  Component found{qvr::windows::text_from(program_id), false, false};
  const auto id = class_id_of(program_id);
  if (!id) return found;
  const auto server = first_of_own_width([&](const Place& place) { return server_of(place, *id); });
  // A ProgID whose CLSID exists in the other width only is not registered for this one.
  found.registered = server.has_value();
  found.usable = server && server_exists(*server);
  return found;
}

Component component(const wchar_t* program_id) {
  Component found{qvr::windows::text_from(program_id), false, false};
  if (!com::registered_class(program_id)) return found;
  found.registered = true;
  try {
    com::LateClass(program_id).create();
    found.usable = true;
  } catch (const std::exception&) {
  }
  return found;
}

}  // namespace qvr::script_tool::windows
