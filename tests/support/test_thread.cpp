#include "support/test_thread.h"

#include "services/builtin_script_reader.h"
#include "session/global.h"

namespace qvr::tests {
namespace {

thread_local TestThread* current = nullptr;

// The state owns what it is given, the test keeps the recorder: these stand between.
class ReportOf final : public services::ErrorReport {
 public:
  explicit ReportOf(RecordingErrorReport& recorder) : recorder_(recorder) {}
  void Informar(const services::ErrorNotice& notice) override { recorder_.Informar(notice); }

 private:
  RecordingErrorReport& recorder_;
};

class AdoOf final : public services::Ado {
 public:
  explicit AdoOf(RecordingAdo& recorder) : recorder_(recorder) {}
  std::unique_ptr<services::AdoConnection> new_connection() override { return recorder_.new_connection(); }
  std::unique_ptr<services::AdoCommand> new_command() override { return recorder_.new_command(); }
  std::unique_ptr<services::AdoParameter> new_parameter() override { return recorder_.new_parameter(); }

 private:
  RecordingAdo& recorder_;
};

std::unique_ptr<services::TextProtection> protection_of_test(const Platform&) {
  ++current->protections_made;
  return current->make_text_protection();
}

std::unique_ptr<services::ErrorReport> report_of_test(const Platform&) { return current->make_error_report(); }

std::unique_ptr<services::Ado> ado_of_test(const Platform&) { return current->make_ado(); }

std::unique_ptr<services::ScriptReader> reader_of_test(const Platform&) { return current->make_script_reader(); }

std::unique_ptr<ThreadState> state_over(const Platform& platform) {
  return std::make_unique<ThreadState>(
      Environment{platform, protection_of_test, report_of_test, ado_of_test, reader_of_test});
}

}  // namespace

TestThread::TestThread()
    : make_text_protection([] { return std::make_unique<CheapProtection>(); }),
      make_error_report([this] { return std::make_unique<ReportOf>(report); }),
      make_ado([this] { return std::make_unique<AdoOf>(ado); }),
      make_script_reader([this] { return std::make_unique<services::BuiltinScriptReader>(files); }),
      platform_{files, locale, system_platform().cryptography, boxes, system},
      outer_(std::exchange(current, this)),
      former_(exchange_thread_state(state_over(platform_))) {}

TestThread::~TestThread() {
  exchange_thread_state(std::move(former_));
  current = outer_;
}

void TestThread::renew() { exchange_thread_state(state_over(platform_)); }

void TestThread::load_language(TextView number) {
  system.set_default_language(number);
  renew();
  InicializarComun();
}

}  // namespace qvr::tests
