// Stand-ins for the system: they count, record and answer what the test tells them to.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <tuple>
#include <vector>

#include "platform/platform.h"
#include "support/call_log.h"

namespace qvr::tests {

// Only the boxes that a test has answered may appear, and each of them must.
class FakeMessageBoxes final : public MessageBoxes {
 public:
  explicit FakeMessageBoxes(CallLog& log) : log_(log) {}
  ~FakeMessageBoxes();
  FakeMessageBoxes(const FakeMessageBoxes&) = delete;
  FakeMessageBoxes& operator=(const FakeMessageBoxes&) = delete;

  BoxAnswer show(TextView text, BoxButtons buttons) override;

  void answer(BoxAnswer next) { answers_.push_back(next); }
  void fail_next() { answers_.push_back(std::nullopt); }

  std::vector<Text> shown;
  std::optional<BoxAnswer> always;  // every box may appear and gets this answer

 private:
  CallLog& log_;
  std::deque<std::optional<BoxAnswer>> answers_;
};

class FakeSystem final : public System {
 public:
  explicit FakeSystem(CallLog& log) : log_(log) {}
  Text setting(TextView application, TextView section, TextView key, TextView fallback) override;
  std::uint16_t user_language() override;
  Date now() override;
  void process_events() override;
  Text module_path() override { return u"C:\\Library\\QVRlib21.dll"; }

  void set(TextView application, TextView section, TextView key, TextView value);
  void set_default_language(TextView value) { set(u"QVR", u"Idioma", u"IdiomaOmision", value); }

  int setting_reads = 0;
  Text last_fallback;
  bool setting_fails = false;

  std::uint16_t language = 0x0C0A;
  int language_reads = 0;
  bool language_fails = false;

  Date moment{40548.5};         // noon of 5 January 2011
  double days_per_reading = 0;  // a clock that goes on while it is looked at
  int clock_readings = 0;

  std::function<void()> on_events;

 private:
  std::map<std::tuple<Text, Text, Text>, Text> settings_;
  CallLog& log_;
};

}  // namespace qvr::tests
