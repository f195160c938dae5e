#include "doctor/machine.h"

namespace qvr {
namespace {

script_tool::Facts& machine() {
  static script_tool::Facts facts = tests::sound_machine();
  return facts;
}

}  // namespace

script_tool::Facts script_tool::facts_of_this_machine() { return machine(); }

void tests::set_machine(const script_tool::Facts& facts) { machine() = facts; }

script_tool::Facts tests::sound_machine() {
  using namespace script_tool;
  const LibraryFile file = {u"C:\\q\\win32\\QVRlib21.dll", true, 32, u"2.10.24"};
  Facts facts;
  facts.system = u"Windows 10.0.19045";
  facts.width = 32;
  facts.system_width = 64;
  facts.own_version = u"2.10.24";
  facts.folder = u"C:\\q\\win32";
  facts.beside = file;
  facts.ov = {true, 21024, u"2.10.24", u"C:\\q\\win32", u"C:\\q\\win32\\QVRlib21.dll"};
  facts.class_count = 6;
  facts.registrations = {{RegistrationScope::User, 32, 6, true, file},
                         {RegistrationScope::User, 64, 6, true, {u"C:\\q\\win64\\QVRlib21.dll", true, 64, u"2.10.24"}}};
  facts.type_library = {file.path, true, file.path, u"QVRlib21", u"1.1"};
  facts.ado = {u"ADODB.Connection", true, true};
  facts.ado_version = u"10.0";
  for (const TextView name : {u"Microsoft.Jet.OLEDB.4.0", u"SQLOLEDB", u"MSDAORA", u"MSDASQL"}) {
    facts.providers.push_back({Text(name), true, true});
  }
  facts.language = {u"0", 0x0C0A, 0, 0};
  return facts;
}

}  // namespace qvr
