// Misbehaving sinks (re-entrance, failures): the run goes on, other sinks get all events, and Terminado exactly once.
#include <gtest/gtest.h>

#include <algorithm>

#include "QVRlib21.h"
#include "automation/database.h"
#include "automation/in_use.h"
#include "automation/library.h"
#include "automation/sink.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

const wchar_t* const kCommands = L"select 1\r\nGO\r\nselect 2\r\nGO\r\n";

std::string run(IDispatch& runner, const Database& database) {
  Var text(L"x"), connection(database.connection_string()), commands(kCommands), engine(2), id(L"app");
  VARIANT flat[] = {text.raw(), connection.raw(), commands.raw(), engine.raw(), id.raw()};
  DISPPARAMS parameters{flat, nullptr, 5, 0};
  Var result;
  const HRESULT status = runner.Invoke(0x60030000, IID_NULL, 0, DISPATCH_METHOD, &parameters, &result.raw(), nullptr,
                                       nullptr);
  return std::to_string(status) + " " + describe(result.raw());
}

// A run with two sinks: one that disturbs, connected first, and one that only listens.
struct DisturbedRun {
  explicit DisturbedRun(const Database& used) : database(used) {
    disturbing.Attach(new Sink());
    listening.Attach(new Sink());
    cookie = connect(*disturbing.Get());
    listening_cookie = connect(*listening.Get());
  }
  ~DisturbedRun() { disturbing->reaction = nullptr; }
  DisturbedRun(const DisturbedRun&) = delete;
  DisturbedRun& operator=(const DisturbedRun&) = delete;

  ComPtr<IConnectionPoint> point() const {
    ComPtr<IConnectionPoint> found;
    runner.as<IConnectionPointContainer>()->FindConnectionPoint(__uuidof(__QVRScr), &found);
    return found;
  }
  DWORD connect(Sink& sink) const {
    DWORD given = 0;
    point()->Advise(&sink, &given);
    return given;
  }
  // Through the plain pointer: the runner may be let go of meanwhile.
  std::string go() { return run(*runner.get(), database); }

  const Database& database;
  LateObject runner{L"QVRlib21.QVRScr"};
  ComPtr<Sink> disturbing, listening;
  DWORD cookie = 0, listening_cookie = 0;
  std::vector<std::string> nested;  // what runs inside the run answered
};

struct Disturbance {
  const char* name;
  HRESULT (*react)(DisturbedRun&, DISPID, VARIANT& argument);
  const char* nested = "";        // what each run inside the run, of those that begin with Progreso, answers
  const char16_t* refused = u"";  // how each of them is traced
};

DisturbedRun* pumped = nullptr;

void CALLBACK run_from_timer(HWND, UINT, UINT_PTR timer, DWORD) {
  KillTimer(nullptr, timer);
  pumped->nested.push_back(run(*pumped->runner.get(), pumped->database));
}

HRESULT pump(DisturbedRun& run_under_way) {
  pumped = &run_under_way;
  const std::size_t before = run_under_way.nested.size();
  SetTimer(nullptr, 0, USER_TIMER_MINIMUM, run_from_timer);
  MSG message;
  while (run_under_way.nested.size() == before && GetMessageW(&message, nullptr, 0, 0)) DispatchMessageW(&message);
  return S_OK;
}

const Disturbance kDisturbances[] = {
    {"nothing", [](DisturbedRun&, DISPID, VARIANT&) { return S_OK; }},
    {"fails", [](DisturbedRun&, DISPID, VARIANT&) { return E_FAIL; }},
    {"raises", [](DisturbedRun&, DISPID, VARIANT&) { return DISP_E_EXCEPTION; }},
    {"is gone", [](DisturbedRun&, DISPID, VARIANT&) { return RPC_E_DISCONNECTED; }},
    {"knows no event", [](DisturbedRun&, DISPID, VARIANT&) { return DISP_E_MEMBERNOTFOUND; }},
    {"answers with a success of its own", [](DisturbedRun&, DISPID, VARIANT&) -> HRESULT { return 0x00041234; }},
    {"writes to what it was given",
     [](DisturbedRun&, DISPID, VARIANT& argument) {
       if (argument.vt == (VT_BYREF | VT_BSTR)) SysReAllocString(argument.pbstrVal, L"changed");
       if (argument.vt == (VT_BYREF | VT_BOOL)) *argument.pboolVal = 7;
       return S_OK;
     }},
    {"takes the text away",
     [](DisturbedRun&, DISPID, VARIANT& argument) {
       if (argument.vt == (VT_BYREF | VT_BSTR)) SysFreeString(std::exchange(*argument.pbstrVal, nullptr));
       return S_OK;
     }},
    {"disconnects itself",
     [](DisturbedRun& run, DISPID, VARIANT&) {
       run.point()->Unadvise(run.cookie);
       return S_OK;
     }},
    {"disconnects and raises",
     [](DisturbedRun& run, DISPID, VARIANT&) {
       run.point()->Unadvise(run.cookie);
       return DISP_E_EXCEPTION;
     }},
    {"connects itself once more",
     [](DisturbedRun& run, DISPID, VARIANT&) {
       if (run.disturbing->events.size() < 3) run.connect(*run.disturbing.Get());
       return S_OK;
     }},
    {"releases the source",
     [](DisturbedRun& run, DISPID, VARIANT&) {
       run.runner = LateObject(ComPtr<IDispatch>());
       return S_OK;
     }},
    {"releases the source and raises",
     [](DisturbedRun& run, DISPID, VARIANT&) {
       run.runner = LateObject(ComPtr<IDispatch>());
       return DISP_E_EXCEPTION;
     }},
    {"has unused libraries unloaded",
     [](DisturbedRun&, DISPID, VARIANT&) {
       CoFreeUnusedLibraries();
       return S_OK;
     }},
    {"starts another run",
     [](DisturbedRun& run_under_way, DISPID, VARIANT&) {
       run_under_way.nested.push_back(run(*run_under_way.runner.get(), run_under_way.database));
       return S_OK;
     },
     "0 BOOL false", u"QVRScr.EjecutarComandos: 5 A run of this object is under way"},
    {"starts another run from a message", [](DisturbedRun& run, DISPID, VARIANT&) { return pump(run); }, "0 BOOL false",
     u"QVRScr.EjecutarComandos: 5 A run of this object is under way"},
    {"starts a run on another object",
     [](DisturbedRun& run_under_way, DISPID, VARIANT&) {
       const Database own;
       const LateObject other(L"QVRlib21.QVRScr");
       run_under_way.nested.push_back(run(*other.get(), own));
       return S_OK;
     },
     "0 BOOL true"},
    {"loads a definition",
     [](DisturbedRun& run, DISPID, VARIANT&) {
       const LateAnswer loaded = run.runner.call(L"CargarDefinicion",
                                                 {L"app", 2, work_folder(), L"none", L"BD", L"", L"", L"", L"", false});
       run.nested.push_back(std::to_string(loaded.result) + " " + describe(loaded.value.raw()));
       return S_OK;
     },
     "0 BSTR ", u"QVRScr.CargarDefinicion: 5 A run of this object is under way"},
};

class Disturbed : public testing::TestWithParam<Disturbance> {
 protected:
  std::vector<std::string> undisturbed() const {
    DisturbedRun quiet(database_);
    quiet.go();
    return quiet.listening->events;
  }

  void run_once(const std::vector<std::string>& expected) {
    DisturbedRun disturbed(database_);
    const bool nests = *GetParam().nested != '\0';
    disturbed.disturbing->reaction = [&](DISPID event, VARIANT& argument) {
      return nests && event == kTerminado ? S_OK : GetParam().react(disturbed, event, argument);
    };
    EXPECT_EQ(disturbed.go(), "0 BOOL true");
    EXPECT_EQ(disturbed.listening->events, expected);
    EXPECT_GT(disturbed.disturbing->events.size(), 0u);
    EXPECT_EQ(disturbed.nested, std::vector<std::string>(nests ? expected.size() - 1 : 0, GetParam().nested));
    EXPECT_EQ(traced(), *GetParam().refused != u'\0' ? Traces(expected.size() - 1, GetParam().refused) : Traces());
  }

  Database database_;
};

TEST_P(Disturbed, RunsToItsEndAndLeavesNothingBehind) {
  constexpr int kRounds = 24;
  const std::vector<std::string> expected = undisturbed();
  ASSERT_EQ(expected.size(), 4u);
  ASSERT_EQ(expected.back(), "Terminado BOOL* true");
  stop_string_cache();
  for (int i = 0; i < kRounds; ++i) run_once(expected);
  const InUse before = in_use();
  for (int i = 0; i < kRounds; ++i) run_once(expected);
  const InUse after = in_use();
  EXPECT_LT(after.blocks, before.blocks + kRounds / 2);
  EXPECT_LT(after.handles, before.handles + kRounds / 2);
  EXPECT_EQ(library().can_unload(), S_OK);
}

std::string case_name(const testing::TestParamInfo<Disturbance>& row) {
  std::string name;
  bool upper = true;
  for (const char unit : std::string_view(row.param.name)) {
    if (unit != ' ') name.push_back(upper ? static_cast<char>(unit - 'a' + 'A') : unit);
    upper = unit == ' ';
  }
  return name;
}

INSTANTIATE_TEST_SUITE_P(Events, Disturbed, testing::ValuesIn(kDisturbances), case_name);

// A host that starts the next run in each Terminado, until it is refused.
TEST(DisturbedChain, OfRunsEndsAndLeavesNothingBehind) {
  const Database database;
  const auto chain = [&database] {
    DisturbedRun disturbed(database);
    disturbed.disturbing->reaction = [&disturbed](DISPID event, VARIANT&) {
      if (event == kTerminado) disturbed.nested.push_back(disturbed.go());
      return S_OK;
    };
    EXPECT_EQ(disturbed.go(), "0 BOOL true");
    std::vector<std::string> answers(32, "0 BOOL true");
    answers.front() = "0 BOOL false";  // the innermost one answers first
    EXPECT_EQ(disturbed.nested, answers);
    EXPECT_EQ(std::ranges::count(disturbed.listening->events, "Terminado BOOL* true"), 32);
    EXPECT_EQ(traced(), Traces{u"QVRScr.EjecutarComandos: 5 A run of this object is under way"});
  };
  stop_string_cache();
  chain();
  const InUse before = in_use();
  for (int i = 0; i < 4; ++i) chain();
  const InUse after = in_use();
  EXPECT_LT(after.blocks, before.blocks + 32);
  EXPECT_LT(after.handles, before.handles + 4);
  EXPECT_EQ(library().can_unload(), S_OK);
}

TEST(DisturbedOthers, ASinkThatAnotherDisconnectsHearsNothingMore) {
  Database database;
  DisturbedRun disturbed(database);
  disturbed.disturbing->reaction = [&](DISPID, VARIANT&) {
    disturbed.point()->Unadvise(disturbed.listening_cookie);
    return S_OK;
  };
  EXPECT_EQ(disturbed.go(), "0 BOOL true");
  EXPECT_EQ(disturbed.listening->events, std::vector<std::string>());
  EXPECT_EQ(disturbed.disturbing->events.back(), "Terminado BOOL* true");
}

}  // namespace
}  // namespace qvr::tests
