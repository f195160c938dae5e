// What the library keeps between calls, per thread: created on first use, destroyed when the thread detaches, never
// shared between threads.
#pragma once

#include <memory>
#include <optional>

#include "platform/platform.h"
#include "services/ado.h"
#include "services/error_report.h"
#include "services/script_reader.h"
#include "services/text_protection.h"
#include "session/idioma_simple.h"

namespace qvr {

// The platform and the factories of the services. Each program (the DLL, qvrscript, a test) defines `environment()`
// once; services are created on first use, once per thread, but ADO anew for each run.
struct Environment {
  const Platform& platform;
  std::unique_ptr<services::TextProtection> (*make_text_protection)(const Platform&);
  std::unique_ptr<services::ErrorReport> (*make_error_report)(const Platform&);
  std::unique_ptr<services::Ado> (*make_ado)(const Platform&);
  std::unique_ptr<services::ScriptReader> (*make_script_reader)(const Platform&);
};
const Environment& environment();

class ThreadState {
 public:
  explicit ThreadState(const Environment& environment)
      : idioma(environment.platform.system), environment_(environment) {}

  const Platform& platform() const { return environment_.platform; }
  services::TextProtection& text_protection();
  services::ErrorReport& error_report();
  services::ScriptReader& script_reader();
  // For one run or one call, which then sees the components that are registered now.
  std::unique_ptr<services::Ado> new_ado() const { return environment_.make_ado(platform()); }

  // Destroys the services; they are made anew when next needed.
  void let_services_go() noexcept;

  IdiomaSimple idioma;
  TextTable mensajes{kMessageCount, language::kCarried};
  std::optional<double> idioma_omision;  // cached; the setting is read once per thread

 private:
  const Environment environment_;
  std::unique_ptr<services::TextProtection> text_protection_;
  std::unique_ptr<services::ErrorReport> error_report_;
  std::unique_ptr<services::ScriptReader> script_reader_;
};

// This thread's state, created when there is none.
ThreadState& thread_state();

// Lets the services of this thread go, if it has a state.
void let_services_go() noexcept;

// Replaces this thread's state (null removes it) and returns the previous one.
std::unique_ptr<ThreadState> exchange_thread_state(std::unique_ptr<ThreadState> state);

}  // namespace qvr
