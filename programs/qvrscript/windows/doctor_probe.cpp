// Gathers what the doctor judges, on Windows.
#include "QVRlib21.h"
#include "com/clients/com_error_report.h"
#include "com/clients/com_script_reader.h"
#include "com/clients/com_text_protection.h"
#include "com/clients/late_class.h"
#include "com/clients/late_object.h"
#include "com/com.h"
#include "com/text_bstr.h"
#include "platform/platform.h"
#include "platform/windows/message_boxes.h"
#include "platform/windows/wide_text.h"
#include "qvrscript/doctor/doctor_facts.h"
#include "qvrscript/windows/library_file.h"
#include "qvrscript/windows/registered.h"
#include "session/global.h"
#include "session/ov.h"
#include "session/value_convert.h"

namespace qvr::script_tool {
namespace {

using com::ComPtr;
using qvr::windows::text_from;
using qvr::windows::wide;

template <class Function>
Function function_of(const wchar_t* module, const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(module), name)));
}

// The real version of Windows: GetVersionEx lies to programs without a manifest.
void look_at_system(Facts& facts) {
  using GetVersion = LONG(WINAPI*)(OSVERSIONINFOW*);
  OSVERSIONINFOW version{};
  version.dwOSVersionInfoSize = sizeof version;
  if (const auto get_version = function_of<GetVersion>(L"ntdll.dll", "RtlGetVersion")) get_version(&version);
  facts.system = join({u"Windows ", decimal(version.dwMajorVersion), u".", decimal(version.dwMinorVersion), u".",
                       decimal(version.dwBuildNumber)});
  using WineVersion = const char*(CDECL*)();
  if (const auto wine_version = function_of<WineVersion>(L"ntdll.dll", "wine_get_version")) {
    const std::string_view number = wine_version();
    facts.wine = true;
    facts.system += join({u", Wine ", Text(number.begin(), number.end())});
  }
  SYSTEM_INFO system;
  GetNativeSystemInfo(&system);
  facts.system_width = system.wProcessorArchitecture == PROCESSOR_ARCHITECTURE_AMD64 ? 64 : 32;
  facts.width = sizeof(void*) * 8;
}

void look_at_library(Facts& facts) {
  facts.folder = Ov::Path(system_platform().system.module_path());
  const std::wstring folder = wide(facts.folder) + L"\\";
  facts.beside = windows::library_file(folder + L"QVRlib21.dll");
  facts.manifest_beside = windows::exists(folder + L"QVRlib21.SxS.manifest");
  if (facts.beside.exists && facts.beside.width == facts.width) facts.ov = windows::ov_of(wide(facts.beside.path));
  facts.class_count = windows::class_count();
  facts.registrations = windows::registrations(facts.wine);
  facts.stale_names = windows::stale_names();
}

void look_at_type_library(Facts& facts) {
  const std::wstring registered = windows::registered_type_library();
  TypeLibraryFacts& types = facts.type_library;
  types.registered = text_from(registered);
  types.registered_exists = windows::exists(registered);
  const std::wstring file = registered.empty() ? wide(facts.beside.path) : registered;
  ComPtr<ITypeLib> library;
  TLIBATTR* attributes = nullptr;
  com::OwnedBstr name;
  if (FAILED(LoadTypeLibEx(file.c_str(), REGKIND_NONE, &library))) return;
  if (FAILED(library->GetDocumentation(MEMBERID_NIL, name.out(), nullptr, nullptr, nullptr))) return;
  if (FAILED(library->GetLibAttr(&attributes))) return;
  types.loaded_from = text_from(file);
  types.name = name.text();
  types.version = join({decimal(attributes->wMajorVerNum), u".", decimal(attributes->wMinorVerNum)});
  library->ReleaseTLibAttr(attributes);
}

void look_at_ado(Facts& facts) {
  facts.ado = windows::component(L"ADODB.Connection");
  if (!facts.ado.usable) return;
  try {
    const com::LateObject connection(com::LateClass(L"ADODB.Connection").create());
    facts.ado_version = to_text(connection.get(L"Version"));
  } catch (const std::exception&) {
    facts.ado_version = u"unknown";
  }
}

void look_at_others(Facts& facts) {
  for (const wchar_t* name :
       {L"Microsoft.Jet.OLEDB.4.0", L"Microsoft.ACE.OLEDB.12.0", L"Microsoft.ACE.OLEDB.16.0", L"SQLOLEDB",
        L"MSOLEDBSQL", L"MSOLEDBSQL19", L"SQLNCLI11", L"MSDAORA", L"OraOLEDB.Oracle", L"MSDASQL"}) {
    facts.providers.push_back(windows::provider(name));
  }
  for (const wchar_t* name :
       {com::ComTextProtection::kProgramId, com::ComErrorReport::kProgramId, com::ComScriptReader::kProgramId}) {
    facts.components.push_back(windows::component(name));
  }
}

}  // namespace

Facts facts_of_this_machine() {
  Facts facts;
  facts.own_version = Ov::CadenaVersion(own_version());
  look_at_system(facts);
  look_at_library(facts);
  look_at_type_library(facts);
  look_at_ado(facts);
  look_at_others(facts);
  facts.language = language_facts();
  facts.desktop = qvr::windows::has_visible_desktop();
  return facts;
}

}  // namespace qvr::script_tool
