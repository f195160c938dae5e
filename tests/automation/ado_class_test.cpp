// ADO's classes in all the states that a machine may have them in, and which calls reach ADO in which order.
#include <optional>

#include "QVRlib21.h"
#include "automation/arrays.h"
#include "automation/boxes.h"
#include "automation/database.h"
#include "automation/library.h"
#include "automation/played_ado.h"
#include "automation/sink.h"
#include "automation/stress/apartments.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using Lines = std::vector<std::string>;

constexpr const wchar_t* kThreeCommands = L"a\r\nGO\r\nb\r\nGO\r\nc\r\nGO\r\n";

std::string run(const LateObject& runner) {
  return describe(
      runner.call(L"EjecutarComandos", {L"app", 2, kThreeCommands, L"Data Source=x", L"done "}).value.raw());
}

Lines joined(std::initializer_list<Lines> parts) {
  Lines all;
  for (const Lines& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

// A host with its user, who gives this answer to each question.
class Host {
 public:
  explicit Host(int answer = IDNO) : person_(answer) {}

  std::string run() const { return tests::run(runner_); }

  // Texts in the language of the user are left to other tests: what is told while commands are counted, and questions.
  Lines events() const {
    Lines told = connected_.events();
    if (!told.empty() && told[0].starts_with("Progreso")) told[0] = "Progreso";
    return told;
  }
  Lines boxes() const {
    Lines texts;
    for (const Person::Box& box : person_.boxes()) texts.push_back(box.question ? "question" : narrow(box.text));
    return texts;
  }
  // Once, when the command after the first one begins.
  void in_progress(std::function<void()> reaction) {
    connected_.sink().reaction = [reaction = std::move(reaction), this](DISPID, VARIANT&) {
      if (events().size() == 3) reaction();
      return S_OK;
    };
  }

 private:
  const LateObject runner_{L"QVRlib21.QVRScr"};
  Connected connected_{runner_};
  Person person_;
};

std::string box_429(const char* method) {
  return std::string("Error indeterminado\r\n\r\nError 429: ActiveX component can't create object (QVRlib21)\r\n\r\n") +
         "M\u00e9todo: " + method;
}

const Text kNoConnection = u"QVRScr.EjecutarComandos: 429 ActiveX component can't create object",
           kNoCommand = u"QVRScr.Ejecutar1Comando: 429 ActiveX component can't create object";

Lines progress(const Lines& counts, bool success) {
  Lines events{"Progreso"};
  for (const std::string& count : counts) events.push_back("Progreso BSTR* done " + count);
  events.emplace_back(success ? "Terminado BOOL* true" : "Terminado BOOL* false");
  return events;
}

// Every call of a run with three commands.
const Lines kThreeCommandsCalls{
    "new Connection1",
    "Connection1.ConnectionString = BSTR Data Source=x",
    "Connection1.Open(BSTR , BSTR , BSTR , I4 -1)",
    "Connection1.BeginTrans()",
    "new Command1",
    "set Command1.ActiveConnection = Connection1",
    "Command1.CommandType = I4 1",
    "Command1.CommandText = BSTR a",
    "Command1.CommandTimeout = I4 0",
    "Command1.Execute(ERROR -2147352572, ERROR -2147352572, I4 -1)",
    "new Command2",
    "set Command2.ActiveConnection = Connection1",
    "Command2.CommandType = I4 1",
    "Command2.CommandText = BSTR b",
    "Command2.CommandTimeout = I4 0",
    "Command2.Execute(ERROR -2147352572, ERROR -2147352572, I4 -1)",
    "new Command3",
    "set Command3.ActiveConnection = Connection1",
    "Command3.CommandType = I4 1",
    "Command3.CommandText = BSTR c",
    "Command3.CommandTimeout = I4 0",
    "Command3.Execute(ERROR -2147352572, ERROR -2147352572, I4 -1)",
    "Connection1.CommitTrans()",
    "Connection1.Close()",
};

// The same in parts, by the numbers of the objects.
std::string connection_call(int connection, const char* call) {
  return "Connection" + std::to_string(connection) + call;
}

Lines opening(int connection) {
  return {connection_call(connection, ".ConnectionString = BSTR Data Source=x"),
          connection_call(connection, ".Open(BSTR , BSTR , BSTR , I4 -1)"),
          connection_call(connection, ".BeginTrans()")};
}
Lines committing(int connection) {
  return {connection_call(connection, ".CommitTrans()"), connection_call(connection, ".Close()")};
}
Lines rolling_back(int connection) {
  return {connection_call(connection, ".RollbackTrans()"), connection_call(connection, ".Close()")};
}
Lines command(int number, int connection, const char* text) {
  const std::string name = "Command" + std::to_string(number);
  return {"new " + name,
          "set " + name + ".ActiveConnection = " + connection_call(connection, ""),
          name + ".CommandType = I4 1",
          name + ".CommandText = BSTR " + text,
          name + ".CommandTimeout = I4 0",
          name + ".Execute(ERROR -2147352572, ERROR -2147352572, I4 -1)"};
}

TEST(CallsToAdo, OfARun) {
  PlayedAdo ado;
  const Host host;
  EXPECT_EQ(host.run(), "BOOL true");
  EXPECT_EQ(ado.calls(), kThreeCommandsCalls);
}

TEST(CallsToAdo, OfARunOnADatabase) {
  const Database database;
  const LateObject runner(L"QVRlib21.QVRScr");
  const FaultyAdo log(L"");
  const LateAnswer ran = runner.call(
      L"EjecutarComandos",
      {L"app", 2, L"create table T(N int)\r\nGO\r\ninsert into T values(1)\r\nGO\r\nselect N from T\r\nGO\r\n",
       database.connection_string()});
  EXPECT_EQ(describe(ran.value.raw()), "BOOL true");
  EXPECT_EQ(
      log.calls(),
      "CreateConnection\nConnectionString\nOpen\nBeginTrans\n"
      "CreateCommand\nActiveConnection\nCommandType\nCommandText\nCommandTimeout\nExecute create table T(N int)\n"
      "CreateCommand\nActiveConnection\nCommandType\nCommandText\nCommandTimeout\nExecute insert into T values(1)\n"
      "CreateCommand\nActiveConnection\nCommandType\nCommandText\nCommandTimeout\nExecute select N from T\n"
      "CommitTrans\nClose\n");
}

const Lines kProcedureCalls{
    "new Connection1",  // the test's own
    "new Command1",
    "set Command1.ActiveConnection = Connection1",
    "Command1.CommandText = BSTR Alta",
    "Command1.CommandType = I4 4",
    "Command1.Parameters",
    "Parameters1.Refresh()",
    "Command1.Parameters",
    "Parameters2.Item[I4 1]",
    "Parameter1.Value = BSTR Ana",
    "Command1.Parameters",
    "Parameters3.Item[I4 2]",
    "Parameter2.Value = I4 5",
    "Command1.Execute(ERROR -2147352572, ERROR -2147352572, I4 -1)",
    "Command1.Parameters",
    "Parameters4.Item[I4 0]",
    "Parameter3.Value",
    "Command1.Parameters",
    "Parameters5.Item[I4 1]",
    "Parameter4.Value",
    "Command1.Parameters",
    "Parameters6.Item[I4 2]",
    "Parameter5.Value",
};

TEST(CallsToAdo, OfAProcedure) {
  PlayedAdo ado;
  const LateObject connection(L"ADODB.Connection"), cfp(L"QVRlib21.QVRcfp");
  cfp.call(L"Asignar", {L"id", 2, L"", L"", L"", L"", L"", L"", L"", L""});
  Var list = array_of({L"Ana", 5});
  const LateAnswer called = cfp.call(L"EjecutarProcSQL7", {connection.get(), L"Alta", Var::by_reference(list)});
  EXPECT_EQ(describe(called.value.raw()), "BOOL true");
  EXPECT_EQ(ado.calls(), kProcedureCalls);
  EXPECT_EQ(describe(list.raw()), "VARIANT(0) {I4 0; I4 0}");
}

// ADO half registered, in the ways in which installations and removals that fail leave it.
struct Damage {
  const char* name;
  std::function<void(PlayedAdo&, Played)> done;
};

std::ostream& operator<<(std::ostream& out, const Damage& damage) { return out << damage.name; }

void write_default(const std::wstring& key, const std::wstring& value) {
  const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
  EXPECT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), nullptr, REG_SZ, value.c_str(), size), ERROR_SUCCESS);
}

void remove_key(const std::wstring& key) { EXPECT_EQ(RegDeleteTreeW(HKEY_LOCAL_MACHINE, key.c_str()), ERROR_SUCCESS); }

const char* name_of(Played kind) { return kind == Played::Connection ? "Connection" : "Command"; }

void refuse(PlayedAdo& ado, const std::string& refused, HRESULT answer) {
  ado.reaction = [=](const std::string& call) { return call.starts_with(refused) ? answer : S_OK; };
}

const Damage kDamages[] = {
    {"NotRegistered", [](PlayedAdo& ado, Played kind) { ado.unregister(kind); }},
    {"NameWithoutAClass",
     [](PlayedAdo& ado, Played kind) {
       write_default(ado.name_key(kind), L"ADO");
       remove_key(ado.name_key(kind) + L"\\CLSID");
     }},
    {"NameOfNoClass", [](PlayedAdo& ado, Played kind) { write_default(ado.name_key(kind) + L"\\CLSID", L"{ADO}"); }},
    {"NameOfAClassThatIsGone", [](PlayedAdo& ado, Played kind) { remove_key(ado.class_key(kind)); }},
    {"ClassWithoutAServer", [](PlayedAdo& ado, Played kind) { remove_key(ado.class_key(kind) + L"\\InprocServer32"); }},
    {"ServerThatIsGone",
     [](PlayedAdo& ado, Played kind) {
       write_default(ado.class_key(kind) + L"\\InprocServer32", L"C:\\no such folder\\msado15.dll");
     }},
    {"ServerThatIsNone",
     [](PlayedAdo& ado, Played kind) { write_default(ado.class_key(kind) + L"\\InprocServer32", L"kernel32.dll"); }},
    {"NoClassObject",
     [](PlayedAdo& ado, Played kind) {
       refuse(ado, std::string("class ") + name_of(kind), CLASS_E_CLASSNOTAVAILABLE);
     }},
    {"ClassObjectThatIsNoFactory",
     [](PlayedAdo& ado, Played kind) { refuse(ado, std::string("class ") + name_of(kind), E_NOINTERFACE); }},
    {"ObjectsThatAreNotMade",
     [](PlayedAdo& ado, Played kind) { refuse(ado, std::string("new ") + name_of(kind), E_OUTOFMEMORY); }},
};

// The attempts to make a command are calls where ADO gets to hear of them.
Lines without_attempts(Lines calls) {
  std::erase_if(calls, [](const std::string& call) { return call.starts_with("new "); });
  return calls;
}

class HalfRegisteredAdo : public testing::TestWithParam<Damage> {
 protected:
  // Whatever was wrong: once it is registered as it should be, the next run works.
  void expect_mended(Host& host) {
    ado_.reaction = nullptr;
    ado_.register_it();
    EXPECT_EQ(host.run(), "BOOL true");
  }

  PlayedAdo ado_;
};

TEST_P(HalfRegisteredAdo, ConnectionIsReportedOnceForTheRun) {
  GetParam().done(ado_, Played::Connection);
  Host host(IDYES);
  EXPECT_EQ(host.run(), "BOOL false");
  EXPECT_EQ(host.boxes(), Lines{box_429("EjecutarComandos")});
  EXPECT_EQ(host.events(), Lines{"Terminado BOOL* false"});
  EXPECT_EQ(without_attempts(ado_.calls()), Lines{});
  EXPECT_EQ(traced(), Traces{kNoConnection});
  expect_mended(host);
}

TEST_P(HalfRegisteredAdo, CommandIsReportedForEachCommandWhileTheUserGoesOn) {
  GetParam().done(ado_, Played::Command);
  Host host(IDYES);
  EXPECT_EQ(host.run(), "BOOL true");
  EXPECT_EQ(host.boxes(), (Lines{box_429("Ejecutar1Comando: a"), "question", box_429("Ejecutar1Comando: b"), "question",
                                 box_429("Ejecutar1Comando: c"), "question"}));
  EXPECT_EQ(host.events(), progress({"0/3", "0/3", "0/3"}, true));
  EXPECT_EQ(without_attempts(ado_.calls()), joined({opening(1),
                                                    {"Connection1.Errors", "Errors1.Count", "Connection1.Errors",
                                                     "Errors2.Count", "Connection1.Errors", "Errors3.Count"},
                                                    committing(1)}));
  EXPECT_EQ(traced(), Traces(3, kNoCommand));
  expect_mended(host);
}

TEST_P(HalfRegisteredAdo, CommandEndsTheRunWhenTheUserDoesNotGoOn) {
  GetParam().done(ado_, Played::Command);
  Host host(IDNO);
  EXPECT_EQ(host.run(), "BOOL false");
  EXPECT_EQ(host.boxes(), (Lines{box_429("Ejecutar1Comando: a"), "question"}));
  EXPECT_EQ(host.events(), progress({"0/3"}, false));
  EXPECT_EQ(without_attempts(ado_.calls()),
            joined({opening(1), {"Connection1.Errors", "Errors1.Count"}, rolling_back(1)}));
  EXPECT_EQ(traced(), Traces{kNoCommand});
  expect_mended(host);
}

TEST_P(HalfRegisteredAdo, CommandOfAProcedureIsReported) {
  const LateObject connection(L"ADODB.Connection"), cfp(L"QVRlib21.QVRcfp");
  cfp.call(L"Asignar", {L"id", 2, L"", L"", L"", L"", L"", L"", L"", L""});
  Host host;
  GetParam().done(ado_, Played::Command);
  Var list = array_of({L"Ana", 5});
  const LateAnswer called = cfp.call(L"EjecutarProcSQL7", {connection.get(), L"Alta", Var::by_reference(list)});
  EXPECT_EQ(describe(called.value.raw()), "BOOL false");
  EXPECT_EQ(describe(list.raw()), "VARIANT(0) {BSTR Ana; I4 5}");
  EXPECT_EQ(host.boxes(),
            Lines{"Error indeterminado\r\n\r\nError 429: ActiveX component can't create object (QVRlib21)\r\n\r\n"
                  "Objeto: Alta\r\nM\u00e9todo: EjecutarProc"});
  EXPECT_EQ(without_attempts(ado_.calls()), (Lines{"Connection1.Errors", "Errors1.Count"}));
  EXPECT_EQ(traced(), Traces{u"QVRcfp.EjecutarProcSQL7: 429 ActiveX component can't create object"});
}

INSTANTIATE_TEST_SUITE_P(Each, HalfRegisteredAdo, testing::ValuesIn(kDamages),
                         [](const auto& row) { return std::string(row.param.name); });

// The class object serves the first command and the third.
const Lines kSecondCommandNotMade = joined(
    {command(1, 1, "a"), {"new Command2", "Connection1.Errors", "Errors1.Count"}});

TEST(AdoClassObject, ThatFailsOnceCostsOneCommandWhenTheUserGoesOn) {
  PlayedAdo ado;
  refuse(ado, "new Command2", E_OUTOFMEMORY);
  Host host(IDYES);
  EXPECT_EQ(host.run(), "BOOL true");
  EXPECT_EQ(host.boxes(), (Lines{box_429("Ejecutar1Comando: b"), "question"}));
  EXPECT_EQ(host.events(), progress({"0/3", "1/3", "1/3"}, true));
  EXPECT_EQ(ado.calls(),
            joined({{"new Connection1"}, opening(1), kSecondCommandNotMade, command(3, 1, "c"), committing(1)}));
  EXPECT_EQ(traced(), Traces{kNoCommand});
}

TEST(AdoClassObject, ThatFailsOnceEndsTheRunWhenTheUserDoesNotGoOn) {
  PlayedAdo ado;
  refuse(ado, "new Command2", E_OUTOFMEMORY);
  Host host(IDNO);
  EXPECT_EQ(host.run(), "BOOL false");
  EXPECT_EQ(host.boxes(), (Lines{box_429("Ejecutar1Comando: b"), "question"}));
  EXPECT_EQ(host.events(), progress({"0/3", "1/3"}, false));
  EXPECT_EQ(ado.calls(), joined({{"new Connection1"}, opening(1), kSecondCommandNotMade, rolling_back(1)}));
  EXPECT_EQ(traced(), Traces{kNoCommand});
}

// Whose dispatch ids they are, and what ADO says of them.
struct Identified {
  const char* name;
  bool own_ids;
  PlayedAdo::TypeInformation type_information;
};

std::ostream& operator<<(std::ostream& out, const Identified& row) { return out << row.name; }

class AdoDispatchIds : public testing::TestWithParam<Identified> {
 protected:
  AdoDispatchIds() {
    ado_.own_ids = GetParam().own_ids;
    ado_.type_information = GetParam().type_information;
  }

  PlayedAdo ado_;
};

TEST_P(AdoDispatchIds, LeadEachCommandOfARunToItsOwnMembers) {
  Host host;
  for (int i = 0; i < 2; ++i) {
    ado_.forget_calls();
    EXPECT_EQ(host.run(), "BOOL true");
    EXPECT_EQ(ado_.calls(), kThreeCommandsCalls);
  }
}

TEST_P(AdoDispatchIds, LeadEachObjectOfAProcedureToItsOwnMembers) {
  const LateObject connection(L"ADODB.Connection"), cfp(L"QVRlib21.QVRcfp");
  cfp.call(L"Asignar", {L"id", 2, L"", L"", L"", L"", L"", L"", L"", L""});
  const Host host;
  Var list = array_of({L"Ana", 5});
  const LateAnswer called = cfp.call(L"EjecutarProcSQL7", {connection.get(), L"Alta", Var::by_reference(list)});
  EXPECT_EQ(describe(called.value.raw()), "BOOL true");
  EXPECT_EQ(ado_.calls(), kProcedureCalls);
  EXPECT_EQ(host.boxes(), Lines{});
}

using enum PlayedAdo::TypeInformation;
INSTANTIATE_TEST_SUITE_P(Each, AdoDispatchIds,
                         testing::Values(Identified{"OfTheClassUndescribed", false, None},
                                         Identified{"OfTheClassDescribed", false, Honest},
                                         Identified{"OfTheClassDescribedWrongly", false, OfNone},
                                         Identified{"OfEachObjectUndescribed", true, None},
                                         Identified{"OfEachObjectDescribed", true, Honest},
                                         Identified{"OfEachObjectDescribedAsTheSecond", true, OfTheSecond},
                                         Identified{"OfEachObjectDescribedWrongly", true, OfNone}),
                         [](const auto& row) { return std::string(row.param.name); });

// What the host does to ADO in a handler, after the first command: the run keeps what it began with, the next one sees
// the change.
TEST(AdoDuringARun, ThatIsReplacedServesTheRunToItsEnd) {
  PlayedAdo first;
  std::optional<PlayedAdo> second;
  Host host;
  host.in_progress([&] { second.emplace(); });
  EXPECT_EQ(host.run(), "BOOL true");
  EXPECT_EQ(first.calls(), kThreeCommandsCalls);
  EXPECT_EQ(second->calls(), Lines{});
  first.forget_calls();
  EXPECT_EQ(host.run(), "BOOL true");
  EXPECT_EQ(first.calls(), Lines{});
  EXPECT_EQ(second->calls(), kThreeCommandsCalls);
  EXPECT_EQ(host.boxes(), Lines{});
}

TEST(AdoDuringARun, ThatIsUnregisteredServesTheRunToItsEnd) {
  PlayedAdo ado;
  Host host;
  host.in_progress([&] { ado.unregister_it(); });
  EXPECT_EQ(host.run(), "BOOL true");
  EXPECT_EQ(ado.calls(), kThreeCommandsCalls);
  EXPECT_EQ(host.boxes(), Lines{});
  ado.forget_calls();
  EXPECT_EQ(host.run(), "BOOL false");
  EXPECT_EQ(ado.calls(), Lines{});
  EXPECT_EQ(host.boxes(), Lines{box_429("EjecutarComandos")});
  EXPECT_EQ(traced(), Traces{kNoConnection});
}

TEST(AdoDuringARun, ServesTheRunOfAnotherObjectAsWell) {
  PlayedAdo ado;
  const LateObject inner(L"QVRlib21.QVRScr");
  Host host;
  std::string inner_answer;
  host.in_progress([&] { inner_answer = run(inner); });
  EXPECT_EQ(host.run(), "BOOL true");
  EXPECT_EQ(inner_answer, "BOOL true");
  // The inner run's connection and commands come between the first command and the second.
  EXPECT_EQ(ado.calls(), joined({{"new Connection1"},
                                 opening(1),
                                 command(1, 1, "a"),
                                 {"new Connection2"},
                                 opening(2),
                                 command(2, 2, "a"),
                                 command(3, 2, "b"),
                                 command(4, 2, "c"),
                                 committing(2),
                                 command(5, 1, "b"),
                                 command(6, 1, "c"),
                                 committing(1)}));
  EXPECT_EQ(host.boxes(), Lines{});
}

TEST(AdoDuringARun, ThatIsReplacedServesNoRunThatBeginsThen) {
  PlayedAdo first;
  std::optional<PlayedAdo> second;
  const LateObject inner(L"QVRlib21.QVRScr");
  Host host;
  std::string inner_answer;
  host.in_progress([&] {
    second.emplace();
    inner_answer = run(inner);
  });
  EXPECT_EQ(host.run(), "BOOL true");
  EXPECT_EQ(inner_answer, "BOOL true");
  EXPECT_EQ(first.calls(), kThreeCommandsCalls);
  EXPECT_EQ(second->calls(), kThreeCommandsCalls);
}

TEST(AdoDuringARun, ThatIsReplacedServesNoProcedureThatIsCalledThen) {
  PlayedAdo first;
  std::optional<PlayedAdo> second;
  const LateObject cfp(L"QVRlib21.QVRcfp");
  cfp.call(L"Asignar", {L"id", 2, L"", L"", L"", L"", L"", L"", L"", L""});
  Host host;
  std::string called;
  host.in_progress([&] {
    second.emplace();
    Var list = array_of({L"Ana", 5});
    const LateObject connection(L"ADODB.Connection");
    called = describe(cfp.call(L"EjecutarProcSQL7", {connection.get(), L"Alta", Var::by_reference(list)}).value.raw());
  });
  EXPECT_EQ(host.run(), "BOOL true");
  EXPECT_EQ(called, "BOOL true");
  EXPECT_EQ(first.calls(), kThreeCommandsCalls);
  EXPECT_EQ(second->calls(), kProcedureCalls);
}

// What is kept for the length of a run or of a call, and no longer.
TEST(AdoDuringARun, IsAskedForEachClassObjectOnce) {
  PlayedAdo ado;
  Host host;
  for (std::size_t runs = 1; runs <= 2; ++runs) {
    EXPECT_EQ(host.run(), "BOOL true");
    EXPECT_EQ(ado.classes_asked(Played::Connection), runs);
    EXPECT_EQ(ado.classes_asked(Played::Command), runs);
  }
}

TEST(AdoDuringARun, IsAskedForDispatchIdsOnceWhereItsTypeInformationVouchesForThem) {
  PlayedAdo ado;
  ado.type_information = PlayedAdo::TypeInformation::Honest;
  Host host;
  constexpr std::size_t kMembers = 5;
  for (std::size_t runs = 1; runs <= 2; ++runs) {
    EXPECT_EQ(host.run(), "BOOL true");
    EXPECT_EQ(ado.names_asked(Played::Command), runs * kMembers);
  }
}

TEST(AdoDuringARun, IsAskedForTheDispatchIdsOfEachObjectWhereNothingVouchesForThem) {
  PlayedAdo ado;
  Host host;
  EXPECT_EQ(host.run(), "BOOL true");
  EXPECT_EQ(ado.names_asked(Played::Command), 3u * 5u);
  EXPECT_EQ(ado.names_asked(Played::Connection), 5u);
}

// ADO lives where its threading model puts it; the library, and who calls it, in each kind of apartment.
class AdoOfAnotherApartment : public testing::TestWithParam<const wchar_t*> {
 protected:
  PlayedAdo ado_{GetParam()};
};

TEST_P(AdoOfAnotherApartment, ServesARunOfThisOne) {
  Host host;
  EXPECT_EQ(host.run(), "BOOL true");
  EXPECT_EQ(ado_.calls(), kThreeCommandsCalls);
  EXPECT_EQ(host.boxes(), Lines{});
}

TEST_P(AdoOfAnotherApartment, ServesARunThatIsCalledFromEachKindOfApartment) {
  const LateObject runner(L"QVRlib21.QVRScr");
  for (const COINIT apartment : {COINIT_APARTMENTTHREADED, COINIT_MULTITHREADED}) {
    SCOPED_TRACE(apartment);
    std::string answer;
    ado_.forget_calls();
    EXPECT_EQ(hand_over<IDispatch>(apartment, *runner.get(),
                                   [&](IDispatch& proxy) { answer = run(LateObject(ComPtr<IDispatch>(&proxy))); }),
              S_OK);
    EXPECT_EQ(answer, "BOOL true");
    EXPECT_EQ(ado_.calls(), kThreeCommandsCalls);
  }
}

// Made without the system's help: in a multithreaded apartment it would make the object on a thread of its own, where
// Wine 8 loses a class object each time.
LateObject made(REFCLSID id) {
  ComPtr<IClassFactory> factory;
  library().class_object(id, __uuidof(IClassFactory), reinterpret_cast<void**>(&factory));
  ComPtr<IDispatch> object;
  factory->CreateInstance(nullptr, IID_PPV_ARGS(&object));
  return LateObject(object);
}

TEST_P(AdoOfAnotherApartment, ServesARunOfALibraryInEachKindOfApartment) {
  for (const COINIT apartment : {COINIT_APARTMENTTHREADED, COINIT_MULTITHREADED}) {
    SCOPED_TRACE(apartment);
    std::string answer;
    ado_.forget_calls();
    EXPECT_EQ(run_in(apartment, [&] { answer = run(made(CLSID_QVRScr)); }), S_OK);
    EXPECT_EQ(answer, "BOOL true");
    EXPECT_EQ(ado_.calls(), kThreeCommandsCalls);
  }
}

// Where the command lives in the connection's apartment, the system hands it the connection itself again.
TEST_P(AdoOfAnotherApartment, TakesAConnectionThatWasMarshalled) {
  const bool together = *GetParam() == L'F' || *GetParam() == L'\0';
  const auto with_connection = [&](Lines calls) {
    if (!together) calls[1] = "set Command1.ActiveConnection = an object";
    return calls;
  };
  const LateObject connection(L"ADODB.Connection");
  for (const COINIT apartment : {COINIT_APARTMENTTHREADED, COINIT_MULTITHREADED}) {
    SCOPED_TRACE(apartment);
    const auto called_there = [&](const std::function<LateAnswer(IDispatch&)>& call) {
      ado_.forget_calls();
      std::string answer;
      EXPECT_EQ(hand_over<IDispatch>(apartment, *connection.get(),
                                     [&](IDispatch& proxy) { answer = describe(call(proxy).value.raw()); }),
                S_OK);
      return answer;
    };
    EXPECT_EQ(called_there([](IDispatch& proxy) {
                return made(CLSID_QVRScr).call(L"Ejecutar1Comando", {&proxy, L"a", 2});
              }),
              "BOOL true");
    EXPECT_EQ(ado_.calls(), with_connection(command(1, 1, "a")));
    EXPECT_EQ(called_there([](IDispatch& proxy) {
                const LateObject cfp = made(CLSID_QVRcfp);
                cfp.call(L"Asignar", {L"id", 2, L"", L"", L"", L"", L"", L"", L"", L""});
                return cfp.call(L"EjecutarProcSQL7", {&proxy, L"Alta", array_of({L"Ana", 5})});
              }),
              "BOOL true");
    EXPECT_EQ(ado_.calls(), with_connection({kProcedureCalls.begin() + 1, kProcedureCalls.end()}));
  }
}

INSTANTIATE_TEST_SUITE_P(Each, AdoOfAnotherApartment, testing::Values(L"Apartment", L"Both", L"Free", L""),
                         [](const auto& row) { return *row.param != L'\0' ? narrow(row.param) : "None"; });

}  // namespace
}  // namespace qvr::tests
