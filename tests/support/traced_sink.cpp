// The traces of test programs that contain the code under test.
#include "base/trace.h"
#include "support/fixed_lines.h"
#include "support/traced.h"
#include "support/traced_source.h"

namespace qvr::tests {
namespace {

FixedLines<char16_t> lines;

}  // namespace

void listen_to_traces(bool on) {
  set_trace_sink(on ? [](TextView line) noexcept { lines.add(line); } : TraceSink());
}

Traces traced() {
  Traces taken = lines.take([](TextView) { return true; });
  for (Text& line : taken) line.resize(std::min(line.size(), line.rfind(u" (")));  // "and more" has no place
  return taken;
}

}  // namespace qvr::tests
