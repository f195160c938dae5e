// Runs of many commands, runs one after the other, and commands of many characters: nothing grows with their number,
// and no text is kept more often than it must be.
#include <gtest/gtest.h>

#include <cstdio>
#include <sstream>

#include "QVRlib21.h"
#include "automation/arrays.h"
#include "automation/boxes.h"
#include "automation/in_use.h"
#include "automation/library.h"
#include "automation/played_ado.h"
#include "automation/sink.h"
#include "automation/stress/allocations.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

std::wstring commands(std::size_t count, const std::wstring& each = L"x") {
  const std::wstring separated = each + L"\r\nGO\r\n";
  std::wstring all;
  all.reserve(count * separated.size());
  for (std::size_t i = 0; i < count; ++i) all += separated;
  return all;
}

std::string run(const LateObject& runner, const Var& list) {
  return describe(runner.call(L"EjecutarComandos", {L"app", 2, list, L"Data Source=x", L"done "}).value.raw());
}

struct InAll {
  InUse process;
  SystemObjects system;
};

InAll in_all() {
  const SystemObjects system = system_objects();  // before the memory that it needs itself is counted
  return {in_use(), system};
}

std::ostream& operator<<(std::ostream& out, const InAll& all) {
  return out << all.process.blocks << " blocks, " << all.process.bytes << " bytes, " << all.process.handles
             << " handles; " << all.system;
}

void expect_the_same(const InUse& before, const InUse& after) {
  // What the system and the test's own lists keep for later: some blocks, of which one may be a page.
  constexpr std::size_t kBlocks = 20, kBytes = 16384, kHandles = 3;
  EXPECT_LE(after.blocks, before.blocks + kBlocks);
  EXPECT_LE(after.bytes, before.bytes + kBytes);
  EXPECT_LE(after.handles, before.handles + kHandles);
}

void expect_the_same(const InAll& before, const InAll& after) {
  expect_the_same(before.process, after.process);
  EXPECT_EQ(after.system.gdi_objects, before.system.gdi_objects);
  constexpr std::size_t kOfOthers = 3;  // Wine limits the USER objects of all processes together
  EXPECT_LE(before.system.user_objects, after.system.user_objects + kOfOthers);
  EXPECT_EQ(after.system.thread_local_slots, before.system.thread_local_slots);
  EXPECT_EQ(after.system.modules, before.system.modules);
  std::ostringstream told;
  told << "before: " << before << "\nafter:  " << after << "\n";
  std::fputs(told.str().c_str(), stdout);
}

TEST(LongRuns, AreMeasuredByCountsThatSeeEachKindOfLeak) {
  system_objects();  // the first one loads what draws
  const InAll before = in_all();
  const HGDIOBJ pen = CreatePen(PS_SOLID, 1, 1);
  const HMENU menu = CreateMenu();
  const DWORD slot = TlsAlloc();
  const HMODULE module = LoadLibraryW(L"msxml3.dll");
  ASSERT_NE(module, nullptr);
  const HANDLE handle = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  void* const large = HeapAlloc(GetProcessHeap(), 0, 60000000);
  const InAll after = in_all();
  HeapFree(GetProcessHeap(), 0, large);
  CloseHandle(handle);
  FreeLibrary(module);
  TlsFree(slot);
  DestroyMenu(menu);
  DeleteObject(pen);
  EXPECT_EQ(after.system.gdi_objects, before.system.gdi_objects - 1);
  EXPECT_EQ(after.system.user_objects, before.system.user_objects - 1);
  EXPECT_LE(after.system.thread_local_slots, before.system.thread_local_slots - 1);
  EXPECT_GT(after.system.modules, before.system.modules);
  EXPECT_GE(after.process.handles, before.process.handles + 1);
  EXPECT_GE(after.process.bytes, before.process.bytes + 60000000);
}

TEST(LongRuns, OfAHundredThousandCommandsKeepNothing) {
  constexpr std::size_t kCommands = 100000;
  stop_string_cache();
  PlayedAdo ado;
  ado.keeps_calls = false;
  const LateObject runner(L"QVRlib21.QVRScr");
  Connected connected(runner);
  const Var few = commands(3), many = commands(kCommands);
  std::size_t told = 0, longest = 0;
  std::string last;
  InUse early, late;
  connected.sink().reaction = [&](DISPID event, VARIANT&) {
    if (event != kTerminado && told++ != 0) {  // the first one tells that commands are counted
      last = connected.events().back();
      longest = std::max(longest, last.size());
      if (told == 1000) early = in_use();
      if (told == kCommands) late = in_use();
    }
    connected.sink().events.clear();
    return S_OK;
  };
  EXPECT_EQ(run(runner, few), "BOOL true");
  system_objects();
  told = 0;
  const InAll before = in_all();
  EXPECT_EQ(run(runner, many), "BOOL true");
  const InAll after = in_all();
  EXPECT_EQ(told, kCommands + 1);
  EXPECT_EQ(last, "Progreso BSTR* done 99999/100000");
  EXPECT_EQ(longest, last.size());
  expect_the_same(early, late);
  expect_the_same(before, after);
  EXPECT_EQ(ado.living(), 0);
}

// How long the runs one after the other go on. Minutes of them are for who looks for what grows slowly.
DWORD seconds_of_runs() {
  constexpr DWORD kOtherwise = 5;
  wchar_t text[16] = L"";
  const DWORD length = GetEnvironmentVariableW(L"QVR_LONG_RUN_SECONDS", text, 16);
  return length == 0 || length >= 16 ? kOtherwise : std::stoul(text);
}

// What a host does with one object after another. One run in fifty has a command that fails, and the user goes on.
class Runs {
 public:
  void one() {
    const LateObject runner(L"QVRlib21.QVRScr"), cfp(L"QVRlib21.QVRcfp"), connection(L"ADODB.Connection");
    const Connected connected(runner);
    if (++count_ % 50 == 0) {
      fail_one(runner);
    } else {
      EXPECT_EQ(run(runner, three_), "BOOL true");
    }
    EXPECT_EQ(connected.events().size(), 5u);
    Var list = array_of({L"Ana", 5});
    expect_true(runner.call(L"Ejecutar1Comando", {connection.get(), L"x", 2}));
    expect_true(cfp.call(L"Asignar", {L"id", 2, L"", L"", L"", L"", L"", L"", L"", L""}));
    expect_true(cfp.call(L"EjecutarProcSQL7", {connection.get(), L"Alta", Var::by_reference(list)}));
    ado_.forget_calls();
  }
  std::size_t count() const { return count_; }

 private:
  static void expect_true(const LateAnswer& answer) { EXPECT_EQ(describe(answer.value.raw()), "BOOL true"); }

  void fail_one(const LateObject& runner) {
    ado_.reaction = [](const std::string& call) {
      return call.starts_with("Command2.Execute") ? DISP_E_EXCEPTION : S_OK;
    };
    const Person person(IDYES);
    EXPECT_EQ(run(runner, three_), "BOOL true");
    EXPECT_EQ(person.boxes().size(), 2u);
    ado_.reaction = nullptr;
  }

  PlayedAdo ado_;
  const Var three_ = commands(3);
  std::size_t count_ = 0;
};

TEST(LongRuns, OneAfterTheOtherKeepNothing) {
  constexpr std::size_t kFirst = 200, kFewest = 400;
  expect_any_traces();
  stop_string_cache();
  Runs runs;
  while (runs.count() < kFirst) runs.one();
  system_objects();
  const InAll before = in_all();
  const ULONGLONG end = GetTickCount64() + seconds_of_runs() * 1000;
  while (runs.count() < kFewest || GetTickCount64() < end) runs.one();
  std::printf("%u runs\n", static_cast<unsigned>(runs.count()));
  expect_the_same(before, in_all());
  EXPECT_EQ(library().can_unload(), S_OK);
}

// The copies of a long command in the library: its argument as a text, the value that is put, and the string that ADO
// is handed.
class LargeCommand : public testing::Test {
 protected:
  static constexpr UINT kCharacters = 30000000;
  static constexpr std::size_t kCopy = kCharacters * sizeof(wchar_t);

  LargeCommand() { stop_string_cache(); }

  // The most copies that there are at once while the body calls the library.
  static std::size_t copies_during(const std::function<void()>& body) {
    const Allocations allocations;
    body();
    return (allocations.most_held() + kCopy / 2) / kCopy;
  }

  PlayedAdo ado_;
  const LateObject runner_{L"QVRlib21.QVRScr"};
  const ComPtr<_QVRScr> early_ = runner_.as<_QVRScr>();
  const Connected connected_{runner_};
};

constexpr std::size_t kMostCopies = 3;

TEST_F(LargeCommand, IsMeasuredByACountThatSeesEachCopy) {
  EXPECT_EQ(copies_during([] {}), 0u);
  EXPECT_EQ(copies_during([] {
              const std::u16string of_run_time(kCharacters, u'x');
              const BSTR of_automation = SysAllocStringLen(nullptr, kCharacters);
              { const std::u16string for_a_moment = of_run_time; }
              SysFreeString(of_automation);
              const std::u16string once_more = of_run_time;
            }),
            3u);
  const std::u16string from_before(kCharacters, u'x');
  EXPECT_EQ(copies_during([&] { const std::u16string copy = from_before; }), 1u);
}

// The host's own strings are there before.
TEST_F(LargeCommand, OfARunIsHeldThreeTimesAtMost) {
  Bstr id(L"app"), list(commands(1, std::wstring(kCharacters, L'x'))), connection(L"Data Source=x"), shown(L"done ");
  const std::size_t copies = copies_during([&] {
    long engine = 2;
    VARIANT_BOOL done = 0;
    early_->EjecutarComandos(&id, &engine, &list, &connection, &shown, &done);
    EXPECT_EQ(done, VARIANT_TRUE);
  });
  EXPECT_LE(copies, kMostCopies);
}

TEST_F(LargeCommand, OfARunByNameIsHeldThreeTimesAtMost) {
  Var list = commands(1, std::wstring(kCharacters, L'x'));
  for (const Var& passed : {list, Var::by_content(list), Var::by_reference(list)}) {
    SCOPED_TRACE(passed.type());
    std::vector<Var> arguments{L"app", 2, passed, L"Data Source=x", L"done "};
    const std::size_t copies = copies_during([&] {
      const LateAnswer ran = runner_.call(L"EjecutarComandos", std::move(arguments));
      EXPECT_EQ(describe(ran.value.raw()), "BOOL true");
    });
    EXPECT_LE(copies, kMostCopies);
  }
}

TEST_F(LargeCommand, ThatFailsIsHeldThreeTimesAtMost) {
  ado_.reaction = [](const std::string& call) { return call.starts_with("Command1.Execute") ? E_FAIL : S_OK; };
  Var list = commands(1, std::wstring(kCharacters, L'x'));
  std::vector<Var> arguments{L"app", 2, list, L"Data Source=x", L"done "};
  const Person person(IDNO);
  const std::size_t copies = copies_during([&] {
    const LateAnswer ran = runner_.call(L"EjecutarComandos", std::move(arguments));
    EXPECT_EQ(describe(ran.value.raw()), "BOOL false");
  });
  EXPECT_LE(copies, kMostCopies);
  EXPECT_EQ(person.boxes().size(), 2u);
  EXPECT_EQ(traced(), Traces{u"QVRScr.Ejecutar1Comando: -2147467259 Call failed."});
}

TEST_F(LargeCommand, ByItselfIsHeldThreeTimesAtMost) {
  const LateObject connection(L"ADODB.Connection");
  Bstr text(std::wstring(kCharacters, L'x'));
  auto* raw = reinterpret_cast<Connection*>(connection.get());
  const std::size_t copies = copies_during([&] {
    long engine = 2;
    VARIANT_BOOL done = 0;
    early_->Ejecutar1Comando(&raw, &text, &engine, &done);
    EXPECT_EQ(done, VARIANT_TRUE);
  });
  EXPECT_LE(copies, kMostCopies);
}

}  // namespace
}  // namespace qvr::tests
