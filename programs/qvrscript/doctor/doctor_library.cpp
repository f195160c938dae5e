// The library's file, its registration and its type library.
#include "qvrscript/doctor/doctor_subjects.h"

namespace qvr::script_tool {
namespace {

TextView scope_word(RegistrationScope scope) {
  return scope == RegistrationScope::User ? u"for the user" : u"for the machine";
}

// The best known path of the library of this width.
Text file_to_register(const Facts& facts, unsigned width) {
  if (facts.beside.exists && facts.beside.width == width) return facts.beside.path;
  return join({u"win", decimal(width), u"\\QVRlib21.dll"});
}

void diagnose_one(const Facts& facts, const Registration& each, Diagnoses& found) {
  const Text hosts = join({width_text(each.width), u" programs, ", scope_word(each.scope), u": "});
  const Text again = registering(facts, each.width, each.scope, file_to_register(facts, each.width));
  if (!each.file.exists) {
    found.error({hosts, u"leads to ", each.file.path, u", which is not there"},
                {u"Register the library where it is now, which writes the same keys: ", again});
  } else if (each.file.width != each.width) {
    const Text what = each.file.width == 0 ? Text(u"is no library")
                                           : join({u"is a library for ", width_text(each.file.width), u" programs"});
    found.error({hosts, u"leads to ", each.file.path, u", which ", what},
                {u"Register the library of the right width in its place: ", again});
  } else if (each.classes < facts.class_count || !each.one_file) {
    const Text classes = join({decimal(static_cast<std::int64_t>(each.classes)), u" of ",
                               decimal(static_cast<std::int64_t>(facts.class_count)), u" classes"});
    found.error({hosts, each.one_file ? classes : Text(u"the classes lead to several files")},
                {u"Register it again, which makes the keys whole: ",
                 registering(facts, each.width, each.scope, each.file.path)});
  } else if (facts.beside.exists && each.file.version != facts.beside.version) {
    found.error({hosts, each.file.path, u" has version ", each.file.version, u", the library beside this program ",
                 facts.beside.version},
                {u"Register the one that the applications are meant to use: ", again});
  } else {
    found.ok({hosts, each.file.path, u", version ", each.file.version});
  }
}

bool any_of(const Facts& facts, unsigned width) {
  for (const Registration& each : facts.registrations) {
    if (each.width == width) return true;
  }
  return false;
}

void diagnose_none(const Facts& facts, Diagnoses& found) {
  const Text command = registering(facts, facts.width, RegistrationScope::User, file_to_register(facts, facts.width));
  if (facts.manifest_beside) {
    found.note({u"Not registered for ", width_text(facts.width), u" programs; the manifest beside the library serves ",
                u"programs whose own manifest names it, and no scripts"},
               {u"Where scripts or other programs are to create the classes, register it: ", command});
  } else {
    found.error({u"Not registered for ", width_text(facts.width), u" programs: the classes cannot be created"},
                {u"Register it: ", command});
  }
}

// A per-user registration hides the machine's, except from elevated programs.
void diagnose_both_scopes(const Facts& facts, Diagnoses& found) {
  const Registration* of_user = nullptr;
  const Registration* of_machine = nullptr;
  for (const Registration& each : facts.registrations) {
    if (each.width != facts.width) continue;
    (each.scope == RegistrationScope::User ? of_user : of_machine) = &each;
  }
  if (of_user == nullptr || of_machine == nullptr || equal_no_case(of_user->file.path, of_machine->file.path)) return;
  found.note({u"User and machine have different files; the user's counts, but not for programs run as administrator"},
             {u"Take away the one that is not meant: regsvr32 with /u, and for the user's with /n /i:user as well."});
}

}  // namespace

Text registering(const Facts& facts, unsigned width, RegistrationScope scope, TextView file) {
  const bool other_folder = facts.system_width == 64 && width == 32;
  const TextView folder = other_folder ? u"%SystemRoot%\\SysWOW64\\" : u"%SystemRoot%\\System32\\";
  return join({folder, u"regsvr32.exe ", scope == RegistrationScope::User ? u"/n /i:user " : u"", u"\"", file, u"\""});
}

void diagnose_library(const Facts& facts, Diagnoses& found) {
  found.of("library");
  const LibraryFile& file = facts.beside;
  if (!file.exists) {
    found.note({u"There is no QVRlib21.dll beside this program, in ", facts.folder},
               {u"To have the library itself looked at, run the qvrscript.exe that came with it."});
  } else if (file.width != facts.width) {
    const Text what = file.width == 0 ? Text(u"no library")
                                      : join({u"a library for ", width_text(file.width), u" programs"});
    found.error({file.path, u" is ", what, u", and this program has ", width_text(facts.width)},
                {u"Keep the files of win32 and win64 in folders of their own, as they were packed."});
  } else if (!facts.ov.asked) {
    found.error({file.path, u" is there and does not load"},
                {u"Unpack it again from the package and compare it with SHA256SUMS."});
  } else {
    found.ok({u"Ov.PathCompleto ", facts.ov.whole_path});
    found.ok({u"Ov.Path ", facts.ov.folder});
    found.ok({u"Ov.CadenaVersion ", facts.ov.version_text, u", Ov.Version ", decimal(facts.ov.version)});
    if (facts.ov.version_text != facts.own_version) {
      found.error({u"The library beside this program has version ", facts.ov.version_text, u", the program ",
                   facts.own_version},
                  {u"Unpack both from one package."});
    }
  }
}

void diagnose_registration(const Facts& facts, Diagnoses& found) {
  found.of("registration");
  if (!any_of(facts, facts.width)) diagnose_none(facts, found);
  for (const Registration& each : facts.registrations) diagnose_one(facts, each, found);
  diagnose_both_scopes(facts, found);
  const unsigned other = facts.width == 32 ? 64u : 32u;
  if (facts.system_width == 64 && !any_of(facts, other)) {
    found.note({u"Not registered for ", width_text(other), u" programs"},
               {u"Where such programs are to use it: ",
                registering(facts, other, RegistrationScope::User, file_to_register(facts, other))});
  }
  if (!facts.stale_names.empty()) {
    found.error({u"Names without a class: ", join(facts.stale_names, u", ")},
                {u"Register and unregister the library of either width once, which takes them away."});
  }
}

void diagnose_type_library(const Facts& facts, Diagnoses& found) {
  const TypeLibraryFacts& types = facts.type_library;
  found.of("type library");
  if (!types.registered.empty() && !types.registered_exists) {
    found.error({u"leads to ", types.registered, u", which is not there"},
                {u"Register the library where it is now: ",
                 registering(facts, facts.width, RegistrationScope::User, file_to_register(facts, facts.width))});
    return;
  }
  if (types.loaded_from.empty()) {
    if (!types.registered.empty() || facts.beside.exists) {
      found.error({u"None can be loaded from ", types.registered.empty() ? facts.beside.path : types.registered},
                  {u"Unpack the library again from the package and register it."});
    }
    return;
  }
  const TextView registered = types.registered.empty() ? u", not registered, loads from " : u", loads from ";
  found.ok({types.name, u" ", types.version, registered, types.loaded_from});
}

}  // namespace qvr::script_tool
