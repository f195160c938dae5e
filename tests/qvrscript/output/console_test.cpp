// What reaches the streams, and what does not.
#include "qvrscript/output/console.h"

#include <gtest/gtest.h>

#include <sstream>

#include "base/utf8.h"

namespace qvr::tests {
namespace {

using namespace script_tool;

TEST(Printable, ShowsWhatATerminalWouldObey) {
  EXPECT_EQ(printable(u"a\u00f1\u4e2d\U0001F600 b"), u"a\u00f1\u4e2d\U0001F600 b");
  EXPECT_EQ(printable(u"\x1b[31m\x07\x7f\u0085"), u"\\x1b[31m\\x07\\x7f\\x85");
  EXPECT_EQ(printable(u"a\r\n\tb"), u"a\\x0d\\x0a\\x09b");
  EXPECT_EQ(printable(u"\u202Eb\u2066\u2028\u200F"), u"\\u202eb\\u2066\\u2028\\u200f");
  const char16_t lone[] = {u'a', 0xD800, u'b', 0xDC00, 0};
  EXPECT_EQ(printable(lone), u"a\\ud800b\\udc00");
}

class ConsoleTest : public testing::Test {
 protected:
  std::ostringstream out, err;
};

TEST_F(ConsoleTest, LeavesSecretsOutOfEveryLine) {
  Console console({out, err});
  console.secrets.add(u"geheim");
  console.say({u"with ", u"geheim"});
  console.complain({u"geheim."});
  console.complain_more({u"<geheim>"});
  EXPECT_EQ(out.str(), "with ***\n");
  EXPECT_EQ(err.str(), "qvrscript: ***.\n<***>\n");
}

TEST_F(ConsoleTest, HasColoursOnlyWhereTheStreamHasThem) {
  Console plain({out, err});
  plain.say({u"a"}, Colour::Red);
  Console coloured({out, err, false, true, false});
  coloured.say({u"b"}, Colour::Red);
  coloured.say({u"c"});
  coloured.complain_more({u"d"}, Colour::Green);
  EXPECT_EQ(out.str(), "a\n\x1b[31mb\x1b[0m\nc\n");
  EXPECT_EQ(err.str(), "d\n");
}

TEST_F(ConsoleTest, TakesTheStatusAwayBeforeALine) {
  Console console({out, err, true});
  console.status("[#]");
  console.status("[##]");
  console.say({u"a"});
  console.complain({u"b"});
  EXPECT_EQ(out.str(), "a\n");
  EXPECT_EQ(err.str(), "[#]\r   \r[##]\r    \rqvrscript: b\n");
}

TEST_F(ConsoleTest, ShowsNoStatusWithoutATerminal) {
  Console console({out, err});
  console.status("[#]");
  EXPECT_FALSE(console.shows_status());
  EXPECT_EQ(err.str(), "");
}

TEST_F(ConsoleTest, ItsListenerHearsLinesAndDocumentsWithoutColours) {
  Console console({out, err, false, true, true});
  std::string heard;
  console.listener = [&](std::string_view line) { heard += std::string(line) + "|"; };
  console.say({u"a"}, Colour::Red);
  console.complain({u"b"});
  console.document("{}");
  EXPECT_EQ(heard, "a|qvrscript: b|{}|");
}

}  // namespace
}  // namespace qvr::tests
