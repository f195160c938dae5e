#include "platform/windows/disk_path.h"

#include <algorithm>

namespace qvr::windows {
namespace {

constexpr TextView kSeparators = u"\\/";

bool is_separator(char16_t unit) { return kSeparators.find(unit) != TextView::npos; }

bool is_any_of(TextView name, std::initializer_list<TextView> names) {
  return std::ranges::any_of(names, [&](TextView each) { return equal_no_case(name, each); });
}

// A device has its name in every folder, and keeps it with blanks and any extension behind it.
bool names_device(TextView component) {
  component = component.substr(0, component.find(u'.'));
  const TextView name = component.substr(0, component.find_last_not_of(u' ') + 1);
  if (is_any_of(name, {u"CON", u"PRN", u"AUX", u"NUL", u"CLOCK$", u"CONIN$", u"CONOUT$"})) return true;
  constexpr TextView kPorts = u"123456789\u00b9\u00b2\u00b3";
  return name.size() == 4 && is_any_of(name.substr(0, 3), {u"COM", u"LPT"}) && kPorts.find(name[3]) != TextView::npos;
}

std::vector<TextView> components_of(TextView path) {
  std::vector<TextView> components;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find_first_of(kSeparators), path.size());
    if (end > 0) components.push_back(path.substr(0, end));
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return components;
}

// "server\share\..."; two shares of every server lead to its pipes and mailslots, a third to its devices.
bool has_share_of_files(TextView path) {
  const auto components = components_of(path);
  return components.size() > 2 && !is_any_of(components[1], {u".", u"..", u"pipe", u"mailslot", u"IPC$"});
}

bool starts_with_drive(TextView path) { return path.size() >= 2 && is_ascii_letter(path[0]) && path[1] == u':'; }

bool has_colon(TextView path) { return path.find(u':') != TextView::npos; }

// Behind "\\?\" every name is taken as it is, that of a device too, but the path itself may begin with a device.
bool is_verbatim_disk_path(TextView rest) {
  if (starts_with_drive(rest)) return rest.size() > 2 && rest[2] == u'\\' && !has_colon(rest.substr(2));
  if (has_colon(rest)) return false;
  if (starts_with_no_case(rest, u"UNC\\")) return has_share_of_files(rest.substr(4));
  return starts_with_no_case(rest, u"Volume{");
}

bool has_names_of_files(TextView path) {
  const auto components = components_of(path);
  const bool changed = !path.empty() && (path.back() == u'.' || path.back() == u' ');
  return !changed && !has_colon(path) && std::ranges::none_of(components, names_device);
}

}  // namespace

bool is_disk_path(TextView path) {
  if (path.find(u'\0') != TextView::npos) return false;  // Windows would stop at the NUL
  if (path.starts_with(u"\\\\?\\")) return is_verbatim_disk_path(path.substr(4));
  if (starts_with_drive(path)) return has_names_of_files(path.substr(2));
  const bool has_root = path.size() >= 2 && is_separator(path[0]) && is_separator(path[1]);
  if (!has_root) return has_names_of_files(path);
  const auto components = components_of(path);
  const bool device = !components.empty() && is_any_of(components[0], {u".", u"?"});  // "\\.\", "//?/"
  return !device && has_share_of_files(path) && has_names_of_files(path);
}

}  // namespace qvr::windows
