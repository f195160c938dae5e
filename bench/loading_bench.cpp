// What loading and preparing scripts costs beside one copy of their text for each pass over it, for texts of 1, 10 and
// 100 million characters. "peak" is the most memory that it has at one time, beside that of the finished text: 1 is two
// bytes for each of its units, which the answer itself takes.

#include <filesystem>
#include <fstream>

#include "base/utf8.h"
#include "run.h"
#include "script/qvrscr.h"
#include "script/script_preparation.h"
#include "support/peak_memory.h"

namespace {

using qvr::Text;
using qvr::TextView;

constexpr int kPasses = 10;  // of SQL Server: five of the encryption, five words

class NoEvents final : public qvr::ScriptEvents {
 public:
  void Progreso(const Text&) noexcept override {}
  void Terminado(bool) noexcept override {}
};

const qvr::ScriptAccounts kAccounts{u"Gestion", u"adm", u"clave1", u"cli", u"clave2"};

// A procedure with all that is replaced, and a page of plain statements behind it.
Text scripts(std::int64_t millions) {
  Text page =
      u"CREATE PROCEDURE Alta\r\nAS\r\nUSE [NombreBD]\r\nGRANT ALL TO [UsuarioQVRAdm], [UsuarioQVRCli]\r\nGO\r\n";
  while (page.size() < 1000) page += u"INSERT INTO Articulos VALUES ( 1, 'Tornillo de cabeza plana', 12.5)\r\nGO\r\n";
  Text text;
  while (text.size() < static_cast<std::size_t>(millions) * 1000000) text += page;
  return text;
}

void CopyForEachPass(benchmark::State& state) {
  const Text text = scripts(state.range(0));
  for (auto _ : state) {
    for (int pass = 0; pass < kPasses; ++pass) {
      Text copy = text;
      benchmark::DoNotOptimize(copy.data());
    }
  }
}

void CargarDefinicion(benchmark::State& state) {
  const std::filesystem::path folder = std::filesystem::temp_directory_path() / "qvrlib21-loading-bench";
  std::filesystem::create_directories(folder);
  std::ofstream(folder / "GestionSQL1.cfc", std::ios::binary) << qvr::to_utf8(scripts(state.range(0)));
  NoEvents events;
  qvr::QVRScr runner(events);
  double peak = 0;
  for (auto _ : state) {
    const qvr::tests::PeakMemory memory;
    const Text text = runner.CargarDefinicion(u"bench", qvr::Engine::SqlServer, folder.u16string(), u"Gestion",
                                              kAccounts, true);
    if (text.empty()) state.SkipWithError("nothing was loaded");
    peak = static_cast<double>(memory.bytes()) / static_cast<double>(text.size() * sizeof(char16_t));
  }
  state.counters["peak"] = peak;
  std::filesystem::remove_all(folder);
}

}  // namespace

int main(int count, char** arguments) {
  qvr::bench::registered("CopyForEachPass", CopyForEachPass, {1, 10, 100});
  qvr::bench::registered("CargarDefinicion", CargarDefinicion, {1, 10, 100});
  qvr::bench::run_all(count, arguments);
}
