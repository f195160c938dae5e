#include "support/fake_platform.h"

#include <gtest/gtest.h>

#include "base/failure.h"
#include "support/faults_paused.h"

namespace qvr::tests {

Text FakeSettings::read(TextView application, TextView section, TextView key, TextView fallback) {
  ++reads;
  last_fallback = fallback;
  if (fails) throw RuntimeFailure(failure_number::kFile);
  const auto found = values_.find({Text(application), Text(section), Text(key)});
  return found == values_.end() ? Text(fallback) : found->second;
}

void FakeSettings::set(TextView application, TextView section, TextView key, TextView value) {
  values_[{Text(application), Text(section), Text(key)}] = value;
}

std::uint16_t FakeUserLanguage::default_identifier() {
  ++calls;
  if (fails) throw RuntimeFailure(failure_number::kInvalidArgument);
  return identifier;
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

void FakeHostEvents::process_pending() {
  const FaultsPaused paused;
  log_.add("Host events");
  if (on_process) on_process();
}

}  // namespace qvr::tests
