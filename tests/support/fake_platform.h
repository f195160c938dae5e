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

class FakeSettings final : public Settings {
 public:
  Text read(TextView application, TextView section, TextView key, TextView fallback) override;

  void set(TextView application, TextView section, TextView key, TextView value);
  void set_default_language(TextView value) { set(u"QVR", u"Idioma", u"IdiomaOmision", value); }

  int reads = 0;
  Text last_fallback;
  bool fails = false;

 private:
  std::map<std::tuple<Text, Text, Text>, Text> values_;
};

class FakeUserLanguage final : public UserLanguage {
 public:
  std::uint16_t default_identifier() override;

  std::uint16_t identifier = 0x0C0A;
  int calls = 0;
  bool fails = false;
};

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

class FakeHostEvents final : public HostEvents {
 public:
  explicit FakeHostEvents(CallLog& log) : log_(log) {}
  void process_pending() override;

  std::function<void()> on_process;

 private:
  CallLog& log_;
};

class FakeClock final : public Clock {
 public:
  Date now() override { return moment; }
  Date moment{40548.5};  // noon of 5 January 2011
};

class FakeModule final : public OwnModule {
 public:
  Text path() override { return file; }
  Text file = u"C:\\Library\\QVRlib21.dll";
};

}  // namespace qvr::tests
