#include "qvrscript/run/assembly.h"

#include <algorithm>

#include "base/failure.h"
#include "base/utf8.h"
#include "qvrscript/check/sql_words.h"
#include "qvrscript/tool_failure.h"
#include "script/command_splitter.h"
#include "session/thread_state.h"

namespace qvr::script_tool {
namespace {

// The commands of a text as offsets, and where the text behind the last begins.
struct Cut {
  struct Piece {
    std::size_t begin, size;
  };
  std::vector<Piece> commands;
  std::size_t rest = 0;
};

Cut cut(TextView text) {
  Cut found;
  CommandSplitter splitter(text);
  while (const auto command = splitter.next()) {
    const auto begin = static_cast<std::size_t>(command->data() - text.data());
    found.commands.push_back({begin, command->size()});
    found.rest = begin + command->size() + TextView(u"\r\nGO").size();
  }
  while (text.substr(found.rest).starts_with(kLineBreak)) found.rest += kLineBreak.size();
  return found;
}

// The scripts one after the other, each with its line end, as loading joins them.
class Source {
 public:
  explicit Source(const std::vector<ReadScript>& scripts) : scripts_(scripts) {
    for (const ReadScript& script : scripts) {
      begins_.push_back(text_.size());
      text_.append(script.text).append(kLineBreak);
    }
  }

  TextView text() const { return text_; }

  // Positions must come in ascending order.
  Place place_of(std::size_t position) {
    while (script_ + 1 < begins_.size() && begins_[script_ + 1] <= position) {
      counted_ = begins_[++script_];
      line_ = 1;
    }
    for (; counted_ < position; ++counted_) line_ += text_[counted_] == u'\n';
    return {scripts_[script_].file, line_};
  }
  std::size_t script() const { return script_; }

 private:
  const std::vector<ReadScript>& scripts_;
  Text text_;
  std::vector<std::size_t> begins_;
  std::size_t script_ = 0, counted_ = 0, line_ = 1;
};

std::size_t first_visible(TextView text, std::size_t from, std::size_t end) {
  const std::size_t found = text.substr(0, end).find_first_not_of(kWhiteSpace, from);
  return found == TextView::npos ? from : found;
}

bool would_be_missed(TextView rest, Engine engine) {
  const Script script(to_utf8(rest), engine, thread_state().platform().files);
  return script_tool::would_be_missed(script, {script.text(), 0});
}

}  // namespace

Text shown(const Place& place) { return join({place.file, u":", decimal(static_cast<std::int64_t>(place.line))}); }

Text beginning(TextView command) {
  constexpr std::size_t kMost = 160;
  Text line;
  for (const char16_t unit : trimmed(command, kWhiteSpace)) {
    const bool white = kWhiteSpace.find(unit) != TextView::npos;
    if (!white) line.push_back(unit);
    if (white && !line.ends_with(u' ')) line.push_back(u' ');
    if (line.size() < kMost) continue;
    if ((line.back() & 0xFC00) == 0xD800) line.pop_back();  // half a surrogate pair
    return line + u"...";
  }
  return line;
}

Assembly::Assembly(Text text, Engine engine, std::vector<ReadScript> scripts)
    : text_(std::move(text)), engine_(engine), scripts_(std::move(scripts)) {
  const Cut own = cut(text_);
  Source source(scripts_);
  Cut origin = cut(source.text());
  const std::vector<ReadScript> itself = {{u"assembled text", text_}};
  Source assembled(itself);
  const bool same = origin.commands.size() == own.commands.size();
  Source& places = same ? source : assembled;
  if (!same) origin = own;
  for (std::size_t i = 0; i < own.commands.size(); ++i) {
    const Cut::Piece& from = origin.commands[i];
    Place place = places.place_of(first_visible(places.text(), from.begin, from.begin + from.size));
    commands_.push_back({TextView(text_).substr(own.commands[i].begin, own.commands[i].size), std::move(place),
                         same ? source.script() : 0});
  }
  const TextView rest = TextView(text_).substr(own.rest);
  if (would_be_missed(rest, engine_)) {
    not_run_ = {places.place_of(first_visible(places.text(), origin.rest, places.text().size())), Text(rest)};
  }
}

Assembly::~Assembly() { wipe(text_); }

Assembly assembled_file(TextView path, Engine engine) {
  auto text = or_default({}, std::optional<Text>(),
                         [&] { return thread_state().script_reader().Leer(u"qvrscript", path); });
  if (!text) throw ToolFailure({path, u" cannot be read"});
  Text run = join({*text, kLineBreak});
  std::vector<ReadScript> scripts;
  scripts.push_back({Text(path), std::move(*text)});
  return {std::move(run), engine, std::move(scripts)};
}

}  // namespace qvr::script_tool
