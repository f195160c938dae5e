#include "script_run.h"

#include <cwchar>
#include <utility>

#include "console.h"
#include "events.h"
#include "setting.h"

namespace gestion {
namespace {

constexpr int kLineEvery = 50, kShort = 10;

class Listener {
 public:
  explicit Listener(Outcome& outcome) : outcome_(outcome) {}

  void hear(const std::wstring& event, const Value& argument) {
    if (event == L"Progreso") progress(argument.text());
    if (event == L"Terminado") end(argument.truth());
  }

 private:
  // The texts that count end in "done/total"; the others are shown as they come.
  void progress(const std::wstring& text) {
    ++outcome_.progress_texts;
    const auto blank = text.rfind(L' ');
    long done = 0, total = 0;
    const bool counts = blank != std::wstring::npos &&
                        std::swscanf(text.c_str() + blank, L" %ld/%ld", &done, &total) == 2;
    if (!counts) return say(L"   " + text);
    outcome_.done = done;
    outcome_.total = total;
    line_.show(text, static_cast<int>(done), total <= kShort || done + 1 == total);
  }

  void end(bool success) {
    line_.finish();
    ++outcome_.ends;
    outcome_.success = success;
    say(success ? L"   Terminado: True" : L"   Terminado: False");
  }

  Outcome& outcome_;
  ProgressLine line_{kLineEvery};
};

}  // namespace

Outcome call_runner(const wchar_t* member, std::vector<Value> arguments) {
  Outcome outcome;
  const Object runner = Object::create(L"QVRlib21.QVRScr");
  Listener listener(outcome);
  const Subscription subscription(runner, [&listener](const std::wstring& event, const Value& argument) {
    listener.hear(event, argument);
  });
  outcome.result = runner.call(member, std::move(arguments));
  expect(outcome.ends == 1, L"The end of the call was told " + std::to_wstring(outcome.ends) + L" times");
  return outcome;
}

Outcome run_script(const std::wstring& commands, const std::wstring& connection_string) {
  const Outcome outcome = call_runner(L"EjecutarComandos", {kIdentification, kJet, commands, connection_string});
  expect(outcome.success == outcome.result.truth(), L"The event of the end and the answer of the call differ");
  return outcome;
}

}  // namespace gestion
