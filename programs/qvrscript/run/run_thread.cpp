#include "qvrscript/run/run_thread.h"

namespace qvr::script_tool {
namespace {

// The factories of an environment are plain functions.
RunHooks hooks;

class Report final : public services::ErrorReport {
 public:
  void Informar(const services::ErrorNotice& notice) override {
    if (hooks.report) hooks.report(notice);
  }
};

class Reader final : public services::ScriptReader {
 public:
  explicit Reader(const Platform& platform) : reader_(environment().make_script_reader(platform)) {}

  std::optional<Text> Leer(TextView ID, TextView Ruta) override {
    std::optional<Text> text;
    try {
      text = reader_->Leer(ID, Ruta);
    } catch (const std::exception&) {
      if (hooks.read) hooks.read(Ruta, std::nullopt);
      throw;
    }
    if (hooks.read) hooks.read(Ruta, text);
    return text;
  }

 private:
  std::unique_ptr<services::ScriptReader> reader_;
};

Environment environment_of(const Platform& platform) {
  return {platform, environment().make_text_protection,
          [](const Platform&) -> std::unique_ptr<services::ErrorReport> { return std::make_unique<Report>(); },
          [](const Platform& own) { return hooks.make_ado ? hooks.make_ado() : environment().make_ado(own); },
          [](const Platform& own) -> std::unique_ptr<services::ScriptReader> { return std::make_unique<Reader>(own); }};
}

}  // namespace

class RunThread::Boxes final : public MessageBoxes {
 public:
  BoxAnswer show(TextView, BoxButtons buttons) override {
    if (buttons == BoxButtons::Ok) return BoxAnswer::Ok;
    return hooks.go_on && hooks.go_on() ? BoxAnswer::Yes : BoxAnswer::No;
  }
};

RunThread::RunThread(RunHooks given)
    : boxes_(std::make_unique<Boxes>()),
      platform_{thread_state().platform().files, thread_state().platform().locale,
                thread_state().platform().cryptography, *boxes_, thread_state().platform().system} {
  hooks = std::move(given);
  former_ = exchange_thread_state(std::make_unique<ThreadState>(environment_of(platform_)));
}

RunThread::~RunThread() {
  exchange_thread_state(std::move(former_));
  hooks = {};
}

}  // namespace qvr::script_tool
