// What a run shows on a console in place of boxes and windows.
#pragma once

#include "platform/platform.h"
#include "qvrscript/report.h"
#include "script/qvrscr.h"

namespace qvr::script_tool {

// Failures go to the error output; whether to go on has been answered on the command line.
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

// The progress of a run: a bar that is drawn over and over where somebody watches, else a line for each command.
class ConsoleProgress final : public ScriptEvents {
 public:
  ConsoleProgress(const Console& console, bool quiet) : console_(console), quiet_(quiet) {}
  void Progreso(const Text& Mensaje) noexcept override;
  void Terminado(bool Exito) noexcept override;

  // What the runner is to write in front of its counts.
  static constexpr TextView kCounts = u"commands done: ";
  std::size_t begun = 0;  // commands that the runner has sent

 private:
  void show(TextView counts);

  const Console& console_;
  bool quiet_;
  bool bar_open_ = false;
};

}  // namespace qvr::script_tool
