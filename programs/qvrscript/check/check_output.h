// What a check writes, by format.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "qvrscript/check/finding.h"
#include "qvrscript/command_line/requests.h"
#include "qvrscript/output/console.h"

namespace qvr::script_tool {

// By severity, and of those that are silenced.
struct Counts {
  std::array<std::size_t, 3> by_severity{};
  std::size_t silenced = 0;

  std::size_t& of(Severity severity) { return by_severity[static_cast<std::size_t>(severity)]; }
  std::size_t of(Severity severity) const { return by_severity[static_cast<std::size_t>(severity)]; }
  std::size_t all() const { return by_severity[0] + by_severity[1] + by_severity[2] + silenced; }
};

struct CheckTotals {
  std::size_t files = 0;
  Counts found, omitted;  // those that are omitted are among those that are found
  std::vector<Text> unreadable;
  std::vector<Text> empty;            // folders without scripts
  std::vector<Text> problems;         // with the lock file
  std::optional<std::size_t> locked;  // how many scripts the lock file has got; nothing where it was not to be changed
  int exit_code = exit_code::kDone;
};

// "error", "warning" or "note".
std::string_view severity_word(Severity severity);

class CheckOutput {
 public:
  virtual ~CheckOutput() = default;
  // One after the other, those of a file together.
  virtual void finding(TextView file, const Finding& finding, Severity severity) = 0;
  virtual void silenced(TextView file, const Finding& finding, Severity severity) = 0;
  virtual void end(const CheckTotals& totals) = 0;
};

// `quiet` leaves out the totals of the text.
std::unique_ptr<CheckOutput> make_check_output(Format format, bool quiet, Console& console);
std::unique_ptr<CheckOutput> make_sarif_output(Console& console);

// How many findings of which severities are not listed.
Text omitted_text(const Counts& omitted);

}  // namespace qvr::script_tool
