// The first list of a program.
#include "automation/by_hand.h"
#include "automation/measures.h"

namespace qvr::bench {
namespace {

using namespace qvr::tests;

void by_library() {
  const LateObject query(L"QVRlib21.cSQL20");
  require_true(query.call(
      L"iSQL20_Crear",
      {2, L"Clientes", false,
       array_of({L"C.Nombre", L"T>Nombre", L"P.Nombre", L"T>Pa\u00eds", L"C.Alta", L"F>Alta", L"C.Saldo", L"N>Saldo"}),
       L"Clientes C, Paises P", array_of({L"C.Pais", L"P.Codigo", L"I"}), L"C.Baja=0"}));
  require_true(query.call(L"iSQL20_InterpretarBusqueda", {L"Nombre", L"ana l\u00f3pez; *S.L."}));
  require(query.get(L"iSQL20_SQL"));
}

void by_hand() { const LateObject query(L"QVRlib21.Ov"); }

}  // namespace

void measure_first_list(Times& times) { times.beside("FirstList", by_library, by_hand, 200, 15); }

}  // namespace qvr::bench
