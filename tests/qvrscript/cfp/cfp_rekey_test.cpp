#include <filesystem>

#include "cfp/cfp_fixture.h"
#include "qvrscript/output/json.h"

namespace qvr::tests {
namespace {

using script_tool::Json;

class CfpRekey : public CfpCommands {
 protected:
  CfpRekey() { played.variables[u"NEW"] = u"the new one"; }
  ToolAnswer rekey(const std::vector<Text>& more = {}) const {
    std::vector<Text> words{u"--new-id-env", u"NEW"};
    words.insert(words.end(), more.begin(), more.end());
    return cfp(u"rekey", words);
  }
};

TEST_F(CfpRekey, KeepsEveryFieldUnderTheNewIdentification) {
  write();
  const ToolAnswer answer = rekey();
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.out, path() + ": has the new identification\n");
  EXPECT_EQ(answer.err, "");
  const std::string rekeyed = folder.read(u"shop.cfp");
  write(sample(), u"the new one");
  EXPECT_EQ(rekeyed, folder.read(u"shop.cfp"));  // equal parameters give equal bytes
}

TEST_F(CfpRekey, AsksForTheNewIdentificationTwice) {
  write();
  played.answers = {u"typed", u"typed"};
  EXPECT_EQ(cfp(u"rekey").code, 0);
  QVRcfp file;
  EXPECT_TRUE(file.Crear(u"typed", folder.text(), u"shop"));
}

TEST_F(CfpRekey, NamesTheOptionWhereNobodyAnswers) {
  write();
  const ToolAnswer answer = cfp(u"rekey");
  EXPECT_EQ(answer.code, 2);
  EXPECT_NE(answer.err.find("--new-id-env"), std::string::npos) << answer.err;
}

TEST_F(CfpRekey, RefusesTheSameAndAnEmptyIdentification) {
  write();
  const std::string former = folder.read(u"shop.cfp");
  for (const TextView id : {kId, TextView()}) {
    played.variables[u"NEW"] = id;
    EXPECT_EQ(rekey().code, 2);
    EXPECT_EQ(folder.read(u"shop.cfp"), former);
  }
}

TEST_F(CfpRekey, LeavesAFileOfAnotherIdentification) {
  write(sample(), u"another");
  const std::string former = folder.read(u"shop.cfp");
  const ToolAnswer answer = rekey();
  EXPECT_EQ(answer.code, 1);
  EXPECT_NE(answer.err.find("another identification"), std::string::npos) << answer.err;
  EXPECT_EQ(folder.read(u"shop.cfp"), former);
  expect_any_traces();
}

TEST_F(CfpRekey, TellsMachines) {
  write();
  EXPECT_EQ(Json::parse(rekey({u"--format", u"json"}).out), Json({{"command", "cfp rekey"}, {"file", path()}}));
}

}  // namespace
}  // namespace qvr::tests
