#include "automation/both.h"
#include "automation/boxes.h"
#include "automation/database.h"
#include "automation/sink.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

const wchar_t* const kTwoCommands =
    L"create table Art\u00edculos(Nombre varchar(20))\r\nGO\r\n\r\ninsert into Art\u00edculos values('Jam\u00f3n')\r\ngo\r\n";

struct QVRScrTest : testing::Test {
  LateObject late{L"QVRlib21.QVRScr"};
  Database database;

  LateAnswer run_late(const wchar_t* id, const wchar_t* commands) const {
    return late.call(L"EjecutarComandos", {id, 2, commands, database.connection_string()});
  }
};

TEST_F(QVRScrTest, EjecutarComandosRunsIntoTheDatabase) {
  Connected connected(late);
  const LateAnswer ran = run_late(L"app", kTwoCommands);
  Database second;
  LateObject other(L"QVRlib21.QVRScr");
  Connected early_connected(other);
  Bstr id(L"app"), commands(kTwoCommands), connection(second.connection_string());
  long engine = 2;
  VARIANT_BOOL done = 0;
  const HRESULT status = other.as<_QVRScr>()->EjecutarComandos(&id, &engine, &commands, &connection, nullptr, &done);
  expect_same(ran, status, early_result(done), "BOOL true");
  EXPECT_EQ(database.ask(L"select Nombre from Art\u00edculos"), "Jam\u00f3n");
  EXPECT_EQ(second.ask(L"select Nombre from Art\u00edculos"), "Jam\u00f3n");
  EXPECT_EQ(connected.events(), early_connected.events());
}

TEST_F(QVRScrTest, EventsOfARunInTheLanguageOfTheUsersSetting) {
  struct Row {
    const wchar_t* setting;
    std::string counting, done;
  };
  for (const Row& row : {Row{L"0", "Contando comandos...", "Comandos ejecutados"},
                         {L"1", "Counting commands...", "Commands executed"},
                         {L"3", "Comptage des commandes...", "Commandes ex\u00e9cut\u00e9es"}}) {
    on_thread_in_language(row.setting, [&] {
      Database own;
      const LateObject runner(L"QVRlib21.QVRScr");
      Connected connected(runner);
      runner.call(L"EjecutarComandos", {L"app", 2, kTwoCommands, own.connection_string()});
      const std::vector<std::string> expected{"Progreso BSTR* " + row.counting, "Progreso BSTR* " + row.done + ": 0/2",
                                              "Progreso BSTR* " + row.done + ": 1/2", "Terminado BOOL* true"};
      EXPECT_EQ(connected.events(), expected);
    });
  }
}

TEST_F(QVRScrTest, TheHostsOwnChangeOfAnArgumentDuringARunStays) {
  Connected connected(late);
  Bstr id(L"app"), commands(kTwoCommands), connection(database.connection_string()), shown(L"x");
  connected.sink().reaction = [&](DISPID, VARIANT&) { return SysReAllocString(&id, L"next") ? S_OK : E_OUTOFMEMORY; };
  long engine = 2;
  VARIANT_BOOL done = 0;
  late.as<_QVRScr>()->EjecutarComandos(&id, &engine, &commands, &connection, &shown, &done);
  EXPECT_EQ(done, VARIANT_TRUE);
  EXPECT_EQ(id.text(), L"next");
}

TEST_F(QVRScrTest, ADisconnectedSinkHearsNothing) {
  Connected connected(late);
  ComPtr<Sink> sink(&connected.sink());
  connected.disconnect();
  EXPECT_EQ(describe(run_late(L"app", kTwoCommands).value.raw()), "BOOL true");
  EXPECT_TRUE(sink->events.empty());
}

TEST_F(QVRScrTest, EverySinkHearsARunAndOneThatFailsDisturbsNobody) {
  Connected first(late), second(late);
  first.sink().reaction = [](DISPID, VARIANT& argument) {
    if (argument.vt == (VT_BYREF | VT_BSTR)) SysReAllocString(argument.pbstrVal, L"changed");
    return E_FAIL;
  };
  EXPECT_EQ(describe(run_late(L"app", kTwoCommands).value.raw()), "BOOL true");
  EXPECT_EQ(first.events(), second.events()) << "each has the text to itself";
}

TEST_F(QVRScrTest, ASinkMayLeaveDuringTheRun) {
  Connected leaving(late), staying(late);
  leaving.sink().reaction = [&](DISPID, VARIANT&) {
    leaving.disconnect();
    return S_OK;
  };
  run_late(L"app", kTwoCommands);
  EXPECT_EQ(leaving.events().size(), 1u);
  EXPECT_EQ(staying.events().size(), 4u);
}

TEST_F(QVRScrTest, ASinkThatAnotherOneDisconnectsHearsNotEvenThatEvent) {
  Connected first(late), second(late), third(late);
  first.sink().reaction = [&](DISPID, VARIANT&) {
    if (first.events().size() == 2) second.disconnect();
    return S_OK;
  };
  run_late(L"app", kTwoCommands);
  EXPECT_EQ(first.events().size(), 4u);
  EXPECT_EQ(second.events().size(), 1u);
  EXPECT_EQ(third.events(), first.events());
}

TEST_F(QVRScrTest, ASinkThatAnotherOneConnectsHearsTheNextEvent) {
  Connected first(late);
  std::unique_ptr<Connected> second;
  first.sink().reaction = [&](DISPID, VARIANT&) {
    if (!second) second = std::make_unique<Connected>(late);
    return S_OK;
  };
  run_late(L"app", kTwoCommands);
  EXPECT_EQ(second->events(), std::vector<std::string>(first.events().begin() + 1, first.events().end()));
}

TEST_F(QVRScrTest, ANestedRunOnTheSameObjectIsRefusedWithoutEvents) {
  Connected connected(late);
  std::vector<std::string> nested;
  connected.sink().reaction = [&](DISPID event, VARIANT&) {
    if (event == kTerminado) return S_OK;
    const std::size_t before = connected.events().size();
    nested.push_back(describe(run_late(L"app", kTwoCommands).value.raw()));
    EXPECT_EQ(connected.events().size(), before);
    return S_OK;
  };
  EXPECT_EQ(describe(run_late(L"app", kTwoCommands).value.raw()), "BOOL true");
  EXPECT_EQ(nested, std::vector<std::string>(3, "BOOL false"));
  connected.sink().reaction = nullptr;
  EXPECT_EQ(describe(run_late(L"app", L"delete from Art\u00edculos\r\nGO\r\n").value.raw()), "BOOL true");
  EXPECT_EQ(traced(), Traces(3, u"QVRScr.EjecutarComandos: 5 A run of this object is under way"));
}

TEST_F(QVRScrTest, TheNextRunMayBeginInsideTerminado) {
  Connected connected(late);
  std::vector<std::string> next;
  connected.sink().reaction = [&](DISPID event, VARIANT&) {
    if (event != kTerminado || !next.empty()) return S_OK;
    next.emplace_back("begun");
    next.push_back(describe(run_late(L"app", L"delete from Art\u00edculos\r\nGO\r\n").value.raw()));
    return S_OK;
  };
  EXPECT_EQ(describe(run_late(L"app", kTwoCommands).value.raw()), "BOOL true");
  EXPECT_EQ(next, (std::vector<std::string>{"begun", "BOOL true"}));
  EXPECT_EQ(connected.events().size(), 7u);
  EXPECT_EQ(connected.events().back(), "Terminado BOOL* true");
  EXPECT_EQ(database.ask(L"select count(*) from Art\u00edculos"), "0");
}

TEST_F(QVRScrTest, TheObjectLivesThroughARunThatReleasesIt) {
  ComPtr<Sink> sink;
  sink.Attach(new Sink());
  ComPtr<IDispatch> source(late.get());
  DWORD cookie = 0;
  ComPtr<IConnectionPoint> point;
  late.as<IConnectionPointContainer>()->FindConnectionPoint(__uuidof(__QVRScr), &point);
  point->Advise(sink.Get(), &cookie);
  point.Reset();
  sink->reaction = [&](DISPID, VARIANT&) {
    late = LateObject(ComPtr<IDispatch>());
    source.Reset();
    return S_OK;
  };
  IDispatch* const raw = source.Get();  // the raw pointer: the event releases the reference
  Var arguments[] = {database.connection_string(), kTwoCommands, 2, L"app"};
  VARIANT flat[] = {arguments[0].raw(), arguments[1].raw(), arguments[2].raw(), arguments[3].raw()};
  DISPPARAMS parameters{flat, nullptr, 4, 0};
  Var result;
  EXPECT_EQ(raw->Invoke(0x60030000, IID_NULL, 0, DISPATCH_METHOD, &parameters, &result.raw(), nullptr, nullptr), S_OK);
  EXPECT_EQ(describe(result.raw()), "BOOL true");
  EXPECT_EQ(sink->events.size(), 4u);
  sink->reaction = nullptr;
}

constexpr UINT kHostsMessage = WM_APP;
std::vector<std::string> seen;

LRESULT CALLBACK on_message(HWND window, UINT message, WPARAM first, LPARAM second) {
  if (message == kHostsMessage) seen.emplace_back("message");
  return DefWindowProcW(window, message, first, second);
}

// Every event posts a message: two wait after the first command, one after the second.
TEST_F(QVRScrTest, TheHostsMessagesAreProcessedBetweenCommands) {
  const HWND window = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(on_message));
  seen.clear();
  Connected connected(late);
  connected.sink().reaction = [&](DISPID event, VARIANT&) {
    seen.emplace_back(event == kTerminado ? "Terminado" : "Progreso");
    PostMessageW(window, kHostsMessage, 0, 0);
    return S_OK;
  };
  run_late(L"app", kTwoCommands);
  DestroyWindow(window);
  EXPECT_EQ(seen, (std::vector<std::string>{"Progreso", "Progreso", "message", "message", "Progreso", "message",
                                            "Terminado"}));
}

// Windows that always have a next message. Each ends after so many, so that a run that waits for that is noticed.
constexpr int kForEver = 5000;
int handled;

LRESULT CALLBACK posts_to_itself(HWND window, UINT message, WPARAM first, LPARAM second) {
  if (message == kHostsMessage && ++handled < kForEver) {
    Sleep(1);
    PostMessageW(window, kHostsMessage, 0, 0);
  }
  return DefWindowProcW(window, message, first, second);
}

LRESULT CALLBACK is_slower_than_its_timer(HWND window, UINT message, WPARAM first, LPARAM second) {
  if (message == WM_TIMER) {
    handled += 100;
    Sleep(40);
    if (handled >= kForEver) KillTimer(window, first);
  }
  return DefWindowProcW(window, message, first, second);
}

LRESULT CALLBACK never_validates(HWND window, UINT message, WPARAM first, LPARAM second) {
  if (message == WM_PAINT && ++handled < kForEver) return 0;
  if (message == WM_PAINT) ValidateRect(window, nullptr);
  return DefWindowProcW(window, message, first, second);
}

TEST_F(QVRScrTest, ARunEndsAlthoughAWindowAlwaysHasANextMessage) {
  for (const WNDPROC procedure : {posts_to_itself, is_slower_than_its_timer, never_validates}) {
    const HWND window = CreateWindowExW(WS_EX_NOACTIVATE, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 20, 20, nullptr,
                                        nullptr, nullptr, nullptr);
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    handled = 0;
    PostMessageW(window, kHostsMessage, 0, 0);
    SetTimer(window, 1, 10, nullptr);
    InvalidateRect(window, nullptr, FALSE);
    Sleep(30);
    EXPECT_EQ(describe(run_late(L"EvitarTransaccion", L"select 1\r\nGO\r\nselect 2\r\nGO\r\n").value.raw()),
              "BOOL true");
    EXPECT_GT(handled, 0);
    EXPECT_LT(handled, kForEver);
    DestroyWindow(window);
  }
}

TEST_F(QVRScrTest, AQuitMessageIsLeftToTheHost) {
  PostQuitMessage(7);
  EXPECT_EQ(describe(run_late(L"app", kTwoCommands).value.raw()), "BOOL true");
  MSG message{};
  EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(message.wParam, 7u);
}

TEST_F(QVRScrTest, ChangedArgumentsComeBackToTheCallersVariables) {
  Var id(L"evitartransaccionApp"), shown;
  const LateAnswer answer = late.call(L"EjecutarComandos", {Var::by_reference(id), 2, L"", database.connection_string(),
                                                            Var::by_reference(shown)});
  EXPECT_EQ(describe(answer.value.raw()), "BOOL true");
  EXPECT_EQ(id.text(), L"App");
  EXPECT_TRUE(shown.text() == L"Comandos ejecutados: " || shown.text() == L"Commands executed: " ||
              shown.text() == L"Commandes ex\u00e9cut\u00e9es: ")
      << narrow(shown.text());
  Bstr typed(L"EvitarTransaccion");
  late.call(L"EjecutarComandos", {Var::by_reference(*&typed), 2, L"", database.connection_string(), L"x"});
  EXPECT_EQ(typed.text(), L"");
}

TEST_F(QVRScrTest, ARejectedCommandAndTheAnswerNo) {
  late.call(L"EjecutarComandos", {L"app", 2, L"create table T(N int)\r\nGO\r\n", database.connection_string()});
  Connected connected(late);
  Person person(IDNO);
  const wchar_t* const commands =
      L"insert into T values(1)\r\nGO\r\nnonsense\r\nGO\r\ninsert into T values(2)\r\nGO\r\n";
  EXPECT_EQ(describe(run_late(L"app", commands).value.raw()), "BOOL false");
  ASSERT_EQ(person.boxes().size(), 2u);
  EXPECT_EQ(person.boxes()[0].title, L"QVRlib21");
  EXPECT_TRUE(person.boxes()[0].text.starts_with(L"Error indeterminado\r\n\r\nError -2147217900: "))
      << narrow(person.boxes()[0].text);
  EXPECT_TRUE(person.boxes()[0].text.ends_with(L"\r\n\r\nM\u00e9todo: Ejecutar1Comando: nonsense"))
      << narrow(person.boxes()[0].text);
  EXPECT_TRUE(person.boxes()[1].question);
  EXPECT_EQ(connected.events().back(), "Terminado BOOL* false");
  EXPECT_EQ(database.ask(L"select count(*) from T"), "0");
  EXPECT_EQ(traced(), (Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"}));
}

TEST_F(QVRScrTest, ARejectedCommandAndTheAnswerYes) {
  Person person(IDYES);
  const wchar_t* const commands =
      L"create table T(N int)\r\nGO\r\ninsert into T values(1)\r\nGO\r\nnonsense\r\nGO\r\ninsert into T values(2)\r\nGO\r\n";
  Connected connected(late);
  EXPECT_EQ(describe(run_late(L"app", commands).value.raw()), "BOOL true");
  EXPECT_EQ(person.boxes().size(), 2u);
  EXPECT_EQ(connected.events().back(), "Terminado BOOL* true");
  EXPECT_EQ(database.ask(L"select count(*) from T"), "2");
  EXPECT_EQ(traced(), (Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"}));
}

TEST_F(QVRScrTest, WithoutATransactionWhatRanStaysWhenTheAnswerIsNo) {
  Person person(IDNO);
  const wchar_t* const commands = L"create table T(N int)\r\nGO\r\ninsert into T values(1)\r\nGO\r\nnonsense\r\nGO\r\n";
  EXPECT_EQ(describe(run_late(L"EvitarTransaccion", commands).value.raw()), "BOOL false");
  EXPECT_EQ(database.ask(L"select count(*) from T"), "1");
  EXPECT_EQ(traced(), (Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"}));
}

}  // namespace
}  // namespace qvr::tests
