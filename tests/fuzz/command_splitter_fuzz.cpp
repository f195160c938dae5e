// The splitter compared with a plain search for the separator.
#include "script/command_splitter.h"

#include "fuzz/fuzz_input.h"

namespace qvr::tests {
namespace {

bool go_at(TextView text, std::size_t at) {
  const TextView found = text.substr(at, 6);
  return found == u"\r\nGO\r\n" || found == u"\r\ngo\r\n" || found == u"\r\nGo\r\n" || found == u"\r\ngO\r\n";
}

struct Plainly {
  std::vector<Text> commands;
  std::int32_t separators = 0;
};

Plainly split_plainly(TextView text) {
  Plainly split;
  for (std::size_t i = 0; i < text.size(); ++i) split.separators += go_at(text, i);
  Text command;
  for (std::size_t i = 0; i < text.size();) {
    if (!go_at(text, i)) {
      command += text[i++];
      continue;
    }
    split.commands.push_back(std::move(command));
    command.clear();
    i += 4;
    while (text.substr(i, 2) == u"\r\n") i += 2;
  }
  return split;
}

}  // namespace

void fuzz(FuzzInput& input) {
  // A line end is typed as one.
  const Text text = replace_all(replace_all(FuzzInput(input).text(), u"\r", u""), u"\n", u"\r\n");
  for (const Text& each : {text, input.text()}) {
    const Plainly expected = split_plainly(each);
    require(count_separators(each) == expected.separators, "the count is that of the plain search", {each});
    CommandSplitter splitter(each);
    std::size_t number = 0;
    while (const auto command = splitter.next()) {
      require(number < expected.commands.size(), "no command too many", {each, *command});
      require(*command == expected.commands[number], "the command is that of the plain search", {each, *command});
      ++number;
    }
    require(number == expected.commands.size(), "no command is missing", {each});
    for (std::size_t from = 0; from <= each.size(); from += 1 + each.size() / 7) {
      std::size_t at = from;
      while (at < each.size() && !go_at(each, at)) ++at;
      require(find_separator(each, from) == (at < each.size() ? at : TextView::npos), "the next separator", {each});
    }
  }
}

}  // namespace qvr::tests
