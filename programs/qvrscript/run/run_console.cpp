#include "qvrscript/run/run_console.h"

#include <algorithm>

#include "base/failure.h"
#include "base/number_text.h"
#include "base/utf8.h"

namespace qvr::script_tool {
namespace {

constexpr std::size_t kBarWidth = 40;

// A progress bar for "3/10".
std::string bar_of(TextView counts) {
  const double done = number_prefix(counts);
  const double total = number_prefix(counts.substr(counts.find(u'/') + 1));
  const double part = total > 0 ? std::min(done / total, 1.0) : 1.0;
  const auto filled = static_cast<std::size_t>(part * static_cast<double>(kBarWidth));
  return "[" + std::string(filled, '#') + std::string(kBarWidth - filled, '.') + "] " + to_utf8(counts);
}

}  // namespace

BoxAnswer ConsoleBoxes::show(TextView text, BoxButtons buttons) {
  if (buttons == BoxButtons::Ok) {
    failures.emplace_back(text);
    if (console_.terminal) console_.out << std::endl;  // below the progress bar
    console_.err << to_utf8(replace_all(text, kLineBreak, u"\n")) << "\n\n";
    return BoxAnswer::Ok;
  }
  ++questions;
  console_.err << to_utf8(text) << (go_on_ ? " yes (--continue)\n" : " no\n");
  return go_on_ ? BoxAnswer::Yes : BoxAnswer::No;
}

void ConsoleProgress::show(TextView counts) {
  ++begun;
  if (quiet_) return;
  if (console_.terminal) {
    console_.out << '\r' << bar_of(counts) << std::flush;
    bar_open_ = true;
  } else {
    say(console_.out, {kCounts, counts});
  }
}

void ConsoleProgress::Progreso(const Text& Mensaje) noexcept {
  or_default({}, false, [&] {
    if (Mensaje.starts_with(kCounts)) show(TextView(Mensaje).substr(kCounts.size()));
    return true;
  });
}

void ConsoleProgress::Terminado(bool) noexcept {
  or_default({}, false, [&] {
    if (std::exchange(bar_open_, false)) console_.out << '\n';
    return true;
  });
}

}  // namespace qvr::script_tool
