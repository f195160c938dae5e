#include "qvrscript/run/list.h"

#include <algorithm>

#include "base/failure.h"
#include "qvrscript/engines.h"
#include "qvrscript/output/json.h"
#include "qvrscript/paths.h"
#include "script/command_splitter.h"
#include "script/script_files.h"
#include "session/thread_state.h"

namespace qvr::script_tool {
namespace {

struct ListedFile {
  Text name;
  std::size_t commands = 0;  // that begin in it
  bool readable = true;
};

struct Listing {
  Engine engine;
  std::vector<ListedFile> files;
  std::size_t commands = 0;
  bool complete() const { return std::ranges::all_of(files, &ListedFile::readable); }
};

// The joined text of all files, and where each begins.
struct Joined {
  Text text;
  std::vector<std::size_t> begins;
};

Text text_of(TextView folder, TextView name) {
  const auto read = or_default({}, std::optional<Text>(), [&] {
    return thread_state().script_reader().Leer(u"qvrscript", join({folder, u"\\", name}));
  });
  return read.value_or(Text());
}

Joined joined_files(TextView folder, Listing& listing) {
  Joined joined;
  for (ListedFile& file : listing.files) {
    joined.begins.push_back(joined.text.size());
    const Text text = text_of(folder, file.name);
    file.readable = !text.empty();  // loading fails on an empty file, as on an unreadable one
    joined.text.append(text).append(kLineBreak);
  }
  return joined;
}

void count_commands(TextView folder, Listing& listing) {
  const Joined joined = joined_files(folder, listing);
  CommandSplitter commands(joined.text);
  while (const auto command = commands.next()) {
    const auto begin = static_cast<std::size_t>(command->data() - joined.text.data());
    const auto behind = std::ranges::upper_bound(joined.begins, begin);
    ++listing.files[static_cast<std::size_t>(behind - joined.begins.begin()) - 1].commands;
    ++listing.commands;
  }
}

std::vector<Text> names_to_load(const Arguments& arguments, TextView folder, Engine engine) {
  const Text& name = arguments.operands[1];
  if (!arguments.from) return definition_files(folder, name, engine);
  if (!has_update_from(folder, name, *arguments.from, engine)) return {};
  return update_files(folder, name, *arguments.from, engine);
}

std::vector<Listing> listings(const Arguments& arguments, TextView folder) {
  std::vector<Listing> all;
  for (Engine engine : kEngines) {
    if (arguments.engine && *arguments.engine != engine) continue;
    Listing listing{engine, {}, 0};
    for (Text& name : names_to_load(arguments, folder, engine)) listing.files.push_back({std::move(name), 0, true});
    if (listing.files.empty()) continue;
    count_commands(folder, listing);
    all.push_back(std::move(listing));
  }
  return all;
}

Text kind_of(const Arguments& arguments) {
  return arguments.from ? join({u"update from ", decimal(*arguments.from)}) : Text(u"definition");
}

Text counted(std::size_t count, TextView thing) {
  return join({json_number(count), u" ", thing, count == 1 ? u"" : u"s"});
}

void write_lines(const Arguments& arguments, const std::vector<Listing>& all, const Console& console) {
  for (const Listing& listing : all) {
    say(console.out, {arguments.operands[1], u", ", kind_of(arguments), u", ", engine_title(listing.engine), u": ",
                      counted(listing.files.size(), u"file"), u", ", counted(listing.commands, u"command")});
    for (const ListedFile& file : listing.files) {
      say(console.out, {u"  ", file.name, u": ",
                        file.readable ? counted(file.commands, u"command") : Text(u"empty or cannot be read")});
    }
    if (!listing.complete()) say(console.out, {u"  nothing is run: every file must be readable and hold something"});
  }
}

Text json_of(const ListedFile& file) {
  return json_object({json_member(u"name", json_text(file.name)), json_member(u"commands", json_number(file.commands)),
                      json_member(u"readable", json_truth(file.readable))});
}

Text json_of(const Listing& listing) {
  std::vector<Text> files;
  for (const ListedFile& file : listing.files) files.push_back(json_of(file));
  return json_object({json_member(u"engine", json_text(engine_word(listing.engine))),
                      json_member(u"runs", json_truth(listing.complete())),
                      json_member(u"commands", json_number(listing.commands)),
                      json_member(u"files", json_array(files))});
}

void write_json(const Arguments& arguments, const std::vector<Listing>& all, const Console& console) {
  std::vector<Text> engines;
  for (const Listing& listing : all) engines.push_back(json_of(listing));
  say(console.out,
      {json_object({json_member(u"command", json_text(u"list")), json_member(u"name", json_text(arguments.operands[1])),
                    json_member(u"from", arguments.from ? decimal(*arguments.from) : Text(u"null")),
                    json_member(u"engines", json_array(engines))})});
}

}  // namespace

int list(const Arguments& arguments, const Console& console) {
  const TextView folder = without_last_separator(arguments.operands[0]);
  if (!names_in(folder)) {
    complain(console, {folder, u" is no folder that can be read"});
    return exit_code::kRefused;
  }
  const std::vector<Listing> all = listings(arguments, folder);
  (arguments.json ? write_json : write_lines)(arguments, all, console);
  if (all.empty()) {
    complain(console, {u"no script of ", arguments.operands[1], u": nothing would be run as ", kind_of(arguments)});
  }
  return !all.empty() && std::ranges::all_of(all, &Listing::complete) ? exit_code::kDone : exit_code::kFailed;
}

}  // namespace qvr::script_tool
