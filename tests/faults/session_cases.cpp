// The shared functions, the language object and Ov; and the first object of a thread, where nothing is there yet.
#include <utility>

#include "connection/qvrcfp.h"
#include "faults/fault_case.h"
#include "properties/qvrprp.h"
#include "query/usql20.h"
#include "script/qvrscr.h"
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
  Lines texts() { return {shown(idioma().CI(MsgTipoInesperado))}; }
  TestThread thread;
  const std::vector<Value> values = {Text(u"a first value"), Text(u"a second value")};
};

// A language object of its own, before its catalogue.
struct Unloaded {
  Unloaded() { CtesMensajes(table); }
  Lines texts() { return {shown(idioma.CI(MsgMetodo))}; }
  TestThread thread;
  TextTable table{kMessageCount, language::kCarried};
  std::vector<std::vector<Value>> languages = {3, {0, 1, 2, 3}};  // given away, one for each call
  std::size_t next = 0;
  IdiomaSimple idioma{thread.system};
};

// A thread on which nothing was done.
struct NewThread {
  NewThread() {
    thread.system.set_default_language(u"3.00000000000000000000000000000000");
    folder.write(u"a file of some length.txt", "x");
  }
  Lines texts() { return {shown(message(MsgMetodo))}; }
  TestThread thread;
  TemporaryFolder folder;
  const Text file = folder.file_text(u"a file of some length.txt");
};

struct NoEvents final : ScriptEvents {
  void Progreso(const Text&) noexcept override {}
  void Terminado(bool) noexcept override {}
};

struct Runner {
  NoEvents events;
  QVRScr runner{events};
};

// One on which not even its state was made.
struct StatelessThread {
  StatelessThread() { exchange_thread_state(nullptr); }
  Lines texts() { return {thread_state().idioma.Creado() ? "a language" : ""}; }
  TestThread thread;
};

template <class Object>
FaultCase first(const char* name) {
  return fault_case_of_change<StatelessThread>(name, [](StatelessThread&) { const Object made; });
}

}  // namespace

FaultCases session_cases() {
  constexpr auto on = [](const char* name, auto call) { return fault_case<Language>(name, call); };
  return {
      first<QVRcfp>("QVRcfp, the first object"),
      first<Runner>("QVRScr, the first object"),
      first<QVRprp>("QVRprp, the first object"),
      first<cSQL20>("cSQL20, the first object"),
      first<uSQL20>("uSQL20, the first object"),
      fault_case<NewThread>("ExisteArchivo", [](NewThread& n) { return ExisteArchivo(n.file, 0); }),
      fault_case<NewThread>("IdiomaOmision", [](NewThread&) { return IdiomaOmision(); }),
      fault_case<Unloaded>("IdiomaSimple.CargarEnMemoria",
                           [](Unloaded& u) {
                             return u.idioma.CargarEnMemoria(1, std::move(u.languages[u.next++]), u.table);
                           }),
      on("IdiomaSimple.CI", [](Language& l) { return l.idioma().CI(MsgEjecutarRestantes); }),
      on("IdiomaSimple.CIp", [](Language& l) { return l.idioma().CIp(MsgTipoInesperado, l.values); }),
      on("IdiomaSimple.CIsp",
         [](Language& l) { return l.idioma().CIsp(MsgEjecutarRestantes, 2, std::span(l.values).first(1)); }),
      fault_case_of_change<Language>("IdiomaSimple.Idioma=", [](Language& l) { l.idioma().Idioma(3); }),
      on("Ov.CadenaVersion", [](Language&) { return Ov::CadenaVersion(kVersion); }),
      on("Ov.Path", [](Language&) { return Ov::Path(kLibrary); }),
      on("Ov.PathCompleto", [](Language&) { return Ov::PathCompleto(kLibrary); }),
      on("Ov.Version",
         [](Language&) {
           return Ov::Version({2, 10, 123456});
         }),
  };
}

}  // namespace qvr::tests
