#include "servers/server.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <system_error>
#include <thread>

#include "base/utf8.h"

namespace qvr::tests {
namespace {

constexpr auto kAnsweredWithin = std::chrono::seconds(90);  // more than the server itself is given

std::string setting(const char* name) {
  const char* const value = std::getenv(name);
  if (value == nullptr) throw std::runtime_error(std::string(name) + " is not set: run this with with_server.py");
  return value;
}

Text text_setting(const char* name) { return from_utf8(setting(name)).value(); }

std::filesystem::path control_folder() {
#ifdef _WIN32
  return "Z:" + setting("QVR_TESTS_CONTROL");
#else
  return setting("QVR_TESTS_CONTROL");
#endif
}

}  // namespace

const DatabaseServer& DatabaseServer::here() {
  static const DatabaseServer only;
  return only;
}

DatabaseServer::DatabaseServer()
    : kind_(setting("QVR_TESTS_SERVER") == "mariadb" ? ServerKind::MariaDb : ServerKind::PostgreSql),
      user_(text_setting("QVR_TESTS_CONNECTION")),
      administrator_(text_setting("QVR_TESTS_ADMIN")),
      cable_(text_setting("QVR_TESTS_CABLE")) {}

Text DatabaseServer::for_ado(const Text& odbc_string) {
  return join({u"Provider=MSDASQL;Extended Properties=\"", odbc_string, u"\""});
}

void DatabaseServer::ask(const char* what) const {
  const std::filesystem::path folder = control_folder(), unfinished = folder / "request.unfinished",
                              answer = folder / "answer";
  std::ofstream(unfinished) << what;
  // Wine calls a renaming failed, whose result the other side takes away at once.
  std::error_code failed;
  std::filesystem::rename(unfinished, folder / "request", failed);
  if (failed && std::filesystem::exists(unfinished)) throw std::runtime_error(failed.message());
  const auto until = std::chrono::steady_clock::now() + kAnsweredWithin;
  while (!std::filesystem::exists(answer)) {
    if (std::chrono::steady_clock::now() > until) throw std::runtime_error(std::string(what) + " is not answered");
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  std::string told;
  {
    std::ifstream file(answer);
    told.assign(std::istreambuf_iterator<char>(file), {});
  }
  std::filesystem::remove(answer);
  if (!told.empty()) throw std::runtime_error(told);
}

}  // namespace qvr::tests
