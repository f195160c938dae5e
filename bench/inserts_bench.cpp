// What running 100,000 INSERTs into SQLite costs in qvrscript, beside a bare loop of ODBC calls, into files of one
// folder. Both execute the same texts one by one in one transaction. The loop makes one statement, hands each text to
// SQLExecDirectW, checks the answer and closes the statement's cursor, which is the least that somebody would write; it
// tells nobody what it does, counts no commands and does not ask for changed rows. Its texts are ready before the clock
// runs, the runner finds its own in one text.

#include <filesystem>

#include "odbc/odbc.h"
#include "odbc/odbc_api.h"
#include "run.h"
#include "script/qvrscr.h"

namespace {

using qvr::Text;
using qvr::TextView;

constexpr int kInserts = 100000;

class NoEvents final : public qvr::ScriptEvents {
 public:
  void Progreso(const Text&) noexcept override {}
  void Terminado(bool) noexcept override {}
};

// A folder with an empty database.
struct Folder {
  Folder() {
    std::filesystem::remove_all(path);
    std::filesystem::create_directories(path);
  }
  ~Folder() { std::filesystem::remove_all(path); }
  // Commits do not wait for the disk, which is the most unsteady part of both.
  Text driver_string() const {
    return qvr::join({u"DRIVER={SQLite3};Database=", database.u16string(), u";SyncPragma=OFF;"});
  }
  std::filesystem::path path = std::filesystem::temp_directory_path() / "qvrlib21-inserts-bench";
  std::filesystem::path database = path / "bench.db";
};

std::vector<Text> commands() {
  std::vector<Text> texts{u"CREATE TABLE Articulos (Codigo INTEGER, Nombre VARCHAR(40), Precio REAL)"};
  for (int i = 0; i < kInserts; ++i) {
    texts.push_back(
        qvr::join({u"INSERT INTO Articulos VALUES ( ", qvr::decimal(i), u", 'Tornillo de cabeza plana', 12.5)"}));
  }
  return texts;
}

void check_rows(const Folder& folder) {
  qvr::odbc::Connection connection;
  connection.open(folder.driver_string(), 0);
  const qvr::odbc::Handle statement(SQL_HANDLE_STMT, connection.handle().get());
  const Text question = u"SELECT COUNT(*) FROM Articulos";
  statement.check(
      qvr::odbc::api().SQLExecDirectW(statement.get(), qvr::odbc::wide(question), qvr::odbc::units(question)));
  statement.check(qvr::odbc::api().SQLFetch(statement.get()));
  SQLBIGINT rows = 0;
  statement.check(qvr::odbc::api().SQLGetData(statement.get(), 1, SQL_C_SBIGINT, &rows, sizeof rows, nullptr));
  qvr::bench::require(rows == kInserts, "not all rows are there");
}

void by_hand(benchmark::State& state) {
  const std::vector<Text> texts = commands();
  for (auto _ : state) {
    state.PauseTiming();
    const Folder folder;
    state.ResumeTiming();
    {
      qvr::odbc::Connection connection;
      connection.open(folder.driver_string(), 0);
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
    check_rows(folder);
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
    const Folder folder;
    Text id = u"bench", shown;
    const Text connection = qvr::join({u"Provider=MSDASQL;Extended Properties=\"", folder.driver_string(), u"\""});
    state.ResumeTiming();
    qvr::bench::require(runner.EjecutarComandos(id, qvr::Engine::Jet, script, connection, shown), "the run failed");
    state.PauseTiming();
    check_rows(folder);
    state.ResumeTiming();
  }
}

}  // namespace

int main(int count, char** arguments) { return qvr::bench::beside("OdbcInserts", library, by_hand, count, arguments); }
