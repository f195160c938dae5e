// What walking over a script's commands costs beside a bare search for the separator in the same memory, for texts of
// 1, 10 and 100 megabytes.
#include "run.h"
#include "script/command_splitter.h"

namespace {

using qvr::Text;
using qvr::TextView;

constexpr TextView kSeparator = u"\r\nGO\r\n";

Text script(std::int64_t megabytes) {
  const std::size_t size = static_cast<std::size_t>(megabytes) * 1000000 / sizeof(char16_t);
  Text text;
  text.reserve(size + 100);
  while (text.size() < size) text += u"INSERT INTO Articulos VALUES ( 1, 'Tornillo de cabeza plana', 12.5)\r\nGO\r\n";
  return text;
}

void BareSearch(benchmark::State& state) {
  const Text text = script(state.range(0));
  for (auto _ : state) {
    std::size_t found = 0;
    for (std::size_t at = text.find(kSeparator); at != Text::npos; at = text.find(kSeparator, at + kSeparator.size()))
      ++found;
    benchmark::DoNotOptimize(found);
  }
}

void Walk(benchmark::State& state) {
  const Text text = script(state.range(0));
  for (auto _ : state) {
    qvr::CommandSplitter commands(text);
    std::size_t characters = 0;
    while (const auto command = commands.next()) characters += command->size();
    benchmark::DoNotOptimize(characters);
  }
}

}  // namespace

int main(int count, char** arguments) {
  qvr::bench::registered("BareSearch", BareSearch, {1, 10, 100});
  qvr::bench::registered("Walk", Walk, {1, 10, 100});
  qvr::bench::run_all(count, arguments);
}
