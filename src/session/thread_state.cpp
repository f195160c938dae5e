#include "session/thread_state.h"

#include <new>

#include "platform/thread_slot.h"

namespace qvr {
namespace {

ThreadState* current() { return static_cast<ThreadState*>(thread_slot::get()); }

void destroy(void* state) noexcept { delete static_cast<ThreadState*>(state); }

template <class Service>
Service& made_once(std::unique_ptr<Service>& service, std::unique_ptr<Service> (*make)(const Platform&),
                   const Platform& platform) {
  if (!service) service = make(platform);
  return *service;
}

}  // namespace

services::TextProtection& ThreadState::text_protection() {
  return made_once(text_protection_, environment_.make_text_protection, platform());
}

services::ErrorReport& ThreadState::error_report() {
  return made_once(error_report_, environment_.make_error_report, platform());
}

services::ScriptReader& ThreadState::script_reader() {
  return made_once(script_reader_, environment_.make_script_reader, platform());
}

// Taken out before they are destroyed: a component may call the library while it is released.
void ThreadState::let_services_go() noexcept {
  const auto text_protection = std::move(text_protection_);
  const auto error_report = std::move(error_report_);
  const auto script_reader = std::move(script_reader_);
}

ThreadState& thread_state() {
  ThreadState* state = current();
  if (state == nullptr) {
    exchange_thread_state(std::make_unique<ThreadState>(environment()));
    state = current();
  }
  return *state;
}

void let_services_go() noexcept {
  if (ThreadState* const state = current()) state->let_services_go();
}

std::unique_ptr<ThreadState> exchange_thread_state(std::unique_ptr<ThreadState> state) {
  ThreadState* const former = current();
  // No TLS call when nothing changes: setting a slot can fail, and a detaching thread mostly has no state.
  if (state.get() != former && !thread_slot::set(state.get(), destroy)) throw std::bad_alloc();
  static_cast<void>(state.release());
  return std::unique_ptr<ThreadState>(former);
}

}  // namespace qvr
