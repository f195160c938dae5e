// The trial of a library that the test plays.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <thread>

#include "base/utf8.h"
#include "connection/played_surroundings.h"
#include "doctor/machine.h"
#include "doctor/played_machine.h"
#include "qvrscript/paths.h"
#include "qvrscript/run/interruption.h"
#include "support/temporary_folder.h"
#include "support/traced.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

constexpr const char* kKeep =
    "                      -> Write a report with --report FILE and give it to whoever looks after the application.\n";

// The lines of the trial, with XXXX for what is of this trial alone.
std::string tried_in(const std::string& told) {
  const std::size_t first = told.find("\nok     try ");
  const std::size_t error = told.find("\nerror  try ");
  const std::string lines = told.substr(std::min(first, error) + 1);
  return std::regex_replace(lines, std::regex("qvrscript_try_[0-9A-Fa-f]{8}"), "qvrscript_try_XXXX");
}

class Try : public ::testing::Test {
 protected:
  Try() {
    set_machine(sound_machine());
    set_library(&library);
  }
  ~Try() override {
    EXPECT_FALSE(std::filesystem::exists(script_tool::system_path(library.folder))) << to_utf8(library.folder);
    set_library(nullptr);
  }

  ToolAnswer tried(std::vector<Text> words = {}) {
    words.insert(words.begin(), {u"doctor", u"--try"});
    return run_tool(words, {.surroundings = surroundings.surroundings()});
  }
  // The line of one subject.
  std::string line_of(const std::string& subject) {
    const ToolAnswer answer = tried();
    const std::size_t at = answer.out.find(" try " + subject);
    EXPECT_NE(at, std::string::npos) << answer.out;
    const std::size_t begin = answer.out.rfind('\n', at) + 1;
    return answer.out.substr(begin, answer.out.find('\n', at) - begin);
  }

  PlayedLibrary library;
  PlayedSurroundings surroundings;
};

TEST_F(Try, TellsALineForEachStep) {
  const ToolAnswer answer = tried();
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.err, "");
  EXPECT_EQ(
      tried_in(answer.out),
      "ok     try classes    Ov, QVRcfp, QVRScr, QVRprp, cSQL20, uSQL20 by name and by interface, as played: "
      "\"C:\\q\\QVRlib21.dll\"\n"
      "ok     try cfp        A connection file was saved and loaded, and refused with a wrong identification and "
      "damaged\n"
      "ok     try values     Numbers, dates, truth and text are written and read again; for es-ES users read "
      "1234,5 and 31/12/2024\n"
      "ok     try queries    A query of one SELECT and one of two were made and narrowed by searches\n"
      "ok     try database   An empty database was made with Jet or ACE through ADOX (Microsoft.ACE.OLEDB.16.0)\n"
      "ok     try script     A script with a failing command was taken back whole, and went on without it, as was "
      "answered\n"
      "ok     try events     A script ran; Progreso came 4 times in order, Terminado once with True\n"
      "note   try procedure  Not tried: this engine has no procedures that EjecutarProcSQL7 calls\n"
      "                      -> Give a database of SQL Server, with --engine sqlserver.\n"
      "ok     try tidying    Nothing of the trial is left\n"
      "no errors\n");
}

TEST_F(Try, TellsWhatWasExpectedAndGoesOn) {
  library.instead = {{u"QVRScr.early", Text(u"sb")}};
  const ToolAnswer answer = tried();
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(tried_in(answer.out).substr(0, tried_in(answer.out).find("\nok") + 1),
            std::string("error  try classes    QVRScr.UsuarioSegunMotor by interface: expected \"sa\", came \"sb\"\n") +
                kKeep);
  EXPECT_NE(answer.out.find("ok     try events "), std::string::npos);
  EXPECT_TRUE(answer.out.ends_with("\n1 error\n"));
}

struct WrongAnswer {
  const char* subject;
  TextView member;
  Value answer;
  const char* line;
};

TEST_F(Try, FindsEachWrongAnswer) {
  const WrongAnswer rows[] = {
      {"classes", u"Ov", {}, "Ov, as played: expected an object that answers CadenaVersion, came failure 429: "},
      {"cfp", u"QVRcfp.Guardar", false, "QVRcfp.Guardar: expected True, came False"},
      {"cfp", u"QVRcfp.Crear", true, "QVRcfp.Crear with a wrong identification: expected False, came True"},
      {"values", u"QVRcfp.TextoAValor", 1.0, "QVRcfp.TextoAValor of type N: expected -1234.5, came 1"},
      {"queries", u"uSQL20.iSQL20_SQL", Text(), "uSQL20.iSQL20_SQL: expected \"SELECT C.Nombre"},
      {"script", u"QVRScr.EjecutarComandos", true,
       "EjecutarComandos when all was to be taken back: expected False, came True"},
      {"events", u"QVRScr.EjecutarComandos", false, "EjecutarComandos: expected True, came False"},
  };
  for (const WrongAnswer& row : rows) {
    library.instead = {{Text(row.member), row.answer}};
    const std::string line = line_of(row.subject);
    std::string subject = std::string("try ") + row.subject;
    subject.resize(15, ' ');
    EXPECT_TRUE(line.starts_with("error  " + subject + row.line)) << line;
  }
}

TEST_F(Try, CountsTheRowsThatAScriptLeaves) {
  library.undoes = false;
  EXPECT_EQ(line_of("script"), "error  try script     Rows when all was to be taken back: expected 0, came 2");
}

TEST_F(Try, HearsEventsInOrderAndTheEndOnce) {
  library.in_order = false;
  EXPECT_EQ(line_of("events"),
            "error  try events     Progreso behind its first text: expected qvrscript: 0/3, qvrscript: 1/3, qvrscript: "
            "2/3, came qvrscript: 0/3, qvrscript: 2/3, qvrscript: 1/3");
  library.in_order = true;
  library.ends = 2;
  EXPECT_EQ(line_of("events"), "error  try events     How often Terminado came: expected 1, came 2");
}

TEST_F(Try, GoesToTheNextEngineAndDoesWithoutOne) {
  library.instead = {{u"ADOX.Catalog", {}}};
  EXPECT_EQ(line_of("database"),
            "ok     try database   An empty database was made with SQL Server LocalDB (MSOLEDBSQL)");
  EXPECT_EQ(line_of("procedure"), "ok     try procedure  A procedure was called and its output came back");
  expect_any_traces();
  library.instead = {{u"ADOX.Catalog", {}}, {u"ADODB.Connection", {}}};
  const ToolAnswer answer = tried();
  EXPECT_EQ(answer.code, 0);
  EXPECT_NE(answer.out.find("note   try database   No empty database could be made with Jet or ACE through ADOX, nor "
                            "with SQL Server LocalDB, nor with SQLite through ODBC\n"),
            std::string::npos)
      << answer.out;
  EXPECT_NE(answer.out.find("note   try script     Not tried: it wants a database\n"), std::string::npos);
}

TEST_F(Try, TakesEverythingAwayAgain) {
  library.instead = {{u"ADOX.Catalog", {}}, {u"QVRcfp.output", std::int32_t{9}}};
  EXPECT_EQ(line_of("procedure"), "error  try procedure  The procedure's output: expected 8, came 9");
  expect_any_traces();
  const std::size_t count = library.statements.size();
  ASSERT_GE(count, 2u);
  EXPECT_TRUE(library.statements[count - 2].starts_with(u"DROP PROCEDURE qvrscript_try_p_"));
  EXPECT_TRUE(library.statements[count - 1].find(u"; DROP DATABASE [qvrscript_try_") != Text::npos);
}

TEST_F(Try, TellsWhatCannotBeTakenAway) {
  surroundings.variables[u"CONNECTION"] = u"DSN=x;PWD=secreto";
  library.refused = u"DROP TABLE";
  const ToolAnswer answer = tried({u"--connection-env", u"CONNECTION"});
  EXPECT_EQ(answer.code, 1);
  EXPECT_NE(answer.out.find("of the trial, with "), std::string::npos) << answer.out;
  EXPECT_NE(answer.out.find(" in its name: failure 5: refused\n                      -> Take it away by hand.\n"),
            std::string::npos);
}

TEST_F(Try, WorksInATableOfItsOwnInTheDatabaseThatIsGiven) {
  surroundings.variables[u"CONNECTION"] = u"DSN=x;PWD=secreto";
  const ToolAnswer answer = tried({u"--connection-env", u"CONNECTION", u"--engine", u"sqlserver"});
  EXPECT_EQ(answer.code, 0) << answer.out;
  EXPECT_NE(tried_in(answer.out)
                .find("ok     try database   The database that was given, in the table "
                      "qvrscript_try_XXXX only, which is dropped again\n"),
            std::string::npos)
      << answer.out;
  EXPECT_NE(answer.out.find("ok     try procedure "), std::string::npos);
  EXPECT_TRUE(library.statements.back().starts_with(u"DROP TABLE qvrscript_try_"));
  EXPECT_EQ(answer.out.find("secreto"), std::string::npos);
}

TEST_F(Try, LeavesNoBoxWaiting) {
  library.boxes = script_tool::Boxes::TakenAsNo;
  EXPECT_EQ(line_of("script"),
            "note   try script     A script with a failing command was taken back whole; without a desktop no other "
            "answer comes");
  library.boxes = script_tool::Boxes::Elsewhere;
  EXPECT_EQ(line_of("script"),
            "note   try script     Not tried: QVRServicios.InformeErrores, or the system, shows boxes that nobody "
            "answers here");
}

TEST_F(Try, WritesAReportWithTimes) {
  const TemporaryFolder folder;
  const Text path = folder.file_text(u"report.txt");
  const ToolAnswer answer = tried({u"--report", path});
  EXPECT_EQ(answer.code, 0);
  std::ifstream file(script_tool::system_path(path), std::ios::binary);
  std::string report{std::istreambuf_iterator<char>(file), {}};
  EXPECT_TRUE(std::regex_search(report, std::regex("^qvrscript doctor, \\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\r\n")))
      << report;
  report = std::regex_replace(report.substr(report.find('\n') + 1), std::regex(" \\(\\d+ ms\\)|\r"), "");
  EXPECT_EQ(report, answer.out);
  EXPECT_EQ(tried({u"--report", folder.text()}).code, 1);
  expect_any_traces();
}

TEST_F(Try, EndsAfterTheStepWhenInterruptedAndTakesEverythingAway) {
  std::thread interrupting;
  library.while_saving = [&] {
    interrupting = std::thread([] { script_tool::interruption().request(); });
    while (!script_tool::interruption().requested()) std::this_thread::yield();
  };
  const ToolAnswer answer = tried();
  interrupting.join();
  EXPECT_EQ(answer.code, 130);
  EXPECT_NE(answer.out.find("ok     try cfp "), std::string::npos);
  EXPECT_NE(answer.out.find("damaged\nok     try tidying    Nothing of the trial is left\n"), std::string::npos)
      << answer.out;
}

TEST_F(Try, LeavesTheOtherStepsOutWithoutALibrary) {
  library.instead = {{u"Ov", {}}, {u"QVRcfp", {}}};
  const ToolAnswer answer = tried();
  EXPECT_EQ(answer.code, 1);
  EXPECT_NE(answer.out.find("note   try cfp        Not tried: the library cannot be created\n"), std::string::npos);
  EXPECT_NE(answer.out.find("ok     try database "), std::string::npos);
  EXPECT_TRUE(answer.out.ends_with("\n1 error\n")) << answer.out;
}

TEST(TryElsewhere, IsRefused) {
  const ToolAnswer answer = run_tool({u"doctor", u"--try"});
  EXPECT_EQ(answer.code, 2);
  EXPECT_EQ(answer.err,
            "qvrscript: --try uses the library, which exists on Windows only; qvrscript run --rehearse tries a "
            "connection and a script here; qvrscript --help tells more\n");
  EXPECT_EQ(run_tool({u"doctor", u"--connection", u"DSN=x"}).code, 2);
}

}  // namespace
}  // namespace qvr::tests
