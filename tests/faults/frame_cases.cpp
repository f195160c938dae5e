// The shared functions, the language object and Ov.
#include <utility>

#include "dialect/literals.h"
#include "faults/fault_case.h"
#include "session/global.h"
#include "session/ov.h"
#include "support/temporary_folder.h"

namespace qvr::tests {
namespace {

constexpr VersionNumbers kVersion{2147483647, 10, 1000000};
constexpr TextView kLibrary = u"C:\\Program Files\\Gestion\\Library.bin";

// The thread's language object.
struct Language {
  Language() { thread.load_language(u"1"); }
  IdiomaSimple& idioma() { return thread_state().idioma; }
  std::string state() {
    return std::to_string(idioma().Idioma()) + shown(idioma().Creado()) + shown(idioma().CI(MsgTipoInesperado)) +
           shown(idioma().IdiomasDisponibles());
  }
  TestThread thread;
  const std::vector<Value> values = {Text(u"a first value"), Text(u"a second value")};
};

// A language object of its own, before its catalogue.
struct Unloaded {
  Unloaded() { CtesMensajes(table); }
  std::string state() { return shown(idioma.Creado()) + shown(idioma.CI(MsgMetodo)); }
  TestThread thread;
  TextTable table{kMessageCount, language::kCarried};
  std::vector<std::vector<Value>> languages = {3, {0, 1, 2, 3}};  // given away, one for each call
  std::size_t next = 0;
  IdiomaSimple idioma{thread.user_language};
};

// A thread on which nothing was done, not even its state made.
struct NewThread {
  NewThread() {
    thread.settings.set_default_language(u"3.00000000000000000000000000000000");
    folder.write(u"a file of some length.txt", "x");
  }
  // As the next object finds it.
  std::string state() {
    InicializarComun();
    return std::to_string(IdiomaOmision()) + shown(thread_state().idioma.CI(MsgMetodo));
  }
  TestThread thread;
  TemporaryFolder folder;
  const Text file = folder.file_text(u"a file of some length.txt");
};

FaultCase ov(const char* name, const char* expected, Text (*member)()) {
  return fault_case<Language>(name, expected, {""}, [member](Language&) { return member(); });
}

std::vector<FaultCase> language_cases() {
  const auto on = [](const char* name, const char* expected, Texts failures, auto call) {
    return fault_case<Language>(name, expected, std::move(failures), call);
  };
  std::vector<FaultCase> all = {
      on("IdiomaSimple.CI", "Do you want further commands to execute?", {""},
         [](Language& l) { return l.idioma().CI(MsgEjecutarRestantes); }),
      on("IdiomaSimple.CIp", "Unexpected type in AgregarParametroADO: a first value (a second value)", {""},
         [](Language& l) { return l.idioma().CIp(MsgTipoInesperado, l.values); }),
      on("IdiomaSimple.CIsp", "Unexpected type in AgregarParametroADO: 2 (a first value)", {""},
         [](Language& l) { return l.idioma().CIsp(MsgEjecutarRestantes, 2, std::span(l.values).first(1)); }),
      on("IdiomaSimple.IdiomasDisponibles", "Long 0|Long 1|Long 2|Long 3|", {""},
         [](Language& l) { return l.idioma().IdiomasDisponibles(); }),
      on("IdiomaSimple.Idioma=", "", {""}, [](Language& l) { return l.idioma().Idioma(3), Done(); }),
      on("IdiomaSimple.IdiomaDesdeSOP", "0", {}, [](Language& l) { return l.idioma().IdiomaDesdeSOP(); }),
      fault_case<Unloaded>("IdiomaSimple.CargarEnMemoria", "True", {"False"}, [](Unloaded& u) {
        return u.idioma.CargarEnMemoria(1, std::move(u.languages[u.next++]), u.table);
      })};
  all[5].allocates = false;
  return all;
}

}  // namespace

std::vector<FaultCase> frame_cases() {
  std::vector<FaultCase> all = language_cases();
  all.push_back(ov("Ov.CadenaVersion", "2147483647.10.1000000", [] { return Ov::CadenaVersion(kVersion); }));
  all.push_back(ov("Ov.Path", "C:\\Program Files\\Gestion", [] { return Ov::Path(kLibrary); }));
  all.push_back(
      ov("Ov.PathCompleto", "C:\\Program Files\\Gestion\\Library.dll", [] { return Ov::PathCompleto(kLibrary); }));
  all.push_back(fault_case<Language>("Ov.Version", "210123456", {"0"}, [](Language&) {
    return Ov::Version({2, 10, 123456});
  }));
  all.push_back(fault_case<NewThread>("IdiomaOmision", "3", {"0"}, [](NewThread&) { return IdiomaOmision(); }));
  all.push_back(
      fault_case<NewThread>("InicializarComun", "", {""}, [](NewThread&) { return InicializarComun(), Done(); }));
  all.push_back(
      fault_case<NewThread>("ExisteArchivo", "True", {"False"}, [](NewThread& n) { return ExisteArchivo(n.file, 0); }));
  all.push_back(fault_case<Language>("NumeroDesdeTexto", "Single 1234.5", {"Single 0"},
                                     [](Language&) { return Value(dialect::NumeroDesdeTexto(u"0000001234.5000")); }));
  return all;
}

}  // namespace qvr::tests
