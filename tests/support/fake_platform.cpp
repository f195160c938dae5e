#include "support/fake_platform.h"

#include <gtest/gtest.h>

#include "base/failure.h"
#include "support/faults_paused.h"

namespace qvr::tests {

Text FakeSystem::setting(TextView application, TextView section, TextView key, TextView fallback) {
  ++setting_reads;
  last_fallback = fallback;
  if (setting_fails) throw RuntimeFailure(failure_number::kFile);
  const auto found = settings_.find({Text(application), Text(section), Text(key)});
  return found == settings_.end() ? Text(fallback) : found->second;
}

void FakeSystem::set(TextView application, TextView section, TextView key, TextView value) {
  settings_[{Text(application), Text(section), Text(key)}] = value;
}

std::uint16_t FakeSystem::user_language() {
  ++language_reads;
  if (language_fails) throw RuntimeFailure(failure_number::kInvalidArgument);
  return language;
}

Date FakeSystem::now() {
  ++clock_readings;
  const Date told = moment;
  moment.days += days_per_reading;
  return told;
}

FakeMessageBoxes::~FakeMessageBoxes() { EXPECT_TRUE(answers_.empty()) << answers_.size() << " boxes did not appear"; }

BoxAnswer FakeMessageBoxes::show(TextView text, BoxButtons buttons) {
  const FaultsPaused paused;
  shown.emplace_back(text);
  log_.add(buttons == BoxButtons::YesNo ? "Box Yes/No" : "Box OK", text);
  if (always) return *always;
  if (answers_.empty()) {
    ADD_FAILURE() << "a box that nobody expected: " << to_utf8(text);
    return buttons == BoxButtons::YesNo ? BoxAnswer::No : BoxAnswer::Ok;
  }
  const std::optional<BoxAnswer> next = answers_.front();
  answers_.pop_front();
  if (!next) throw RuntimeFailure(failure_number::kInvalidArgument, u"no box today");
  return *next;
}

void FakeSystem::process_events() {
  const FaultsPaused paused;
  log_.add("Host events");
  if (on_events) on_events();
}

}  // namespace qvr::tests
