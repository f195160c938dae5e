#include "qvrscript/doctor/report.h"

#include <algorithm>

#include "base/date_text.h"
#include "base/utf8.h"
#include "qvrscript/tool_failure.h"
#include "session/thread_state.h"

namespace qvr::script_tool {
namespace {

Text padded_to(TextView text, std::size_t width) {
  Text padded(text);
  if (padded.size() < width) padded.resize(width, u' ');
  return padded;
}

Text subject_text(const Diagnosis& each) { return Text(each.subject.begin(), each.subject.end()); }

std::size_t errors_in(const std::vector<Diagnosis>& found, const TrialResult& tried) {
  const auto is_error = [](const TriedStep& each) { return each.diagnosis.level == Level::Error; };
  return static_cast<std::size_t>(std::ranges::count(found, Level::Error, &Diagnosis::level) +
                                  std::ranges::count_if(tried.steps, is_error));
}

std::vector<Text> report_lines(const std::vector<Diagnosis>& found, const TrialResult& tried) {
  const Date now = thread_state().platform().system.now();
  std::vector<Text> lines = {join({u"qvrscript doctor, ", formatted_date(now, u"yyyy-mm-dd hh:nn:ss")})};
  for (const Diagnosis& each : found) std::ranges::copy(lines_of(each), std::back_inserter(lines));
  for (const TriedStep& each : tried.steps) {
    std::vector<Text> told = lines_of(each.diagnosis);
    told.front() += join({u" (", decimal(static_cast<std::int64_t>(each.time.count())), u" ms)"});
    std::ranges::move(told, std::back_inserter(lines));
  }
  lines.push_back(tried.interrupted ? Text(u"interrupted") : count_of_errors(errors_in(found, tried)));
  return lines;
}

}  // namespace

TextView level_word(Level level) {
  switch (level) {
    case Level::Ok: return u"ok";
    case Level::Note: return u"note";
    case Level::Error: break;
  }
  return u"error";
}

std::vector<Text> lines_of(const Diagnosis& each) {
  constexpr std::size_t kLevelWidth = 7, kSubjectWidth = 15;
  std::vector<Text> lines = {join(
      {padded_to(level_word(each.level), kLevelWidth), padded_to(subject_text(each), kSubjectWidth), each.message})};
  if (!each.advice.empty()) lines.push_back(join({Text(kLevelWidth + kSubjectWidth, u' '), u"-> ", each.advice}));
  return lines;
}

Text count_of_errors(std::size_t errors) {
  const Text count = errors == 0 ? Text(u"no") : decimal(static_cast<std::int64_t>(errors));
  return join({count, errors == 1 ? u" error" : u" errors"});
}

void write_report(TextView path, const std::vector<Diagnosis>& found, const TrialResult& tried, Console& console) {
  std::string bytes;
  for (const Text& line : report_lines(found, tried)) {
    bytes += to_utf8(printable(console.secrets.left_out(line))) + "\r\n";
  }
  // The platform refuses devices and whatever else is no file on a disk.
  const bool written = or_default({}, false, [&] {
    const auto file = thread_state().platform().files.create(path);
    file->write(bytes);
    file->close();
    return true;
  });
  if (!written) throw ToolFailure({path, u" cannot be written"});
}

}  // namespace qvr::script_tool
