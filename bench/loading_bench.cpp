// What loading and preparing scripts of 10 million characters costs, beside one copy of their text for each pass over
// it, which is the least that each pass does.

#include <filesystem>
#include <fstream>

#include "base/utf8.h"
#include "run.h"
#include "script/qvrscr.h"
#include "script/script_preparation.h"

namespace {

using qvr::Text;
using qvr::TextView;

constexpr std::size_t kCharacters = 10000000;
constexpr int kPasses = 10;  // of SQL Server: five of the encryption, five words

class NoEvents final : public qvr::ScriptEvents {
 public:
  void Progreso(const Text&) noexcept override {}
  void Terminado(bool) noexcept override {}
};

const qvr::ScriptAccounts kAccounts{u"Gestion", u"adm", u"clave1", u"cli", u"clave2"};

// A procedure with all that is replaced, and a page of plain statements behind it.
Text scripts() {
  Text page =
      u"CREATE PROCEDURE Alta\r\nAS\r\nUSE [NombreBD]\r\nGRANT ALL TO [UsuarioQVRAdm], [UsuarioQVRCli]\r\nGO\r\n";
  while (page.size() < 1000) page += u"INSERT INTO Articulos VALUES ( 1, 'Tornillo de cabeza plana', 12.5)\r\nGO\r\n";
  Text text;
  while (text.size() < kCharacters) text += page;
  return text;
}

void by_hand(benchmark::State& state) {
  const Text text = scripts();
  for (auto _ : state) {
    for (int pass = 0; pass < kPasses; ++pass) {
      Text copy = text;
      benchmark::DoNotOptimize(copy.data());
    }
  }
}

void library(benchmark::State& state) {
  const std::filesystem::path folder = std::filesystem::temp_directory_path() / "qvrlib21-loading-bench";
  std::filesystem::create_directories(folder);
  std::ofstream(folder / "GestionSQL1.cfc", std::ios::binary) << qvr::to_utf8(scripts());
  NoEvents events;
  qvr::QVRScr runner(events);
  for (auto _ : state) {
    const Text text = runner.CargarDefinicion(u"bench", qvr::Engine::SqlServer, folder.u16string(), u"Gestion",
                                              kAccounts, true);
    state.PauseTiming();
    qvr::bench::require(text.ends_with(u"\r\nGO\r\n\r\n"), "not all was loaded");
    qvr::bench::require(text.find(u"[NombreBD]") == Text::npos, "not all was replaced");
    state.ResumeTiming();
  }
  std::filesystem::remove_all(folder);
}

}  // namespace

int main(int count, char** arguments) { return qvr::bench::beside("Loading", library, by_hand, count, arguments); }
