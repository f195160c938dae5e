// A fresh state for this thread over a platform and services of the test's own; the former one comes back at the end.
#pragma once

#include <functional>
#include <memory>

#include "session/thread_state.h"
#include "support/fake_files.h"
#include "support/fake_locale.h"
#include "support/fake_platform.h"
#include "support/recording_ado.h"
#include "support/recording_error_report.h"
#include "support/text_protections.h"

namespace qvr::tests {

class TestThread {
 public:
  TestThread();
  ~TestThread();
  TestThread(const TestThread&) = delete;
  TestThread& operator=(const TestThread&) = delete;

  // Begins again with a state that nothing was loaded into, over the same platform.
  void renew();
  // A thread with this language as its default, all loaded.
  void load_language(TextView number);

  CallLog log;
  FakeFiles files;
  FakeMessageBoxes boxes{log};
  FakeSystem system{log};
  FakeLocale locale;
  RecordingAdo ado{log};
  RecordingErrorReport report{log};

  // How the services are made, once per state, and ADO; a test may put others here before the first use.
  std::function<std::unique_ptr<services::TextProtection>()> make_text_protection;
  std::function<std::unique_ptr<services::ErrorReport>()> make_error_report;
  std::function<std::unique_ptr<services::Ado>()> make_ado;
  std::function<std::unique_ptr<services::ScriptReader>()> make_script_reader;
  int protections_made = 0;

 private:
  Platform platform_;
  TestThread* outer_;
  std::unique_ptr<ThreadState> former_;
};

}  // namespace qvr::tests
