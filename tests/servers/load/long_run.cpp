#include "servers/load/long_run.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace qvr::tests {
namespace {

constexpr std::size_t kMoments = 10;
constexpr std::size_t kGroupsPerSecond = 90;
// What the system's own lists keep for later comes and goes; that of a few hundred commands would be more.
constexpr std::size_t kNoGrowth = 16384;  // bytes

std::ostream& operator<<(std::ostream& out, const Held& held) {
  return out << held.bytes << " bytes, " << held.handles << " handles, " << held.threads << " threads";
}

}  // namespace

std::size_t groups_of_long_run() {
  constexpr std::size_t kFew = 250;
  const char* const seconds = std::getenv("QVR_LONG_RUN_SECONDS");
  return seconds == nullptr ? kFew : std::max<std::size_t>(kFew, std::stoul(seconds) * kGroupsPerSecond);
}

Text long_run_table(std::size_t rows) {
  Text script = u"create table Larga(N int primary key, T varchar(200))\r\nGO\r\n";
  for (std::size_t i = 0; i < rows; ++i)
    script += join({u"insert into Larga values(", decimal(-1 - static_cast<int>(i)), u", 'Se\u00f1al')\r\nGO\r\n"});
  return script;
}

Text long_run_script(ServerKind kind, std::size_t groups) {
  const TextView wait = kind == ServerKind::MariaDb ? u"do sleep(0.01)" : u"select pg_sleep(0.01)";
  Text script;
  for (std::size_t i = 0; i < groups; ++i) {
    const Text number = decimal(static_cast<int>(i));
    script += join({u"insert into Larga values(", number, u", 'Fila ", number, u"')\r\nGO\r\n",
                    u"update Larga set T = 'Cambiada' where N = ", number, u"\r\nGO\r\n",
                    u"select N, T from Larga where N < 0\r\nGO\r\n",  //
                    wait, u"\r\nGO\r\n"});
  }
  return script;
}

void Watched::after_command() {
  if (++done_ % std::max<std::size_t>(commands_ / kMoments, 1) == 0 && moments_.size() < kMoments) {
    moments_.push_back(held_());
  }
}

std::string Watched::growth() const {
  if (moments_.size() < kMoments) return "watched only " + std::to_string(moments_.size()) + " moments\n" + shown();
  const Held& first = moments_.front();
  const bool grew = std::any_of(moments_.begin(), moments_.end(), [&](const Held& later) {
    return later.bytes > first.bytes + kNoGrowth || later.handles > first.handles || later.threads > first.threads;
  });
  return grew ? shown() : std::string();
}

std::string Watched::shown() const {
  std::ostringstream told;
  for (const Held& each : moments_) told << each << "\n";
  return told.str();
}

}  // namespace qvr::tests
