// "Gestión": the program of a small business, using the library as any automation host does.

#include "automation.h"
#include "console.h"
#include "registration.h"
#include "steps.h"
#include "text.h"

namespace gestion {
namespace {

class Apartment {
 public:
  Apartment() { require(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), L"Preparing the thread for automation"); }
  ~Apartment() { CoUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

constexpr const wchar_t* kClasses[] = {L"QVRlib21.Ov",     L"QVRlib21.QVRcfp", L"QVRlib21.QVRScr",
                                       L"QVRlib21.QVRprp", L"QVRlib21.cSQL20", L"QVRlib21.uSQL20"};

Scope show_registration(const Setting& setting) {
  const Scope scope = register_library(setting.library, kClasses[0]);
  if (scope == Scope::Machine) say(L"   This system looks among the machine's registrations only.");
  say(scope == Scope::User ? L"   Registered for this user." : L"   Registered for the machine.");
  for (const wchar_t* name : kClasses) {
    expect(leads_to(name, setting.library), std::wstring(L"After registering there is no class ") + name);
    item(name, L"known");
  }
  return scope;
}

void show_removal(const Setting& setting, Scope scope) {
  unregister_library(setting.library, scope);
  for (const wchar_t* name : kClasses) {
    // A registration for the machine that was there before is not this program's to remove.
    const bool remains = leads_to(name, setting.library);
    expect(!remains || scope == Scope::User, std::wstring(L"After removing there still is class ") + name);
    item(name, remains ? L"removed for this user, still registered for the machine" : L"removed");
  }
}

void show_steps(const Setting& setting) {
  heading(L"The library's version");
  show_version(setting);
  heading(L"A file of connection parameters");
  show_parameter_file(setting);
  heading(L"Connection strings");
  const std::wstring connection_string = show_connection_strings(setting);
  heading(L"The database is installed");
  remove_file(setting.database);
  const BusinessScript definition = show_definition(setting, connection_string);
  heading(L"The database is brought up to date");
  BusinessScript script = show_updates(setting, definition, connection_string);
  heading(L"A script with a wrong command, both answers");
  show_failures(setting, script, connection_string);
  heading(L"What the database holds");
  show_rows(script, connection_string);
  heading(L"A list of orders");
  show_query(setting, connection_string);
  heading(L"Dates in words");
  show_dates_in_words(connection_string);
}

void show_all(const Setting& setting) {
  say(L"Gestión: a business program and its database services");
  heading(L"Registration");
  const Scope scope = show_registration(setting);
  try {
    show_steps(setting);
  } catch (const Failure&) {
    if (setting.unregister) unregister_library(setting.library, scope);
    throw;
  }
  if (!setting.unregister) return;
  heading(L"The registration is taken back");
  show_removal(setting, scope);
}

}  // namespace

void show_version(const Setting& setting) {
  const Object version = Object::create(L"QVRlib21.Ov");
  const std::wstring path = version.call(L"PathCompleto").text();
  item(L"Version", version.call(L"Version").text());
  item(L"CadenaVersion", version.call(L"CadenaVersion").text());
  item(L"Path", version.call(L"Path").text());
  item(L"PathCompleto", path);
  expect(lstrcmpiW(path.c_str(), setting.library.c_str()) == 0, L"Another library answered than the one registered");
}

}  // namespace gestion

int wmain(int count, wchar_t** arguments) {
  try {
    const gestion::Setting setting = gestion::read_setting(count, arguments);
    const gestion::Apartment apartment;
    gestion::show_all(setting);
    gestion::say();
    gestion::say(L"Everything was as expected.");
    return 0;
  } catch (const std::exception& surprise) {
    gestion::complain(surprise.what());
    return 1;
  }
}
