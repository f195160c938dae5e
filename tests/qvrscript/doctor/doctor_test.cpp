// The findings of the doctor.
#include "qvrscript/doctor/doctor.h"

#include <gtest/gtest.h>

#include "base/utf8.h"
#include "doctor/machine.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

using namespace script_tool;

// What a change to a sound machine adds: "level subject: message -> advice", without what is fine.
std::vector<std::string> wrong_after(void (*change)(Facts&)) {
  Facts facts = sound_machine();
  change(facts);
  std::vector<std::string> found;
  for (const Diagnosis& each : diagnose(facts)) {
    EXPECT_EQ(each.advice.empty(), each.level == Level::Ok) << to_utf8(each.message);
    if (each.level == Level::Ok) continue;
    found.push_back((each.level == Level::Error ? "error " : "note ") + std::string(each.subject) + ": " +
                    to_utf8(each.message) + " -> " + to_utf8(each.advice));
  }
  return found;
}

// Commands of the advice.
const std::string kRegsvr32 = "%SystemRoot%\\SysWOW64\\regsvr32.exe ";
const std::string kRegsvr64 = "%SystemRoot%\\System32\\regsvr32.exe ";
const std::string kOwn = "/n /i:user \"C:\\q\\win32\\QVRlib21.dll\"";

struct Row {
  const char* name;
  void (*change)(Facts&);
  std::vector<std::string> found;
};

void expect_found(const std::vector<Row>& rows) {
  for (const Row& row : rows) EXPECT_EQ(wrong_after(row.change), row.found) << row.name;
}

TEST(Doctor, FindsNothingOnASoundMachine) {
  EXPECT_EQ(wrong_after([](Facts&) {}), std::vector<std::string>());
}

TEST(Doctor, LooksAtTheFileBesideIt) {
  expect_found({
      {"none",
       [](Facts& f) {
         f.beside = {};
         f.ov = {};
       },
       {"note library: There is no QVRlib21.dll beside this program, in C:\\q\\win32 -> To have the library itself "
        "looked at, run the qvrscript.exe that came with it."}},
      {"other width",
       [](Facts& f) {
         f.beside.width = 64;
         f.ov = {};
         f.registrations[0].file.path = u"C:\\o.dll";
       },
       {"error library: C:\\q\\win32\\QVRlib21.dll is a library for 64-bit programs, and this program has 32-bit -> "
        "Keep the files of win32 and win64 in folders of their own, as they were packed."}},
      {"no library",
       [](Facts& f) {
         f.beside.width = 0;
         f.ov = {};
       },
       {"error library: C:\\q\\win32\\QVRlib21.dll is no library, and this program has 32-bit -> Keep the files of "
        "win32 and win64 in folders of their own, as they were packed."}},
      {"does not load",
       [](Facts& f) { f.ov = {}; },
       {"error library: C:\\q\\win32\\QVRlib21.dll is there and does not load -> Unpack it again from the package and "
        "compare it with SHA256SUMS."}},
      {"another version than the program",
       [](Facts& f) { f.own_version = u"2.10.25"; },
       {"error library: The library beside this program has version 2.10.24, the program 2.10.25 -> Unpack both from "
        "one package."}},
  });
}

const Row kRegistrations[] = {
    {"stale path",
     [](Facts& f) {
       f.registrations[0].file = {u"D:\\old.dll", false, 0, u""};
     },
     {"error registration: 32-bit programs, for the user: leads to D:\\old.dll, which is not there -> Register the "
      "library where it is now, which writes the same keys: " +
      kRegsvr32 + kOwn}},
    {"stale path of the other width, of the machine",
     [](Facts& f) {
       f.registrations[1].scope = RegistrationScope::Machine;
       f.registrations[1].file = {u"D:\\old.dll", false, 0, u""};
     },
     {"error registration: 64-bit programs, for the machine: leads to D:\\old.dll, which is not there -> Register "
      "the library where it is now, which writes the same keys: " +
      kRegsvr64 + "\"win64\\QVRlib21.dll\""}},
    {"wrong width",
     [](Facts& f) { f.registrations[0].file.width = 64; },
     {"error registration: 32-bit programs, for the user: leads to C:\\q\\win32\\QVRlib21.dll, which is a library "
      "for 64-bit programs -> Register the library of the right width in its place: " +
      kRegsvr32 + kOwn}},
    {"no library",
     [](Facts& f) { f.registrations[0].file.width = 0; },
     {"error registration: 32-bit programs, for the user: leads to C:\\q\\win32\\QVRlib21.dll, which is no library "
      "-> Register the library of the right width in its place: " +
      kRegsvr32 + kOwn}},
    {"not whole",
     [](Facts& f) { f.registrations[0].classes = 5; },
     {"error registration: 32-bit programs, for the user: 5 of 6 classes -> Register it again, which makes the keys "
      "whole: " +
      kRegsvr32 + kOwn}},
    {"several files",
     [](Facts& f) { f.registrations[0].one_file = false; },
     {"error registration: 32-bit programs, for the user: the classes lead to several files -> Register it again, "
      "which makes the keys whole: " +
      kRegsvr32 + kOwn}},
    {"another version",
     [](Facts& f) { f.registrations[0].file.version = u"2.9.1"; },
     {"error registration: 32-bit programs, for the user: C:\\q\\win32\\QVRlib21.dll has version 2.9.1, the library "
      "beside this program 2.10.24 -> Register the one that the applications are meant to use: " +
      kRegsvr32 + kOwn}},
    {"stale names",
     [](Facts& f) {
       f.stale_names = {u"QVRlib21.Ov", u"QVRlib21.QVRcfp"};
     },
     {"error registration: Names without a class: QVRlib21.Ov, QVRlib21.QVRcfp -> Register and unregister the "
      "library of either width once, which takes them away."}},
    {"two scopes",
     [](Facts& f) {
       f.registrations.push_back(f.registrations[0]);
       f.registrations.back().scope = RegistrationScope::Machine;
       f.registrations.back().file.path = u"C:\\other\\QVRlib21.dll";
     },
     {"note registration: User and machine have different files; the user's counts, but not for programs run as "
      "administrator -> Take away the one that is not meant: regsvr32 with /u, and for the user's with /n /i:user "
      "as well."}},
};

using DoctorsRegistration = Rows<testing::Test, Row>;

TEST_P(DoctorsRegistration, IsLookedAt) { EXPECT_EQ(wrong_after(GetParam().change), GetParam().found); }

INSTANTIATE_TEST_SUITE_P(, DoctorsRegistration, testing::ValuesIn(kRegistrations), row_name);

TEST(Doctor, TellsHowToRegister) {
  const std::string kOther =
      "note registration: Not registered for 64-bit programs -> Where such programs are to use it: " + kRegsvr64 +
      "/n /i:user \"win64\\QVRlib21.dll\"";
  expect_found({
      {"nothing",
       [](Facts& f) { f.registrations.clear(); },
       {"error registration: Not registered for 32-bit programs: the classes cannot be created -> Register it: " +
            kRegsvr32 + kOwn,
        kOther}},
      {"a manifest",
       [](Facts& f) {
         f.registrations.clear();
         f.manifest_beside = true;
       },
       {"note registration: Not registered for 32-bit programs; the manifest beside the library serves programs whose "
        "own manifest names it, and no scripts -> Where scripts or other programs are to create the classes, register "
        "it: " +
            kRegsvr32 + kOwn,
        kOther}},
      {"the other width only",
       [](Facts& f) { f.registrations.erase(f.registrations.begin()); },
       {"error registration: Not registered for 32-bit programs: the classes cannot be created -> Register it: " +
        kRegsvr32 + kOwn}},
      {"a system of one width",
       [](Facts& f) {
         f.registrations.clear();
         f.system_width = 32;
       },
       {"error registration: Not registered for 32-bit programs: the classes cannot be created -> Register it: " +
        kRegsvr64 + kOwn}},
  });
}

TEST(Doctor, LooksAtTheTypeLibrary) {
  expect_found({
      {"stale",
       [](Facts& f) {
         f.type_library = {u"D:\\old.dll", false, u"", u"", u""};
       },
       {"error type library: leads to D:\\old.dll, which is not there -> Register the library where it is now: " +
        kRegsvr32 + kOwn}},
      {"does not load",
       [](Facts& f) {
         f.type_library = {u"C:\\o.dll", true, u"", u"", u""};
       },
       {"error type library: None can be loaded from C:\\o.dll -> Unpack the library again from the package and "
        "register it."}},
      {"neither registered nor to be loaded",
       [](Facts& f) { f.type_library = {}; },
       {"error type library: None can be loaded from C:\\q\\win32\\QVRlib21.dll -> Unpack the library again from the "
        "package and register it."}},
      {"not registered", [](Facts& f) { f.type_library.registered.clear(); }, {}},
  });
}

TEST(Doctor, LooksAtAdoAndProviders) {
  const std::string repair = " -> Repair Windows' components (sfc /scannow): ADO is one of them.";
  expect_found({
      {"no ADO",
       [](Facts& f) { f.ado.registered = f.ado.usable = false; },
       {"error ado: ADODB.Connection is not registered for 32-bit programs" + repair}},
      {"broken ADO",
       [](Facts& f) { f.ado.usable = false; },
       {"error ado: ADODB.Connection is registered and cannot be created for 32-bit programs" + repair}},
      {"no provider of one engine",
       [](Facts& f) { f.providers.erase(f.providers.begin() + 1); },
       {"note providers: SQL Server: none for 32-bit programs -> Only where this engine is used: Install the OLE DB "
        "Driver for SQL Server (MSOLEDBSQL)."}},
      {"a provider without its file",
       [](Facts& f) { f.providers[2].usable = false; },
       {"error providers: MSDAORA is registered and its file is not there -> Install the provider again, or uninstall "
        "it.",
        "note providers: Oracle: none for 32-bit programs -> Only where this engine is used: Install Oracle's client "
        "of this width with OraOLEDB."}},
  });
  const auto none = wrong_after([](Facts& f) { f.providers.clear(); });
  ASSERT_EQ(none.size(), 5u);
  EXPECT_EQ(none[4],
            "error providers: No provider at all: ADO reaches no database from 32-bit programs -> Install the "
            "provider of the engine that the application uses, in this width.");
}

TEST(Doctor, LooksAtTheFamilysComponents) {
  const std::string again = " -> Install the component again for 32-bit programs, or unregister it.";
  expect_found({
      {"usable",
       [](Facts& f) {
         f.components = {{u"QVRServicios.ProteccionTexto", true, true}, {u"QVRServicios.LectorScripts", true, true}};
       },
       {}},
      {"protection",
       [](Facts& f) {
         f.components = {{u"QVRServicios.ProteccionTexto", true, false}};
       },
       {"error components: QVRServicios.ProteccionTexto is registered and cannot be created: Crear and Guardar of "
        "QVRcfp answer False" +
        again}},
      {"report",
       [](Facts& f) {
         f.components = {{u"QVRServicios.InformeErrores", true, false}};
       },
       {"note components: QVRServicios.InformeErrores is registered and cannot be created: failures are shown in the "
        "library's own box" +
        again}},
      {"reader",
       [](Facts& f) {
         f.components = {{u"QVRServicios.LectorScripts", true, false}};
       },
       {"error components: QVRServicios.LectorScripts is registered and cannot be created: no script file is loaded" +
        again}},
  });
}

TEST(Doctor, LooksAtLanguageDesktopAndWine) {
  expect_found({
      {"a language that there is not",
       [](Facts& f) {
         f.language = {u"8", 0x0407, 8, 1};
       },
       {"note language: English: the nearest to the setting QVR\\Idioma\\IdiomaOmision, \"8\", which no catalogue has "
        "-> Set it to 0 for Spanish, 1 for English, 3 for French."}},
      {"no setting",
       [](Facts& f) {
         f.language = {u"", 0x040C, 3, 3};
       },
       {}},
      {"no desktop",
       [](Facts& f) { f.desktop = false; },
       {"note desktop: Nobody sees message boxes here: their texts go to the debugger's log, questions are answered No "
        "-> Run the application in a user's session where somebody is to answer."}},
      {"Wine",
       [](Facts& f) { f.wine = true; },
       {"note process: This is Wine: it looks for classes in the machine's registration only, and its ADO runs no "
        "commands -> Register for the machine here, and look at databases on a Windows machine."}},
  });
}

}  // namespace
}  // namespace qvr::tests
