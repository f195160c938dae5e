// Released scripts, which must not change.
#include "qvrscript/check/lock_file.h"

#include <gtest/gtest.h>

#include "base/utf8.h"
#include "qvrscript/check/digest.h"
#include "qvrscript/output/json.h"
#include "support/rows.h"
#include "support/temporary_folder.h"
#include "support/traced.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

using script_tool::Json;
using tests::PrintTo;

using namespace std::string_literals;

constexpr std::string_view kScript = "select 1\r\nGO\r\n";
// As `sha256sum` tells it of the same bytes.
constexpr std::string_view kDigest = "9a5a4037b9cd2bb7172a46558c78027f3201734b5967feba51f9e2f4c5786490";

std::string hexadecimal_of(std::string_view bytes) {
  std::string digits;
  for (const std::uint8_t byte : script_tool::sha256(bytes)) {
    digits += to_utf8(hexadecimal(byte, 2, u"0123456789abcdef"));
  }
  return digits;
}

TEST(Digest, IsSha256) {
  EXPECT_EQ(hexadecimal_of(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
  EXPECT_EQ(hexadecimal_of("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
}

class Lock : public testing::Test {
 protected:
  Lock() {
    folder.write(u"bSQL1.cfc", kScript);
    folder.write(u"aSQL1.cfc", "select 2\r\nGO\r\n");
  }

  Text path(TextView name) const { return join({folder.text(), u"/", name}); }
  ToolAnswer check(std::vector<Text> more = {}) const {
    std::vector<Text> words = {u"check",     u"--quiet", u"--fail-on", u"error", u"--lock", path(u"released.lock"),
                               folder.text()};
    words.insert(words.end(), more.begin(), more.end());
    return run_tool(words);
  }
  Json found(std::vector<Text> more = {}) const {
    more.push_back(u"--json");
    return Json::parse(check(std::move(more)).out);
  }
  std::string lock() const { return folder.read(u"released.lock"); }

  TemporaryFolder folder;
};

std::vector<std::string> rules_and_files(const Json& document) {
  std::vector<std::string> found;
  for (const Json& finding : document["findings"]) {
    const std::string file = finding["file"];
    found.push_back(finding["rule"].get<std::string>() + " " + file.substr(file.rfind('/') + 1));
  }
  return found;
}

TEST_F(Lock, HasALineForEachScript) {
  const Json document = found({u"--update"});
  EXPECT_EQ(document["locked"], 2);
  EXPECT_EQ(document["exitCode"], 0);
  EXPECT_EQ(lock(), "qvrscript lock 1\n" + hexadecimal_of("select 2\r\nGO\r\n") + "  aSQL1.cfc\n" +
                        std::string(kDigest) + "  bSQL1.cfc\n");
  EXPECT_EQ(rules_and_files(found()), std::vector<std::string>{});
}

TEST_F(Lock, NamesScriptsFromItsFolder) {
  const TemporaryFolder other;
  const Text file = join({other.text(), u"/x.lock"});
  EXPECT_EQ(run_tool({u"check", u"--lock", file, u"--update", folder.text()}).code, 0);
  const std::string name = to_utf8(folder.text().substr(folder.text().find_last_of(u"/\\") + 1));
  EXPECT_NE(other.read(u"x.lock").find("  ../" + name + "/aSQL1.cfc\n"), std::string::npos) << other.read(u"x.lock");
  const ToolAnswer answer = run_tool({u"check", u"--fail-on", u"note", u"--lock", file, folder.text()});
  EXPECT_EQ(answer.out, "");
  EXPECT_EQ(answer.code, 0);
}

TEST_F(Lock, TellsOfAChangedScript) {
  check({u"--update"});
  folder.write(u"bSQL1.cfc", "select 3\r\nGO\r\n");
  const Json document = found();
  EXPECT_EQ(rules_and_files(document), std::vector<std::string>{"locked-changed bSQL1.cfc"});
  EXPECT_EQ(document["exitCode"], 1);
}

TEST_F(Lock, TellsOfAMissingScript) {
  check({u"--update"});
  std::filesystem::remove(folder.file(u"bSQL1.cfc"));
  EXPECT_EQ(rules_and_files(found()), std::vector<std::string>{"locked-missing bSQL1.cfc"});
}

TEST_F(Lock, TellsOfANewScript) {
  check({u"--update"});
  folder.write(u"cSQL1.cfc", kScript);
  const Json document = found();
  EXPECT_EQ(rules_and_files(document), std::vector<std::string>{"not-locked cSQL1.cfc"});
  EXPECT_EQ(document["findings"][0]["severity"], "note");
  EXPECT_EQ(document["exitCode"], 0);
}

TEST_F(Lock, LooksAtWhatIsLockedWhateverIsChecked) {
  check({u"--update"});
  folder.write(u"bSQL1.cfc", "select 3\r\nGO\r\n");
  const ToolAnswer answer = run_tool({u"check", u"--json", u"--lock", path(u"released.lock"), path(u"aSQL1.cfc")});
  EXPECT_EQ(rules_and_files(Json::parse(answer.out)), std::vector<std::string>{"locked-changed bSQL1.cfc"});
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(traced(), Traces{u"names_in: 75 Path/File access error"});
}

struct SameText {
  const char* name;
  std::string bytes;
};

const SameText kSame[] = {
    {"LF", "select 1\nGO\n"},
    {"CR", "select 1\rGO\r"},
    {"a mark", "\xEF\xBB\xBFselect 1\r\nGO\r\n"},
    {"UTF-16", "\xFF\xFEs\0e\0l\0e\0c\0t\0 \0001\0\r\0\n\0G\0O\0\r\0\n\0"s},
};

using LockedText = Rows<Lock, SameText>;

TEST_P(LockedText, IsTheSameInOtherBytes) {
  check({u"--update"});
  folder.write(u"bSQL1.cfc", GetParam().bytes);
  for (const std::string& each : rules_and_files(found())) EXPECT_FALSE(each.starts_with("locked")) << each;
}

INSTANTIATE_TEST_SUITE_P(, LockedText, testing::ValuesIn(kSame), row_name);

TEST_F(Lock, GetsNewScriptsAndKeepsTheOthers) {
  check({u"--update"});
  const std::string before = lock();
  folder.write(u"cSQL1.cfc", kScript);
  EXPECT_EQ(found({u"--update"})["locked"], 1);
  EXPECT_EQ(lock(), before + std::string(kDigest) + "  cSQL1.cfc\n");
  EXPECT_EQ(found({u"--update"})["locked"], 0);
}

TEST_F(Lock, IsLeftAsItIsWhileALockedScriptIsAnother) {
  check({u"--update"});
  const std::string before = lock();
  folder.write(u"bSQL1.cfc", "select 3\r\nGO\r\n");
  folder.write(u"cSQL1.cfc", kScript);
  const ToolAnswer answer = check({u"--update"});
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.err, "qvrscript: " + to_utf8(path(u"released.lock")) + " is left as it is\n");
  EXPECT_EQ(lock(), before);
}

TEST_F(Lock, TakesNoScriptThatTheReaderRefuses) {
  folder.write(u"cSQL1.cfc", "select\0\r\nGO\r\n"s);
  const ToolAnswer answer = check({u"--update"});
  EXPECT_EQ(answer.code, 1);
  EXPECT_NE(answer.err.find("cSQL1.cfc cannot be locked: the reader refuses it\n"), std::string::npos) << answer.err;
  EXPECT_FALSE(std::filesystem::exists(folder.file(u"released.lock")));
}

TEST_F(Lock, TakesNoNameThatHidesItself) {
  folder.write(u"c\u202eSQL1.cfc", kScript);
  const ToolAnswer answer = check({u"--update"});
  EXPECT_EQ(answer.code, 1);
  EXPECT_NE(answer.err.find("c\\u202eSQL1.cfc has no path from the folder of "), std::string::npos) << answer.err;
  EXPECT_FALSE(std::filesystem::exists(folder.file(u"released.lock")));
}

TEST_F(Lock, MustBeThereUnlessItIsBroughtUpToDate) {
  const ToolAnswer answer = check();
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.out, "");
  EXPECT_EQ(answer.err, "qvrscript: " + to_utf8(path(u"released.lock")) + " cannot be read\n");
}

TEST_F(Lock, MayHaveOtherLineEndsAndAnotherOrder) {
  check({u"--update"});
  folder.write(u"released.lock", "qvrscript lock 1\r\n" + std::string(kDigest) + "  bSQL1.cfc\r\n" +
                                     hexadecimal_of("select 2\r\nGO\r\n") + "  aSQL1.cfc\r\n");
  const Json document = found();
  EXPECT_EQ(rules_and_files(document), std::vector<std::string>{});
  EXPECT_EQ(document["exitCode"], 0);
}

TEST_F(Lock, TellsProgramsWhatIsWrongWithIt) {
  const Json document = found();
  const std::string wrong = to_utf8(path(u"released.lock")) + " cannot be read";
  EXPECT_EQ(document["problems"], Json::array({wrong}));
  EXPECT_EQ(document["exitCode"], 1);
  EXPECT_TRUE(check({u"--format", u"github"}).out.ends_with(" cannot be read\n"));
  const Json run = Json::parse(check({u"--format", u"sarif"}).out)["runs"][0];
  EXPECT_EQ(run["invocations"][0]["executionSuccessful"], false);
  EXPECT_EQ(run["invocations"][0]["toolExecutionNotifications"][0]["message"]["text"], wrong);
}

struct Damage {
  const char* name;
  std::string bytes;
  int line;
};

const std::string kLine = std::string(kDigest) + "  bSQL1.cfc";

const Damage kDamages[] = {
    {"empty", "", 1},
    {"another format", "qvrscript lock 2\n", 1},
    {"a mark", "\xEF\xBB\xBFqvrscript lock 1\n", 1},
    {"a line that does not end", "qvrscript lock 1\n" + kLine, 2},
    {"a short digest", "qvrscript lock 1\n" + kLine.substr(1) + "\n", 2},
    {"no digits", "qvrscript lock 1\nx" + kLine.substr(1) + "\n", 2},
    {"one blank", "qvrscript lock 1\n" + std::string(kDigest) + " bSQL1.cfc\n", 2},
    {"no name", "qvrscript lock 1\n" + std::string(kDigest) + "  \n", 2},
    {"an empty line", "qvrscript lock 1\n\n" + kLine + "\n", 2},
    {"a mark of a merge", "qvrscript lock 1\n" + kLine + "\n=======\n", 3},
    {"a name twice", "qvrscript lock 1\n" + kLine + "\n" + kLine + "\n", 3},
    {"no UTF-8", "qvrscript lock 1\n" + kLine + "\xF3\n", 2},
    {"binary", std::string(100, '\0') + "\n", 1},
};

using DamagedLock = Rows<Lock, Damage>;

TEST_P(DamagedLock, IsRefusedBeforeAnythingIsDone) {
  folder.write(u"released.lock", GetParam().bytes);
  const ToolAnswer answer = check({u"--update"});
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.out, "");
  EXPECT_EQ(answer.err, "qvrscript: " + to_utf8(path(u"released.lock")) + ":" + std::to_string(GetParam().line) +
                            " is no line of a lock file, which is left as it is: restore it from version control\n");
  EXPECT_EQ(lock(), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(, DamagedLock, testing::ValuesIn(kDamages), row_name);

TEST_F(Lock, CannotBeAFolder) {
  const ToolAnswer answer = run_tool({u"check", u"--lock", folder.text(), u"--update", folder.text()});
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.err, "qvrscript: " + to_utf8(folder.text()) + " cannot be read\n");
}

}  // namespace
}  // namespace qvr::tests
