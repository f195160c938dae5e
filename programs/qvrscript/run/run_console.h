// Output of a run on the console, instead of message boxes.
#pragma once

#include "platform/platform.h"
#include "qvrscript/output/report.h"
#include "script/qvrscr.h"

namespace qvr::script_tool {

// Failures go to standard error; the question whether to go on is answered by the command line.
class ConsoleBoxes final : public MessageBoxes {
 public:
  ConsoleBoxes(const Console& console, bool go_on) : console_(console), go_on_(go_on) {}
  BoxAnswer show(TextView text, BoxButtons buttons) override;

  std::vector<Text> failures;
  std::size_t questions = 0;  // one for each command that failed

 private:
  const Console& console_;
  bool go_on_;
};

// The progress of a run: a bar on a terminal, else a line for each command.
class ConsoleProgress final : public ScriptEvents {
 public:
  ConsoleProgress(const Console& console, bool quiet) : console_(console), quiet_(quiet) {}
  void Progreso(const Text& Mensaje) noexcept override;
  void Terminado(bool Exito) noexcept override;

  // The TextoMostrar of the run.
  static constexpr TextView kCounts = u"commands done: ";
  std::size_t begun = 0;  // commands that the runner has sent

 private:
  void show(TextView counts);

  const Console& console_;
  bool quiet_;
  bool bar_open_ = false;
};

}  // namespace qvr::script_tool
