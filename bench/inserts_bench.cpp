// What running 100,000 INSERTs costs in qvrscript, beside a bare loop of ODBC calls: into a SQLite file, or into the
// server that tests/servers/with_server.py has started. Both execute the same texts one by one in one transaction. The
// loop makes one statement, hands each text to SQLExecDirectW, checks the answer and closes the statement's cursor,
// which is the least that somebody would write; it tells nobody what it does, counts no commands and does not ask for
// changed rows. Its texts are ready before the clock runs, the runner finds its own in one text.

#include <cstdlib>
#include <filesystem>
#include <optional>

#include "odbc/odbc.h"
#include "odbc/odbc_api.h"
#include "run.h"
#include "script/qvrscr.h"
#include "servers/server.h"
#include "servers/session.h"

namespace {

using qvr::Text;
using qvr::TextView;
using qvr::tests::DatabaseServer;
using qvr::tests::Session;

constexpr int kInserts = 100000;

class NoEvents final : public qvr::ScriptEvents {
 public:
  void Progreso(const Text&) noexcept override {}
  void Terminado(bool) noexcept override {}
};

// A folder with an empty SQLite database.
struct Folder {
  Folder() {
    std::filesystem::remove_all(path);
    std::filesystem::create_directories(path);
  }
  ~Folder() { std::filesystem::remove_all(path); }
  std::filesystem::path path = std::filesystem::temp_directory_path() / "qvrlib21-inserts-bench";
  std::filesystem::path database = path / "bench.db";
};

bool on_server() { return std::getenv("QVR_TESTS_SERVER") != nullptr; }

// A database without the table.
class Place {
 public:
  Place() {
    if (on_server()) {
      Session(DatabaseServer::here().odbc_string()).run(u"DROP TABLE IF EXISTS Articulos");
    } else {
      folder_.emplace();
    }
  }

  // In SQLite commits do not wait for the disk, which is the most unsteady part of both.
  Text odbc_string() const {
    if (on_server()) return DatabaseServer::here().odbc_string();
    return qvr::join({u"DRIVER={SQLite3};Database=", folder_->database.u16string(), u";SyncPragma=OFF;"});
  }

  void check_rows() const {
    const Text rows = Session(odbc_string()).ask(u"SELECT COUNT(*) FROM Articulos");
    qvr::bench::require(rows == qvr::decimal(kInserts), "not all rows are there");
  }

 private:
  std::optional<Folder> folder_;
};

const char* subject() {
  if (!on_server()) return "OdbcInserts";
  return DatabaseServer::here().kind() == qvr::tests::ServerKind::MariaDb ? "MariaDbInserts" : "PostgreSqlInserts";
}

std::vector<Text> commands() {
  std::vector<Text> texts{u"CREATE TABLE Articulos (Codigo INTEGER, Nombre VARCHAR(40), Precio REAL)"};
  for (int i = 0; i < kInserts; ++i) {
    texts.push_back(
        qvr::join({u"INSERT INTO Articulos VALUES ( ", qvr::decimal(i), u", 'Tornillo de cabeza plana', 12.5)"}));
  }
  return texts;
}

void by_hand(benchmark::State& state) {
  const std::vector<Text> texts = commands();
  for (auto _ : state) {
    state.PauseTiming();
    const Place place;
    state.ResumeTiming();
    {
      qvr::odbc::Connection connection;
      connection.open(place.odbc_string(), 0);
      connection.set_autocommit(false);
      const qvr::odbc::Handle statement(SQL_HANDLE_STMT, connection.handle().get());
      for (const Text& text : texts) {
        statement.check(
            qvr::odbc::api().SQLExecDirectW(statement.get(), qvr::odbc::wide(text), qvr::odbc::units(text)));
        qvr::odbc::api().SQLFreeStmt(statement.get(), SQL_CLOSE);
      }
      connection.end_transaction(true);
    }
    state.PauseTiming();
    place.check_rows();
    state.ResumeTiming();
  }
}

void library(benchmark::State& state) {
  Text script;
  for (const Text& text : commands()) script += qvr::join({text, u"\r\nGO\r\n"});
  NoEvents events;
  qvr::QVRScr runner(events);
  for (auto _ : state) {
    state.PauseTiming();
    const Place place;
    Text id = u"bench", shown;
    const Text connection = qvr::join({u"Provider=MSDASQL;Extended Properties=\"", place.odbc_string(), u"\""});
    state.ResumeTiming();
    qvr::bench::require(runner.EjecutarComandos(id, qvr::Engine::Jet, script, connection, shown), "the run failed");
    state.PauseTiming();
    place.check_rows();
    state.ResumeTiming();
  }
}

}  // namespace

int main(int count, char** arguments) { return qvr::bench::beside(subject(), library, by_hand, count, arguments); }
