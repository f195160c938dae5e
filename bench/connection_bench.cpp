// What opening a connection file costs beside the derivation of its key, on a thread that has opened none yet and on
// one that has opened it before.

#include <array>
#include <filesystem>

#include "connection/qvrcfp.h"
#include "run.h"
#include "session/thread_state.h"

namespace {

using qvr::Text;

constexpr std::uint32_t kRounds = 100000;  // as the text protection has them

qvr::ConnectionParameters parameters() {
  return {qvr::Engine::SqlServer, u"",        u"SQLOLEDB", u"SRV01", u"Gestion", u"sa", u"clave 1",
          u"mostrador",           u"clave 2", u"Timeout=5"};
}

// The folder of the file that all open; removed at the end.
struct SavedFile {
  SavedFile() {
    std::filesystem::create_directories(folder);
    qvr::QVRcfp writer;
    writer.Asignar(u"app", parameters());
    if (!writer.Guardar(u"app", folder.u16string(), u"bench")) throw std::runtime_error("the file cannot be written");
  }
  ~SavedFile() { std::filesystem::remove_all(folder); }
  std::filesystem::path folder = std::filesystem::temp_directory_path() / "qvrlib21-connection-bench";
};

void open_file(benchmark::State& state, const SavedFile& saved) {
  qvr::QVRcfp reader;
  if (!reader.Crear(u"app", saved.folder.u16string(), u"bench")) state.SkipWithError("the file was refused");
}

void KeyDerivation(benchmark::State& state) {
  qvr::Cryptography& cryptography = qvr::thread_state().platform().cryptography;
  const std::array<std::uint8_t, 5> password{'<', 'a', 'p', 'p', '>'};
  const std::array<std::uint8_t, 26> salt{};
  std::array<std::uint8_t, 64> key{};
  for (auto _ : state) {
    cryptography.pbkdf2_hmac_sha256(password, salt, kRounds, key);
    benchmark::DoNotOptimize(key.data());
  }
}

void FirstCrear(benchmark::State& state) {
  const SavedFile saved;
  for (auto _ : state) {
    const auto earlier = qvr::exchange_thread_state(nullptr);
    open_file(state, saved);
  }
}

void SecondCrear(benchmark::State& state) {
  const SavedFile saved;
  open_file(state, saved);
  for (auto _ : state) open_file(state, saved);
}

}  // namespace

int main(int count, char** arguments) {
  qvr::bench::registered("KeyDerivation", KeyDerivation);
  qvr::bench::registered("FirstCrear", FirstCrear);
  qvr::bench::registered("SecondCrear", SecondCrear);
  qvr::bench::run_all(count, arguments);
}
