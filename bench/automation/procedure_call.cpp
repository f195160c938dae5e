// One call of a stored procedure with eight parameters, into MariaDB.
#include <array>

#include "automation/arrays.h"
#include "automation/by_hand.h"
#include "automation/measures.h"
#include "servers/server.h"

namespace qvr::bench {
namespace {

using namespace qvr::tests;

constexpr const wchar_t* kProcedure = L"pedido";
constexpr int kParameters = 8, kStoredProcedure = 4, kCalls = 50, kRounds = 30;
constexpr int kTotal = 7;  // the position of the output, from 0

// What a library that asks for item 0 finds there is the first output.
constexpr const wchar_t* kDefinition =
    L"create procedure pedido(out devuelto int, in cliente int, in nombre varchar(50), in fecha datetime, "
    L"in urgente bit(1), in portes double, inout numero int, in nota varchar(50), out total double) "
    L"begin set devuelto = 0; set numero = numero + 1; set total = portes * 2; end";

LateObject connected() {
  const Text text = DatabaseServer::here().ado_string();
  LateObject connection(L"ADODB.Connection");
  require(connection.call(L"Open", {std::wstring(text.begin(), text.end())}));
  require(connection.call(L"Execute", {kDefinition}));
  return connection;
}

std::vector<Var> values() {
  return {126, L"Ana L\u00f3pez", Var::date(45444), true, 9.25, 24001, L"Dejar en recepci\u00f3n", 0.0};
}

void check(const VARIANT& total) { require(total.vt == VT_R8 && total.dblVal == 18.5, "the procedure gave no total"); }

void by_library(const LateObject& cfp, const LateObject& connection) {
  Var list = array_of(values());
  require_true(cfp.call(L"EjecutarProcSQL7", {connection.get(), kProcedure, Var::by_reference(list)}));
  LONG position = kTotal;
  Var total;
  SafeArrayGetElement(list.raw().parray, &position, &total.raw());
  check(total.raw());
}

void by_hand(const LateObject& connection) {
  std::vector<Var> list = values();
  const LateObject command(L"ADODB.Command");
  put(command, id_of(command, L"ActiveConnection"), Var(connection.get()).raw(), DISPATCH_PROPERTYPUTREF);
  put(command, id_of(command, L"CommandText"), Var(kProcedure).raw());
  put(command, id_of(command, L"CommandType"), Var(kStoredProcedure).raw());
  const LateObject parameters = object_in(get(command, id_of(command, L"Parameters")));
  call(parameters, id_of(parameters, L"Refresh"));
  const DISPID item = id_of(parameters, L"Item");
  const auto parameter = [&](int position) {
    VARIANT index = Var(position).raw();
    return object_in(get(parameters, item, {&index, 1}));
  };
  const LateObject returned = parameter(0);
  const DISPID value = id_of(returned, L"Value");
  for (int i = 0; i < kParameters; ++i) put(parameter(i + 1), value, list[i].raw());
  call(command, id_of(command, L"Execute"));
  require(get(returned, value).raw().lVal == 0, "the procedure did not return 0");
  for (int i = 0; i < kParameters; ++i) list[i] = get(parameter(i + 1), value);
  check(list[kTotal].raw());
}

}  // namespace

void measure_procedure_call(Times& times) {
  const LateObject connection = connected(), cfp(L"QVRlib21.QVRcfp");
  require_true(cfp.call(L"Asignar", {L"bench", 2, L"", L"", L"", L"", L"", L"", L"", L""}));
  times.beside(
      "ProcedureCall", [&] { by_library(cfp, connection); }, [&] { by_hand(connection); }, kCalls, kRounds);
  require(connection.call(L"Close"));
}

}  // namespace qvr::bench
