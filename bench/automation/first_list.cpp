// The first list of a program: in a process of its own each time, as a library stays in the one that has loaded it.
#include <algorithm>
#include <vector>

#include "automation/by_hand.h"
#include "automation/library.h"
#include "automation/measures.h"

namespace qvr::bench {
namespace {

using namespace qvr::tests;

constexpr wchar_t kByLibrary[] = L"first_list_by_library", kByHand[] = L"first_list_by_hand";
constexpr int kProcesses = 25;

struct Column {
  const wchar_t *expression, *descriptor, *alias;
};

constexpr Column kColumns[] = {
    {L"C.Codigo", L"N>Codigo", L"Codigo"},  {L"C.Nombre", L"T>Nombre", L"Nombre"},
    {L"C.Direccion", L"T>Calle", L"Calle"}, {L"C.Poblacion", L"T>Ciudad", L"Ciudad"},
    {L"P.Nombre", L"T>Pais", L"Pais"},      {L"C.Telefono", L"T>Telefono", L"Telefono"},
    {L"C.Alta", L"F>Alta", L"Alta"},        {L"C.Saldo", L"N>Saldo", L"Saldo"},
    {L"C.Limite", L"N>Limite", L"Limite"},  {L"C.Bloqueado", L"L>Bloqueado", L"Bloqueado"},
};

std::wstring by_library() {
  const LateObject query(L"QVRlib21.cSQL20");
  std::vector<Var> columns;
  for (const Column& column : kColumns) columns.insert(columns.end(), {column.expression, column.descriptor});
  require_true(query.call(L"iSQL20_Crear", {2, L"Clientes", false, array_of(columns), L"Clientes C, Paises P",
                                            array_of({L"C.Pais", L"P.Codigo", L"I"}), L"C.Baja=0"}));
  require_true(query.call(L"iSQL20_InterpretarBusqueda", {L"Nombre", L"ana; *S.L."}));
  const LateAnswer text = query.get(L"iSQL20_SQL");
  require(text);
  return text.value.text();
}

std::wstring pattern(const std::wstring& column, const std::wstring& text) {
  return L" UPPER(" + column + L") LIKE UPPER(N'" + text + L"')";
}

std::wstring by_hand() {
  const LateObject empty(L"QVRBench.Empty");
  require(empty.get() != nullptr, "the empty class cannot be created");
  std::wstring columns;
  for (const Column& column : kColumns) {
    if (!columns.empty()) columns += L", ";
    columns += std::wstring(column.expression) + L" As [" + column.alias + L"]";
  }
  return L"SELECT " + columns + L"  FROM Clientes C INNER JOIN Paises P ON C.Pais=P.Codigo  WHERE C.Baja=0 And (" +
         pattern(L"C.Nombre", L"%ana%") + L" Or " + pattern(L"C.Nombre", L"%S.L.") + L")   ";
}

// In microseconds, by the exit code of a new process.
double time_in_process(const wchar_t* whose) {
  std::wstring command = L"\"" + beside_program(L"host_bench.exe") + L"\" " + whose;
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process;
  require(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process),
          "a process cannot be started");
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD microseconds = 0;
  GetExitCodeProcess(process.hProcess, &microseconds);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  require(microseconds > 1 && microseconds < 10000000, "the first list");  // 1 is ours, a crash has a large number
  return microseconds;
}

// Not the quickest: a process that shares its processor with the one that serves it takes half the time by chance.
double median(std::vector<double> times) {
  std::ranges::nth_element(times, times.begin() + kProcesses / 2);
  return times[kProcesses / 2];
}

}  // namespace

bool starts_first_list(const std::string& argument) {
  return argument == narrow(kByLibrary) || argument == narrow(kByHand);
}

int first_list_in_this_process(const std::string& argument) {
  OleInitialize(nullptr);
  const double start = Times::now();
  const std::wstring text = argument == narrow(kByLibrary) ? by_library() : by_hand();
  const double end = Times::now();
  require(text == by_hand(), "the two lists differ");
  return static_cast<int>((end - start) * 1e6);
}

void measure_first_list(Times& times) {
  const InProcessServer empty(beside_program(L"empty_class.dll"));
  empty.register_it();
  std::vector<double> library, hand;
  for (int process = 0; process < kProcesses; ++process) {
    hand.push_back(time_in_process(kByHand));
    library.push_back(time_in_process(kByLibrary));
  }
  times.add("FirstList", "library", median(library) / 1e6);
  times.add("FirstList", "by_hand", median(hand) / 1e6);
  times.beside("FirstListAgain", by_library, by_hand, 200, 15);
  empty.unregister_it();
}

}  // namespace qvr::bench
