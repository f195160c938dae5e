// What the library works with: ADO, providers, the family's components, the language and the desktop.
#include <algorithm>

#include "qvrscript/doctor/doctor_subjects.h"
#include "session/catalogue.h"

namespace qvr::script_tool {
namespace {

struct EngineProviders {
  TextView engine;
  std::vector<TextView> names;
  TextView advice;
};

const std::vector<EngineProviders>& engines() {
  static const std::vector<EngineProviders> rows = {
      {u"Jet",
       {u"Microsoft.Jet.OLEDB.4.0", u"Microsoft.ACE.OLEDB.12.0", u"Microsoft.ACE.OLEDB.16.0"},
       u"Jet 4.0 is there for 32-bit programs only; install the Access Database Engine of this width."},
      {u"SQL Server",
       {u"SQLOLEDB", u"MSOLEDBSQL", u"MSOLEDBSQL19", u"SQLNCLI11"},
       u"Install the OLE DB Driver for SQL Server (MSOLEDBSQL)."},
      {u"Oracle", {u"MSDAORA", u"OraOLEDB.Oracle"}, u"Install Oracle's client of this width with OraOLEDB."},
      {u"ODBC",
       {u"MSDASQL"},
       u"It is part of Windows; where an ODBC driver is to be used, repair Windows' components."},
  };
  return rows;
}

const Component* component_of(const std::vector<Component>& components, TextView name) {
  const auto found = std::ranges::find_if(components, [&](const Component& each) { return each.program_id == name; });
  return found == components.end() ? nullptr : &*found;
}

TextView language_word(std::int32_t number) {
  static constexpr TextView kWords[] = {u"Spanish", u"English", u"Italian", u"French"};
  return number >= 0 && number < language::kCarried ? kWords[number] : u"unknown";
}

// The consequence of a component that is registered but does not work.
struct FamilyComponent {
  TextView program_id, task, without;
  bool wrong;
};

constexpr FamilyComponent kFamily[] = {
    {u"QVRServicios.ProteccionTexto", u"protects texts", u"Crear and Guardar of QVRcfp answer False", true},
    {u"QVRServicios.InformeErrores", u"reports failures", u"failures are shown in the library's own box", false},
    {u"QVRServicios.LectorScripts", u"reads script files", u"no script file is loaded", true},
};

}  // namespace

void diagnose_ado(const Facts& facts, Diagnoses& found) {
  found.of("ado");
  if (facts.ado.usable) {
    found.ok({u"ADODB.Connection, version ", facts.ado_version});
  } else if (facts.ado.registered) {
    found.error({u"ADODB.Connection is registered and cannot be created for ", width_text(facts.width), u" programs"},
                {u"Repair Windows' components (sfc /scannow): ADO is one of them."});
  } else {
    found.error({u"ADODB.Connection is not registered for ", width_text(facts.width), u" programs"},
                {u"Repair Windows' components (sfc /scannow): ADO is one of them."});
  }
}

void diagnose_providers(const Facts& facts, Diagnoses& found) {
  found.of("providers");
  bool any = false;
  for (const EngineProviders& row : engines()) {
    std::vector<Text> usable;
    for (const TextView name : row.names) {
      const Component* each = component_of(facts.providers, name);
      if (each == nullptr || !each->registered) continue;
      if (each->usable) {
        usable.emplace_back(name);
      } else {
        found.error({name, u" is registered and its file is not there"},
                    {u"Install the provider again, or uninstall it."});
      }
    }
    any = any || !usable.empty();
    if (!usable.empty()) {
      found.ok({row.engine, u": ", join(usable, u", ")});
    } else {
      found.note({row.engine, u": none for ", width_text(facts.width), u" programs"},
                 {u"Only where this engine is used: ", row.advice});
    }
  }
  if (!any) {
    found.error({u"No provider at all: ADO reaches no database from ", width_text(facts.width), u" programs"},
                {u"Install the provider of the engine that the application uses, in this width."});
  }
}

void diagnose_components(const Facts& facts, Diagnoses& found) {
  found.of("components");
  for (const FamilyComponent& row : kFamily) {
    const Component* each = component_of(facts.components, row.program_id);
    if (each == nullptr || !each->registered) {
      found.ok({row.program_id, u", which ", row.task, u": not registered, the library's own part does it"});
    } else if (each->usable) {
      found.ok({row.program_id, u", which ", row.task, u": registered and used"});
    } else if (row.wrong) {
      found.error({row.program_id, u" is registered and cannot be created: ", row.without},
                  {u"Install the component again for ", width_text(facts.width), u" programs, or unregister it."});
    } else {
      found.note({row.program_id, u" is registered and cannot be created: ", row.without},
                 {u"Install the component again for ", width_text(facts.width), u" programs, or unregister it."});
    }
  }
}

void diagnose_language(const Facts& facts, Diagnoses& found) {
  const LanguageFacts& language = facts.language;
  found.of("language");
  const Text told = join({language_word(language.shown), u": "});
  if (language.setting.empty()) {
    found.ok({told, u"by the user's regional format ", u"0x", hexadecimal(language.of_user, 4),
              u"; there is no setting QVR\\Idioma\\IdiomaOmision"});
  } else if (language.asked == language.shown) {
    found.ok({told, u"by the setting QVR\\Idioma\\IdiomaOmision, \"", language.setting, u"\""});
  } else {
    found.note({told, u"the nearest to the setting QVR\\Idioma\\IdiomaOmision, \"", language.setting,
                u"\", which no catalogue has"},
               {u"Set it to 0 for Spanish, 1 for English, 3 for French."});
  }
}

void diagnose_desktop(const Facts& facts, Diagnoses& found) {
  found.of("desktop");
  if (facts.desktop) {
    found.ok({u"Message boxes can be seen here"});
  } else {
    found.note({u"Nobody sees message boxes here: their texts go to the debugger's log, questions are answered No"},
               {u"Run the application in a user's session where somebody is to answer."});
  }
}

}  // namespace qvr::script_tool
