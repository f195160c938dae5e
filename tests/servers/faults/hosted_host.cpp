// The library in a host under Windows, over the test ADO.
#include <windows.h>

#include <gtest/gtest.h>

#include "automation/boxes.h"
#include "automation/host.h"
#include "automation/library.h"
#include "automation/sink.h"
#include "servers/faults/run_host.h"

namespace qvr::tests {
namespace {

std::wstring wide(TextView text) { return {text.begin(), text.end()}; }

// Has the test ADO tell of its calls.
class ToldCalls {
 public:
  explicit ToldCalls(const BeforeCall& before) : before_(before) { tell(&ToldCalls::on_call, this); }
  ~ToldCalls() { tell(nullptr, nullptr); }
  ToldCalls(const ToldCalls&) = delete;
  ToldCalls& operator=(const ToldCalls&) = delete;

 private:
  using OnCall = void (*)(const wchar_t* operation, void* context);

  static void on_call(const wchar_t* operation, void* context) {
    const std::wstring_view text(operation);
    static_cast<ToldCalls*>(context)->before_(Text(text.begin(), text.end()));
  }
  static void tell(OnCall on_call, void* context) {
    using TellCalls = void (*)(OnCall, void*);
    const auto tell_calls = reinterpret_cast<TellCalls>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"testado.dll"), "TellCalls")));
    ASSERT_NE(tell_calls, nullptr);
    tell_calls(on_call, context);
  }

  const BeforeCall& before_;
};

class HostedRun final : public RunHost {
 public:
  SeenRun run(TextView commands, TextView ado_string, bool yes, const BeforeCall& before) override {
    SeenRun seen;
    Connected connected(runner_);
    Person person(yes ? IDYES : IDNO);
    const ToldCalls told(before);
    const LateAnswer answer = runner_.call(L"EjecutarComandos", {L"app", 2, wide(commands), wide(ado_string)});
    seen.result = describe(answer.value.raw()) == "BOOL true";
    for (const std::string& event : connected.events()) {
      if (event.starts_with("Terminado")) seen.ends.push_back(event == "Terminado BOOL* true");
    }
    for (const Person::Box& box : person.boxes()) seen.boxes.emplace_back(box.text.begin(), box.text.end());
    return seen;
  }

 private:
  LateObject runner_{L"QVRlib21.QVRScr"};
};

}  // namespace

std::unique_ptr<RunHost> RunHost::make() { return std::make_unique<HostedRun>(); }

Handles open_handles() {
  DWORD handles = 0;
  GetProcessHandleCount(GetCurrentProcess(), &handles);
  return {handles, 0};
}

}  // namespace qvr::tests
