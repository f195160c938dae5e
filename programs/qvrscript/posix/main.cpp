#include <unistd.h>

#include <iostream>

#include "base/utf8.h"
#include "qvrscript/program.h"

int main(int count, char** words) {
  using namespace qvr;
  const script_tool::Console console{std::cout, std::cerr, isatty(STDOUT_FILENO) != 0};
  std::vector<Text> texts;
  for (int i = 1; i < count; ++i) {
    auto text = from_utf8(words[i]);
    if (!text) {
      script_tool::complain(console, {u"an argument is no UTF-8"});
      return script_tool::exit_code::kRefused;
    }
    texts.push_back(std::move(*text));
  }
  return script_tool::run_program(texts, console, environment().make_ado);
}
