// Calls out of the library run under the host's floating-point state, and may call back.
#include <gtest/gtest.h>

#include "QVRlib21.h"
#include "automation/arrays.h"
#include "automation/boxes.h"
#include "automation/family_component.h"
#include "automation/floating_point_state.h"
#include "automation/library.h"
#include "automation/prepared_call.h"
#include "automation/script_folder.h"
#include "automation/sink.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

// Notes the state each time that somebody is called, while it is listening.
struct Notes {
  bool listening = false;
  std::vector<StatePicture> seen;
  void take() {
    if (listening) seen.push_back(state_now());
  }
};

class CallsOut : public testing::TestWithParam<HostState> {
 protected:
  // Runs the call in the state, which must be there for everyone who is called, and afterwards. At least so many are.
  void expect_seen(PreparedCall& call, std::size_t least) {
    const StateAround around = in_state(GetParam(), [&] {
      notes.listening = true;
      call.run();
      notes.listening = false;
    });
    EXPECT_GE(notes.seen.size(), least);
    for (const StatePicture& seen : notes.seen) EXPECT_TRUE(seen.has_control_of(GetParam())) << to_string(seen);
    EXPECT_EQ(to_string(around.after), to_string(around.before));
  }

  FamilyComponent::Answer noting(Var value = {}) {
    return [this, value](auto&, auto&) {
      notes.take();
      LateAnswer answer;
      answer.result = S_OK;
      answer.value = value;
      return answer;
    };
  }

  Notes notes;
};

INSTANTIATE_TEST_SUITE_P(States, CallsOut, testing::ValuesIn(kHostStates),
                         [](const auto& row) { return row.param.name; });

// An object of the host's whose default property is a number.
class Witness final : public IDispatch {
 public:
  Witness(Notes& notes, Var value) : notes_(notes), value_(std::move(value)) {}
  STDMETHODIMP QueryInterface(REFIID id, void** found) noexcept override {
    notes_.take();
    *found = id == IID_IUnknown || id == IID_IDispatch ? this : nullptr;
    if (*found == nullptr) return E_NOINTERFACE;
    ++count_;
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return ++count_; }
  STDMETHODIMP_(ULONG) Release() noexcept override {
    notes_.take();
    return --count_;
  }
  STDMETHODIMP GetTypeInfoCount(UINT*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override { return DISP_E_UNKNOWNNAME; }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                      UINT*) noexcept override {
    notes_.take();
    return id == DISPID_VALUE ? VariantCopy(result, &value_.raw()) : DISP_E_MEMBERNOTFOUND;
  }
  ULONG references() const { return count_; }

 private:
  Notes& notes_;
  Var value_;
  ULONG count_ = 1;
};

const std::vector<Var> kLoading{L"app", 2, L"", L"Gestion", L"BD", L"", L"", L"", L"", false};

TEST_P(CallsOut, EventsAndCallsFromThem) {
  ScriptFolder folder(L"floating");
  folder.write(L"GestionSQL1.cfc", "use [NombreBD]\r\nGO\r\n");
  const LateObject runner(L"QVRlib21.QVRScr"), other(L"QVRlib21.QVRcfp");
  other.call(L"Asignar", {L"id", 2, L"", L"", L"", L"", L"", L"", L"", L""});
  Connected connected(runner);
  const auto back = late_call(other.get(), L"ExpSQL", DISPATCH_METHOD, {1.0 / 3});
  connected.sink().reaction = [&](DISPID, VARIANT&) {
    notes.take();
    back->run();
    notes.take();
    return S_OK;
  };
  std::vector<Var> arguments = kLoading;
  arguments[2] = folder.path();
  const auto call = late_call(runner.get(), L"CargarDefinicion", DISPATCH_METHOD, arguments);
  expect_seen(*call, 14);
  EXPECT_EQ(call->outcome(), "BSTR use BD\r\nGO\r\n\r\n");
  EXPECT_EQ(back->outcome(), "BSTR  0.3333333333333333");
  EXPECT_EQ(connected.events().size(), 7u);
}

TEST_P(CallsOut, AnEventThatChangesTheState) {
  ScriptFolder folder(L"changing");
  folder.write(L"GestionORA1.cfc", "[LogFile]\r\n/\r\n");
  const LateObject runner(L"QVRlib21.QVRScr");
  Connected connected(runner);
  connected.sink().reaction = [](DISPID, VARIANT&) {
    const std::uint16_t up_in_24_bits = 0x087F;
    const std::uint32_t up = 0x5F80;
    asm volatile("fnclex");
    asm volatile("fldcw %0" : : "m"(up_in_24_bits));
    asm volatile("ldmxcsr %0" : : "m"(up));
    return S_OK;
  };
  std::vector<Var> arguments = kLoading;
  arguments[1] = 3;
  arguments[2] = folder.path();
  const auto call = late_call(runner.get(), L"CargarDefinicion", DISPATCH_METHOD, arguments);
  const auto hour = [] {
    SYSTEMTIME now;
    GetLocalTime(&now);
    char text[8];
    std::snprintf(text, sizeof text, "%02d%02d", now.wHour, now.wMinute);
    return std::string(text);
  };
  std::string before, after;
  do {  // again where a minute ended meanwhile
    before = hour();
    expect_seen(*call, 0);
    after = hour();
  } while (before != after);
  EXPECT_EQ(call->outcome(), "BSTR BD" + after + "\r\n/\r\n\r\n");
}

TEST_P(CallsOut, Components) {
  on_fresh_thread([this] {
    FamilyComponent protection(L"QVRServicios.ProteccionTexto", {L"Cifrar", L"Descifrar"}, noting(L"1"));
    const LateObject parameters(L"QVRlib21.QVRcfp");
    parameters.call(L"Asignar", {L"id", 1, L"1", L"1", L"1", L"1", L"1", L"1", L"1", L"1"});
    const auto call = late_call(parameters.get(), L"Guardar", DISPATCH_METHOD, {L"id", work_folder(), L"floating"});
    expect_seen(*call, 20);  // written, and read back
    EXPECT_EQ(call->outcome(), "BOOL true");
    DeleteFileW((work_folder() + L"\\floating.cfp").c_str());
  });
}

TEST_P(CallsOut, TheErrorReportComponentAndTheObjectThatFailed) {
  on_fresh_thread([this] {
    FamilyComponent report(L"QVRServicios.InformeErrores", {L"Informar"}, noting());
    const LateObject runner(L"QVRlib21.QVRScr");
    Witness connection(notes, {});
    const auto call = late_call(runner.get(), L"Ejecutar1Comando", DISPATCH_METHOD,
                                {static_cast<IDispatch*>(&connection), L"select 1", 2});
    expect_seen(*call, 2);
    EXPECT_EQ(call->outcome(), "BOOL false");
    EXPECT_EQ(report.calls().size(), 1u);
    EXPECT_EQ(traced(), (Traces{u"QVRScr.Ejecutar1Comando: 3001 told by another component",
                                u"report_failure: -2147352570 Application-defined or object-defined error"}));
  });
}

// One object is the connection, the command and everything in them.
struct PlayedAdo {
  explicit PlayedAdo(const FamilyComponent::Answer& answer)
      : connection(L"ADODB.Connection", members, answer),
        command(L"ADODB.Command", members, answer),
        parameter(L"ADODB.Parameter", members, answer) {}
  ~PlayedAdo() {
    for (FamilyComponent* const each : {&connection, &command, &parameter}) each->revoke();
  }
  const std::vector<std::wstring> members{L"ConnectionString", L"Open",        L"BeginTrans",       L"CommitTrans",
                                          L"RollbackTrans",    L"Close",       L"ActiveConnection", L"CommandTimeout",
                                          L"CommandText",      L"CommandType", L"Execute",          L"Parameters",
                                          L"Append",           L"Type",        L"Precision",        L"Name",
                                          L"Direction",        L"Value"};
  FamilyComponent connection, command, parameter;
};

// A window of the host's, which gets a message that was waiting when the host called.
class WaitingMessage {
 public:
  explicit WaitingMessage(Notes& notes)
      : window_(CreateWindowW(L"STATIC", L"", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr)) {
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&notes));
    SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&on_message));
    PostMessageW(window_, WM_APP, 0, 0);
  }
  ~WaitingMessage() { DestroyWindow(window_); }
  WaitingMessage(const WaitingMessage&) = delete;
  WaitingMessage& operator=(const WaitingMessage&) = delete;

 private:
  static LRESULT CALLBACK on_message(HWND window, UINT message, WPARAM first, LPARAM second) {
    if (message == WM_APP) reinterpret_cast<Notes*>(GetWindowLongPtrW(window, GWLP_USERDATA))->take();
    return DefWindowProcW(window, message, first, second);
  }
  HWND window_;
};

TEST_P(CallsOut, AdoAndTheMessagesThatWait) {
  {
    PlayedAdo ado(noting());
    const LateObject runner(L"QVRlib21.QVRScr");
    const auto call = late_call(runner.get(), L"EjecutarComandos", DISPATCH_METHOD,
                                {L"app", 2, L"select 1\r\nGO\r\n", L"Provider=x"});
    const std::size_t calls_of_ado = 10;
    Notes of_window{true, {}};
    const WaitingMessage waiting(of_window);
    expect_seen(*call, calls_of_ado);
    EXPECT_EQ(call->outcome(), "BOOL true");
    ASSERT_EQ(of_window.seen.size(), 1u);
    EXPECT_TRUE(of_window.seen[0].has_control_of(GetParam())) << to_string(of_window.seen[0]);
  }
  EXPECT_EQ(test_ado().register_it(), S_OK);
}

TEST_P(CallsOut, AParameterOfAdo) {
  {
    Var collection;  // the parameters of the command, which is itself
    PlayedAdo ado([&](const std::wstring& member, auto&) {
      notes.take();
      LateAnswer answer;
      answer.result = S_OK;
      if (member == L"Parameters") answer.value = collection;
      return answer;
    });
    const LateObject parameters(L"QVRlib21.QVRcfp"), command(L"ADODB.Command");
    collection = Var(command.get());
    parameters.call(L"Asignar", {L"id", 2, L"", L"", L"", L"", L"", L"", L"", L""});
    const auto call = late_call(parameters.get(), L"AgregarParametroADO", DISPATCH_METHOD,
                                {command.get(), L"INT", L"@p", 5});
    expect_seen(*call, 7);
    EXPECT_EQ(ado.connection.calls(),
              (std::vector<std::string>{"Type(I4 3)", "Precision(UI1 10)", "Name(BSTR @p)", "Direction(I4 1)",
                                        "Value(I4 5)", "Parameters()", "Append(DISPATCH object)"}));
  }
  EXPECT_EQ(test_ado().register_it(), S_OK);
}

TEST_P(CallsOut, ObjectsInPlaceOfNumbers) {
  Witness number(notes, L"2.5");
  const LateObject parameters(L"QVRlib21.QVRcfp");
  parameters.call(L"Asignar", {L"id", 2, L"", L"", L"", L"", L"", L"", L"", L""});
  {
    const auto call = late_call(parameters.get(), L"sqlTOP", DISPATCH_METHOD, {static_cast<IDispatch*>(&number)});
    expect_seen(*call, 1);
    EXPECT_EQ(call->outcome(), "BSTR  TOP 2 ");
  }
  EXPECT_EQ(number.references(), 1u);
}

TEST_P(CallsOut, ObjectsInAnArray) {
  Witness object(notes, {});
  const LateObject parameters(L"QVRlib21.QVRcfp");
  parameters.call(L"Asignar", {L"id", 2, L"", L"", L"", L"", L"", L"", L"", L""});
  {
    const Var objects = array_of({Var(static_cast<IDispatch*>(&object)), 0.1});
    const auto call = late_call(parameters.get(), L"SqlINSERT", DISPATCH_METHOD, {L"T", objects});
    expect_seen(*call, 1);
    EXPECT_EQ(call->outcome(), "BSTR INSERT INTO T VALUES (Null,  0.1)");
    EXPECT_EQ(traced(), Traces{u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: Object"});
  }
  EXPECT_EQ(object.references(), 1u);
}

TEST_P(CallsOut, SinksComeAndGo) {
  Witness sink(notes, {});
  const LateObject runner(L"QVRlib21.QVRScr");
  const auto container = runner.as<IConnectionPointContainer>();
  ComPtr<IConnectionPoint> point;
  ASSERT_EQ(container->FindConnectionPoint(__uuidof(__QVRScr), &point), S_OK);
  struct ComesAndGoes final : PreparedCall {
    ComesAndGoes(IConnectionPoint& to, IUnknown& who) : point(to), sink(who) {}
    void run() override {
      DWORD cookie = 0;
      status_ = point.Advise(&sink, &cookie);
      if (status_ == S_OK) status_ = point.Unadvise(cookie);
    }
    IConnectionPoint& point;
    IUnknown& sink;
  } call(*point.Get(), sink);
  expect_seen(call, 3);
  EXPECT_EQ(call.status(), S_OK);
  EXPECT_EQ(sink.references(), 1u);
}

// The box's own message loop runs the host's timers. Windows draws it, under the host's state: where every rounding
// stops the program, its own functions may.
std::vector<HostState> states_with_boxes() {
  constexpr std::uint16_t kRoundingMasked = 0x20;
  std::vector<HostState> states;
  for (const HostState& state : kHostStates) {
    if ((state.x87 & kRoundingMasked) != 0) states.push_back(state);
  }
  return states;
}

class CallsOutOfBoxes : public CallsOut {
 protected:
  static void CALLBACK note(HWND, UINT, UINT_PTR, DWORD) { noted->take(); }
  static Notes* noted;
};
Notes* CallsOutOfBoxes::noted = nullptr;

TEST_P(CallsOutOfBoxes, WhileTheyAreShown) {
  noted = &notes;
  const Person person;
  const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, note);
  const LateObject without_engine(L"QVRlib21.QVRcfp");
  expect_seen(*late_call(without_engine.get(), L"LogicoSQL", DISPATCH_METHOD, {true}), 1);
  KillTimer(nullptr, timer);
  EXPECT_EQ(person.boxes().size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(States, CallsOutOfBoxes, testing::ValuesIn(states_with_boxes()),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace qvr::tests
