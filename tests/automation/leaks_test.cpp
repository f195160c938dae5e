// Leaks: memory blocks and handles are counted before and after repeated calls.
#include "automation/arrays.h"
#include "automation/both.h"
#include "automation/boxes.h"
#include "automation/database.h"
#include "automation/in_use.h"
#include "automation/library.h"
#include "automation/script_folder.h"
#include "automation/sink.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

// Runs the body often and expects that the second half of the runs costs no memory and no handle that stays.
void expect_no_leak(const std::function<void()>& body) {
  constexpr int kRuns = 20;
  stop_string_cache();
  for (int i = 0; i < kRuns; ++i) body();
  const InUse before = in_use();
  for (int i = 0; i < kRuns; ++i) body();
  const InUse after = in_use();
  // A leak shows at least once a run; caches of the system may grow by a few.
  EXPECT_LT(after.blocks, before.blocks + kRuns / 2);
  EXPECT_LT(after.handles, before.handles + kRuns / 2);
  EXPECT_EQ(library().can_unload(), S_OK);
}

TEST(Leaks, TheCountSeesALeak) {
  stop_string_cache();
  const std::size_t before = in_use().blocks;
  BSTR lost[10];
  for (BSTR& text : lost) text = SysAllocString(L"a text that is held");
  EXPECT_GE(in_use().blocks, before + 10);
  for (BSTR& text : lost) SysFreeString(text);
}

TEST(Leaks, CreatingAndAsking) {
  expect_no_leak([] {
    const LateObject cfp(L"QVRlib21.QVRcfp"), ov(L"QVRlib21.Ov");
    cfp.call(L"Asignar", {L"id", 2, L"P", L"D", L"C", L"u", L"k", L"v", L"w", L"o"});
    cfp.call(L"CadenaADO", {L"id", true});
    cfp.call(L"ValorATexto", {L"T", L"text"});
    cfp.call(L"TextoAValor", {L"T", L"text"});
    ov.call(L"PathCompleto");
  });
}

TEST(Leaks, SavingLoadingAndRefusing) {
  expect_no_leak([] {
    const LateObject cfp(L"QVRlib21.QVRcfp");
    cfp.call(L"Asignar", {L"id", 2, L"P", L"D", L"C", L"u", L"k", L"v", L"w", L"o"});
    cfp.call(L"Guardar", {L"id", work_folder(), L"leak"});
    cfp.call(L"Crear", {L"id", work_folder(), L"leak"});
    cfp.call(L"Crear", {L"id", work_folder(), L"missing"});
  });
  EXPECT_EQ(traced(), Traces(40, u"QVRcfp.Crear: 75 Path/File access error"));
}

TEST(Leaks, WrongCalls) {
  expect_any_traces();
  expect_no_leak([] {
    const LateObject cfp(L"QVRlib21.QVRcfp");
    Var text(L"by reference");
    cfp.call(L"Crear", {Var::null(), Var::by_reference(text), L"x"});
    cfp.call(L"Crear", {L"too", L"many", L"texts", L"here"});
    cfp.call_named(L"ValorATexto", {L"TipoTNFL"}, {L"N", 2.5});
    cfp.call(L"NoExiste");
  });
}

TEST(Leaks, RunsThatWork) {
  Database database;
  expect_no_leak([&] {
    const LateObject runner(L"QVRlib21.QVRScr");
    Connected connected(runner);
    runner.call(L"EjecutarComandos", {L"id", 2, L"select 1\r\nGO\r\n", database.connection_string()});
  });
}

TEST(Leaks, RunsThatCannotOpen) {
  expect_no_leak([&] {
    Person person(IDNO);
    const LateObject runner(L"QVRlib21.QVRScr");
    runner.call(L"EjecutarComandos", {L"id", 2, L"", L"Provider=NoSuchProvider"});
  });
  EXPECT_EQ(traced(), Traces(40, u"QVRScr.EjecutarComandos: 3706 told by another component"));
}

TEST(Leaks, CommandsThatFail) {
  Database database;
  expect_no_leak([&] {
    Person person(IDNO);
    const LateObject runner(L"QVRlib21.QVRScr");
    Connected connected(runner);
    runner.call(L"EjecutarComandos", {L"id", 2, L"select 1\r\nGO\r\nnonsense\r\nGO\r\n", database.connection_string()});
  });
  EXPECT_EQ(traced(), Traces(40, u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"));
}

TEST(Leaks, ListsAndErrors) {
  expect_any_traces();
  const LateObject object(L"ADODB.Command");  // none of the library's, which could not be unloaded
  Var list = array_of({L"a", Var(object.get()), array_of({L"b"}), L"c"}), texts = array_of({L"a", L"b"}, 1, VT_BSTR);
  expect_no_leak([&] {
    const LateObject cfp(L"QVRlib21.QVRcfp");
    const auto slots = cfp.as<_QVRcfp>();
    cfp.call(L"Asignar", {L"id", 2, L"", L"", L"", L"", L"", L"", L"", L""});
    for (Var* const each : {&list, &texts}) {
      Bstr table(L"T"), early, failed;
      slots->SqlINSERT(&table, &each->raw(), &early);
      slots->sqlConcatenar(&each->raw(), &failed);
      cfp.call(L"SqlINSERT", {L"T", *each});
      cfp.call(L"SqlINSERT", {L"T", Var::by_reference(*each)});
      cfp.call(L"sqlWhereRelacionTablas", {*each});
    }
    Var none = array_of({});
    Bstr failed;
    slots->sqlConcatenar(&none.raw(), &failed);
    cfp.call(L"sqlConcatenar", {none});
    cfp.call(L"sqlCASE", {L"c", square_array()});
  });
}

TEST(Leaks, ProceduresThatFailAndParametersThatAreRefused) {
  expect_any_traces();
  Database database;
  const LateObject connection = database.open();
  expect_no_leak([&] {
    Person person;
    const LateObject cfp(L"QVRlib21.QVRcfp"), command(L"ADODB.Command");
    cfp.call(L"Asignar", {L"id", 2, L"", L"", L"", L"", L"", L"", L"", L""});
    Var list = array_of({L"text", Var(command.get())});
    cfp.call(L"EjecutarProcSQL7", {connection.get(), L"missing", Var::by_reference(list)});
    cfp.call(L"AgregarParametroADO", {command.get(), L"NVARCHAR", L"@p", L"text", 20});
    cfp.call(L"AgregarParametroADO", {command.get(), L"NVARCHAR", L"@p"});
    cfp.call(L"AgregarParametroADO", {command.get(), L"Texto", L"@p", list});
    EXPECT_EQ(person.boxes().size(), 3u);
  });
  connection.call(L"Close");
}

TEST(Leaks, QueriesNarrowedSortedAndKept) {
  Var columns = array_of({L"C.Nombre", L"T+", L"C.Alta", L"F+"});
  expect_no_leak([&] {
    for (const wchar_t* name : {L"QVRlib21.cSQL20", L"QVRlib21.uSQL20"}) {
      const LateObject query(name);
      query.call(L"iSQL20_Crear", {2, L"Clientes", false, Var::by_reference(columns), L"Clientes C"});
      query.call(L"iSQL20_InterpretarBusqueda", {L"Nombre", L"ana; bea & !c"});
      query.call(L"iSQL20_AmpliarOrden", {2});
      query.get(L"iSQL20_SQL");
      query.call(L"iSQL20_CrearDesdeTextoDefinicion", {query.get(L"iSQL20_TextoDefinicion").value});
      query.as<_iSQL20>();
    }
  });
}

TEST(Leaks, QueriesThatAreRefused) {
  expect_any_traces();
  expect_no_leak([] {
    Person person;
    const LateObject query(L"QVRlib21.cSQL20");
    query.call(L"iSQL20_Crear", {2, L"Clientes", false, array_of({L"a", L"T", L"b"}), L"Clientes C"});
    query.call(L"iSQL20_CrearDesdeTextoDefinicion", {L"nonsense"});
    query.call(L"iSQL20_AmpliarOrden", {7});
    query.call(L"iSQL20_InterpretarBusqueda", {L"Nadie", L"ana"});
  });
}

TEST(Leaks, PropertiesAndTheWalkOverThem) {
  expect_no_leak([] {
    const LateObject list(L"QVRlib21.QVRprp"), held(L"ADODB.Command");
    list.call(L"CreaPropiedad", {L"T", L"Texto", L"a text that is held"});
    list.call(L"CreaPropiedad", {L"T", L"Objeto", Var(held.get())});
    list.call(L"CreaPropiedad", {L"T", L"Lista", array_of({L"a", Var(held.get())})});
    DISPPARAMS none{};
    LateAnswer asked = list.invoke(DISPID_NEWENUM, DISPATCH_PROPERTYGET, none);
    ComPtr<IEnumVARIANT> values, copy;
    ASSERT_EQ(asked.value.raw().punkVal->QueryInterface(IID_PPV_ARGS(&values)), S_OK);
    values->Skip(1);
    values->Clone(&copy);
    VARIANT two[2]{};
    ULONG given = 0;
    copy->Next(2, two, &given);
    EXPECT_EQ(given, 2u);
    for (VARIANT& each : two) VariantClear(&each);
    list.call(L"Borra");
  });
}

TEST(Leaks, ScriptsLoadedAndRefused) {
  ScriptFolder folder(L"leak");
  folder.write(L"GestionSQL1.cfc", "create procedure p\r\nAS\r\nselect '[NombreBD]'\r\nGO\r\n");
  folder.write(L"Gestion1a2SQL.cfc", std::string("no text: \0", 10));
  expect_no_leak([&] {
    const LateObject runner(L"QVRlib21.QVRScr");
    Connected connected(runner);
    const LateAnswer loaded = runner.call(L"CargarDefinicion",
                                          {L"id", 2, folder.path(), L"Gestion", L"BD", L"a", L"b", L"c", L"d", true});
    EXPECT_NE(describe(loaded.value.raw()), "BSTR ");
    const LateAnswer refused = runner.call(L"CargarActualizacion", {L"id", 2, folder.path(), L"Gestion", 1, L"BD", L"a",
                                                                    L"b", L"c", L"d", true});
    EXPECT_EQ(describe(refused.value.raw()), "BSTR ");
  });
  EXPECT_EQ(traced(), Traces(40, u"QVRScr.CargarActualizacion: 75 No update script begins with this version"));
}

// With every service made on the thread, so that its end has all of them to give back.
DWORD WINAPI create_and_leave(void*) {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  {
    const LateObject cfp(L"QVRlib21.QVRcfp"), runner(L"QVRlib21.QVRScr");
    Person person;
    cfp.call(L"Asignar", {L"id", 2, L"P", L"D", L"C", L"u", L"k", L"v", L"w", L"o"});
    cfp.call(L"Guardar", {L"id", work_folder(), L"thread"});
    runner.call(L"EjecutarComandos", {L"id", 2, L"", L"Provider=NoSuchProvider"});
  }
  CoUninitialize();
  return 0;
}

TEST(Leaks, ThreadsThatComeAndGo) {
  expect_no_leak([] {
    const HANDLE thread = CreateThread(nullptr, 0, create_and_leave, nullptr, 0, nullptr);
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
  });
  EXPECT_EQ(traced(), Traces(40, u"QVRScr.EjecutarComandos: 3706 told by another component"));
}

}  // namespace
}  // namespace qvr::tests
