// Damaged files of every kind, and how they are told apart.
#include <filesystem>
#ifndef _WIN32
#include <sys/stat.h>
#endif

#include "cfp/cfp_fixture.h"
#include "qvrscript/output/json.h"
#include "services/builtin_text_protection.h"
#include "support/test_thread.h"

namespace qvr::tests {
namespace {

using script_tool::Json;

class CfpCheck : public CfpCommands {
 protected:
  std::vector<std::string> lines() const {
    std::vector<std::string> lines;
    std::string bytes = folder.read(u"shop.cfp");
    for (std::size_t end = bytes.find("\r\n"); end != std::string::npos; end = bytes.find("\r\n")) {
      lines.push_back(bytes.substr(0, end));
      bytes.erase(0, end + 2);
    }
    return lines;
  }
  void write_lines(const std::vector<std::string>& lines) const {
    std::string bytes;
    for (const std::string& line : lines) bytes += line + "\r\n";
    folder.write(u"shop.cfp", bytes);
  }
  void expect_finding(const std::string& finding) const {
    const ToolAnswer answer = cfp(u"check");
    EXPECT_EQ(answer.code, 1);
    EXPECT_EQ(answer.out, finding);
    EXPECT_EQ(answer.err, "");
    expect_any_traces();
  }
  void expect_complaint(const std::string& complaint) const {
    const ToolAnswer answer = cfp(u"check");
    EXPECT_EQ(answer.code, 1);
    EXPECT_EQ(answer.out, "");
    EXPECT_EQ(answer.err, "qvrscript: " + complaint + "\n");
    expect_any_traces();
  }
  Json document() const { return Json::parse(cfp(u"check", {u"--format", u"json"}).out); }
};

TEST_F(CfpCheck, FindsAWholeFileFine) {
  write();
  const ToolAnswer answer = cfp(u"check");
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.out, path() + ": fine (SQL Server)\n");
  EXPECT_EQ(answer.err, "");
  EXPECT_EQ(document()["state"], "fine");
  EXPECT_EQ(document()["fine"], true);
}

TEST_F(CfpCheck, TakesTheLineEndsThatTheLibraryTakes) {
  write();
  std::string bytes = folder.read(u"shop.cfp");
  std::erase(bytes, '\r');
  bytes.pop_back();
  folder.write(u"shop.cfp", bytes);
  EXPECT_EQ(cfp(u"check").code, 0);
}

TEST_F(CfpCheck, NotesWhatIsBehindTheTenthLine) {
  write();
  folder.write(u"shop.cfp", folder.read(u"shop.cfp") + "more");
  const ToolAnswer answer = cfp(u"check");
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.out, path() + ": fine (SQL Server)\n" + path() +
                            ": note: there is more behind line 10, which the library does not read\n");
  EXPECT_EQ(document()["moreLines"], true);
}

TEST_F(CfpCheck, TellsThatThereIsNoFile) { expect_complaint(path() + ": no such file"); }

TEST_F(CfpCheck, TellsThatTheNameHasNoEnding) {
  const ToolAnswer answer = run({u"cfp", u"check", u"--id-env", u"ID", folder.text(), u"shop.CFP"});
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.err, "qvrscript: " + path("shop.CFP.cfp") + ": no such file; the name is given without .cfp\n");
  expect_any_traces();
}

TEST_F(CfpCheck, TellsThatThereIsNoFolder) {
  const ToolAnswer answer = run({u"cfp", u"check", u"--id-env", u"ID", folder.file_text(u"none"), u"shop"});
  EXPECT_EQ(answer.code, 1);
  EXPECT_TRUE(answer.err.ends_with(": no folder, or one that cannot be read\n")) << answer.err;
  expect_any_traces();
}

TEST_F(CfpCheck, TellsOfAFolderInAFilesPlace) {
  std::filesystem::create_directory(folder.file(u"shop.cfp"));
  expect_complaint(path() + ": no such file");
}

#ifndef _WIN32
// Nobody writes into the pipe: opening it would wait for ever.
TEST_F(CfpCheck, DoesNotWaitForAPipe) {
  ASSERT_EQ(::mkfifo(folder.file(u"shop.cfp").c_str(), 0600), 0);
  expect_complaint(path() + ": no such file");
}
#endif

TEST_F(CfpCheck, TellsOfALineThatIsTooLong) {
  folder.write(u"shop.cfp", std::string((std::size_t{16} << 20) + 1, 'x'));
  expect_complaint(path() + ": cannot be read");
}

TEST_F(CfpCheck, TellsOfTooFewLines) {
  folder.write(u"shop.cfp", "");
  expect_finding(path() + ": empty; a connection file has ten lines\n");
  folder.write(u"shop.cfp", "x\r\n");
  expect_finding(path() + ": one line; a connection file has ten lines\n");
  write();
  std::vector<std::string> nine = lines();
  nine.pop_back();
  write_lines(nine);
  expect_finding(path() + ": 9 lines; a connection file has ten lines\n");
  EXPECT_EQ(document()["state"], "few-lines");
  EXPECT_EQ(document()["lines"], 9);
}

TEST_F(CfpCheck, TellsOfAnotherIdentification) {
  write(sample(), u"another");
  expect_finding(path() + ": another identification, or no connection file: no line can be read with this one\n");
  EXPECT_EQ(document()["state"], "other-identification");
}

TEST_F(CfpCheck, TellsOfAFileOfAnotherKind) {
  folder.write(u"shop.cfp", "select 1\r\nGO\r\n\xFF\xFE\r\n\r\n5\r\n6\r\n7\r\n8\r\n9\r\n10\r\n11\r\n");
  const ToolAnswer answer = cfp(u"check");
  EXPECT_EQ(answer.code, 1);
  EXPECT_TRUE(answer.out.starts_with(path() + ": another identification, or no connection file")) << answer.out;
  expect_any_traces();
}

TEST_F(CfpCheck, NamesEachDamagedLine) {
  struct Row {
    std::size_t line;
    const char *title, *name;
  };
  constexpr Row kRows[] = {
      {1, "engine", "engine"},           {2, "provider", "provider"},
      {3, "data source", "dataSource"},  {4, "catalogue or tablespace", "catalog"},
      {5, "administrator", "adminUser"}, {6, "administrator's password", "adminPassword"},
      {7, "client", "clientUser"},       {8, "client's password", "clientPassword"},
      {9, "other parameters", "other"},  {10, "check line", "check"},
  };
  write();
  const std::vector<std::string> whole = lines();
  for (const Row& row : kRows) {
    std::vector<std::string> damaged = whole;
    char& digit = damaged[row.line - 1][20];
    digit = digit == 'a' ? 'b' : 'a';
    write_lines(damaged);
    expect_finding(path() + ": line " + std::to_string(row.line) + " is damaged (" + row.title + ")\n");
    const Json json = document();
    EXPECT_EQ(json["state"], "damaged");
    EXPECT_EQ(json["damaged"], Json::array({{{"line", row.line}, {"field", row.name}}}));
  }
}

TEST_F(CfpCheck, NamesAllDamagedLines) {
  write();
  std::vector<std::string> damaged = lines();
  damaged[5] = "";
  damaged[7] = "no text of ours";
  write_lines(damaged);
  expect_finding(path() + ": line 6 is damaged (administrator's password)\n" + path() +
                 ": line 8 is damaged (client's password)\n");
}

TEST_F(CfpCheck, FindsExchangedLines) {
  write();
  std::vector<std::string> exchanged = lines();
  std::swap(exchanged[2], exchanged[3]);
  write_lines(exchanged);
  expect_finding(path() +
                 ": the lines do not belong together: each can be read with this identification, but they were "
                 "exchanged, or come from different files\n");
  EXPECT_EQ(document()["state"], "mixed");
}

TEST_F(CfpCheck, FindsALineOfAnotherFileWithTheSameIdentification) {
  ConnectionParameters other = sample();
  other.ClaveAdm = u"another password";
  write(other);
  const std::string foreign = lines()[5];
  write();
  std::vector<std::string> mixed = lines();
  mixed[5] = foreign;
  write_lines(mixed);
  EXPECT_EQ(document()["state"], "mixed");
  expect_any_traces();
}

TEST_F(CfpCheck, FindsAnEngineThatIsNoNumber) {
  services::BuiltinTextProtection protection(system_platform().cryptography);
  std::vector<std::string> written;
  Text all;
  for (const TextView field : {u"2x", u"P", u"D", u"C", u"sa", u"pw", u"app", u"", u""}) {
    written.push_back(to_utf8(protection.Cifrar(kId, field)));
    all += field;
  }
  written.push_back(to_utf8(protection.Cifrar(kId, all)));
  write_lines(written);
  expect_finding(path() + ": line 1 (engine) is no number\n");
}

// A protection of another product need not notice another key: what it then gives is no sign of mixed lines.
TEST_F(CfpCheck, DoesNotTakeAnotherIdentificationForMixedLines) {
  const TestThread thread;
  write(sample(), u"another");
  expect_finding(path() + ": another identification, or no connection file: no line can be read with this one\n");
}

TEST_F(CfpCheck, TellsNoSecret) {
  write();
  std::vector<std::string> exchanged = lines();
  std::swap(exchanged[4], exchanged[5]);
  write_lines(exchanged);
  for (const std::vector<Text>& more : {std::vector<Text>{}, {u"--format", u"json"}, {u"--verbose"}}) {
    const ToolAnswer answer = cfp(u"check", more);
    for (const char* secret : {"admin-password", "the identification", "file-password"}) {
      EXPECT_EQ((answer.out + answer.err).find(secret), std::string::npos) << answer.out << answer.err;
    }
  }
  expect_any_traces();
}

}  // namespace
}  // namespace qvr::tests
