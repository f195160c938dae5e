// A runner whose database calls, events, boxes and reports land in one log.
#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "script/qvrscr.h"
#include "support/test_thread.h"

namespace qvr::tests {

class LoggingEvents final : public ScriptEvents {
 public:
  explicit LoggingEvents(CallLog& log) : log_(log) {}
  void Progreso(const Text& Mensaje) noexcept override;
  void Terminado(bool Exito) noexcept override;

  std::function<void()> on_progress, on_end;

 private:
  CallLog& log_;
};

class ScriptTest : public ::testing::Test {
 protected:
  // Runs with these arguments, which then show what the caller sees of them afterwards.
  bool run(TextView commands);
  Lines taken() { return thread.log.take(); }

  TestThread thread;
  LoggingEvents events{thread.log};
  QVRScr runner{events};
  Text id = u"id";
  Text shown_text;
  Engine motor = Engine::SqlServer;
};

// The lines of one command that succeeds, up to where its execution fails, and before one that fails earlier.
Lines command_lines(const std::string& text);
Lines opening(bool transaction = true);  // to the counting message
Lines closing(bool transaction = true);  // commit, close, release and the good end
Lines rolled_back();                     // roll back, close, release and the bad end

// All lines in order.
Lines together(std::initializer_list<Lines> parts);

// A failure and the line by which it is reported.
FailureDetail refusal();
Lines report_line(const std::string& label, int motor = 2);

}  // namespace qvr::tests
