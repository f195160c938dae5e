// The first object of a thread, where not even the thread's state is there yet.
#include "connection/qvrcfp.h"
#include "faults/fault_case.h"
#include "properties/qvrprp.h"
#include "query/csql20.h"
#include "query/usql20.h"
#include "script/qvrscr.h"

namespace qvr::tests {
namespace {

struct NoEvents final : ScriptEvents {
  void Progreso(const Text&) noexcept override {}
  void Terminado(bool) noexcept override {}
};

struct Runner {
  NoEvents events;
  QVRScr runner{events};
};

template <class Object>
struct FirstObject {
  FirstObject() { exchange_thread_state(nullptr); }
  // As the next object finds the thread.
  std::string state() {
    const Object next;
    return shown(thread_state().idioma.Creado()) + shown(thread_state().idioma.CI(MsgMetodo));
  }
  TestThread thread;
  std::optional<Object> object;
};

template <class Object>
FaultCase first(const char* name) {
  return fault_case<FirstObject<Object>>(name, "", {""},
                                         [](FirstObject<Object>& f) { return f.object.emplace(), Done(); });
}

}  // namespace

std::vector<FaultCase> first_object_cases() {
  return {first<QVRcfp>("QVRcfp"), first<Runner>("QVRScr"), first<QVRprp>("QVRprp"), first<cSQL20>("cSQL20"),
          first<uSQL20>("uSQL20")};
}

}  // namespace qvr::tests
