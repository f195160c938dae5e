#include "qvrscript/check/script.h"

#include <algorithm>

#include "base/failure.h"
#include "qvrscript/engines.h"
#include "script/command_splitter.h"
#include "services/script_text.h"

namespace qvr::script_tool {
namespace {

Text one_unit_each(std::string_view bytes) {
  Text text;
  for (const char byte : bytes) text.push_back(static_cast<unsigned char>(byte));
  return text;
}

}  // namespace

Script::Script(std::string bytes, Engine engine, Files& files) : bytes_(std::move(bytes)), engine_(engine) {
  try {
    stored_ = services::decoded_script(bytes_, files);
  } catch (const RuntimeFailure&) {
    readable_ = false;
    stored_ = one_unit_each(bytes_);
  }
  text_ = services::with_whole_line_breaks(stored_).append(kLineBreak);
  regions_ = regions_of(text_, engine_);
  find_lines();
  find_commands();
}

bool Script::has_text() const {
  const bool other_page = services::encoding_of(bytes_) == services::ScriptEncoding::SystemPage;
  return readable_ || (other_page && bytes_.find('\0') == std::string::npos);
}

bool Script::is_sql_server() const { return engine_ == Engine::SqlServer || engine_ == Engine::None; }

void Script::find_lines() {
  for (std::size_t start = 0; start < text_.size();) {
    line_starts_.push_back(start);
    start = text_.find(kLineBreak, start) + kLineBreak.size();
  }
}

void Script::find_commands() {
  CommandSplitter splitter(text_);
  std::size_t behind = 0;
  while (const auto command = splitter.next()) {
    const auto begin = static_cast<std::size_t>(command->data() - text_.data());
    commands_.push_back({*command, begin});
    behind = begin + command->size() + TextView(u"\r\nGO").size();
  }
  while (TextView(text_).substr(behind).starts_with(kLineBreak)) behind += kLineBreak.size();
  rest_ = {TextView(text_).substr(behind), behind};
}

std::size_t Script::line_of(std::size_t position) const {
  const auto behind = std::ranges::upper_bound(line_starts_, position);
  return static_cast<std::size_t>(behind - line_starts_.begin());
}

TextView Script::line(std::size_t number) const {
  const std::size_t start = line_start(number);
  return TextView(text_).substr(start, text_.find(kLineBreak, start) - start);
}

}  // namespace qvr::script_tool
