// Names of scripts in a folder.
#include "qvrscript/check/version_rules.h"

#include <gtest/gtest.h>

#include "base/utf8.h"
#include "support/rows.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

struct NamesRow {
  const char* name;
  std::vector<Text> names;
  std::vector<std::string> found;  // "file line rule"
};

std::vector<std::string> found_in(const std::vector<Text>& names) {
  std::vector<std::string> found;
  for (const auto& [path, finding] : script_tool::check_names(u"f", names)) {
    found.push_back(to_utf8(path) + " " + rules_of({finding}).front());
  }
  return found;
}

const NamesRow kNames[] = {
    {"definition", {u"GestionSQL1.cfc", u"GestionSQL2.cfc", u"gestionora\u00f1.CFC"}, {}},
    {"chain", {u"G10025a10026SQL.cfc", u"G10024a10025SQL.cfc"}, {}},
    {"each engine its own", {u"G10024a10025SQL.cfc", u"G10026a10027ORA.cfc", u"H10030a10031SQL.cfc"}, {}},
    {"no place", {u"GestionSQL.cfc"}, {"f/GestionSQL.cfc 0 name-missed"}},
    {"two places", {u"GestionSQL10.cfc"}, {"f/GestionSQL10.cfc 0 name-missed"}},
    {"no tag", {u"Gestion1.cfc"}, {"f/Gestion1.cfc 0 name-missed"}},
    {"short version", {u"G1024a10025SQL.cfc"}, {"f/G1024a10025SQL.cfc 0 version-digits"}},
    {"update as definition", {u"G10024a10025SQL1.cfc"}, {"f/G10024a10025SQL1.cfc 0 name-missed"}},
    {"a tag in the name", {u"ProjetSQL1.cfc"}, {}},
    {"gap", {u"G10024a10025SQL.cfc", u"G10026a10027SQL.cfc"}, {"f/G10026a10027SQL.cfc 0 version-gap"}},
    {"overlap", {u"G10024a10026SQL.cfc", u"G10025a10026SQL.cfc"}, {"f/G10025a10026SQL.cfc 0 version-overlap"}},
    {"two ways", {u"G10024a10025SQL.cfc", u"G10024a10026SQL.cfc"}, {"f/G10024a10026SQL.cfc 0 version-overlap"}},
    {"any case", {u"g10024a10025sql.cfc", u"G10026a10027SQL.cfc"}, {"f/G10026a10027SQL.cfc 0 version-gap"}},
    {"backwards", {u"G10025a10024SQL.cfc"}, {"f/G10025a10024SQL.cfc 0 version-backwards"}},
    {"no digits", {u"G1002xa10025SQL.cfc"}, {"f/G1002xa10025SQL.cfc 0 version-digits"}},
    {"zero in front", {u"G01024a01025SQL.cfc"}, {"f/G01024a01025SQL.cfc 0 version-zero"}},
};

using VersionRules = Rows<testing::Test, NamesRow>;

TEST_P(VersionRules, TellOfNamesAndChains) { EXPECT_EQ(found_in(GetParam().names), GetParam().found); }

INSTANTIATE_TEST_SUITE_P(, VersionRules, testing::ValuesIn(kNames), row_name);

}  // namespace
}  // namespace qvr::tests
