// Writing JSON.
#include "qvrscript/output/json.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "base/utf8.h"
#include "output/json_reader.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

using namespace script_tool;
using namespace std::string_view_literals;

TEST(JsonText, EscapesWhatCannotStandInIt) {
  const struct {
    TextView text, json;
  } rows[] = {
      {u"", u"\"\""},
      {u"a\"b\\c", u"\"a\\\"b\\\\c\""},
      {u"a\r\n\tb", u"\"a\\r\\n\\tb\""},
      {u"\x01\x1f\x7f\0"sv, u"\"\\u0001\\u001f\\u007f\\u0000\""},
      {u"Jam\u00f3n \U0001F600", u"\"Jam\u00f3n \U0001F600\""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(json_text(row.text), row.json) << to_utf8(row.text);
    EXPECT_EQ(read_json(to_utf8(row.json)).text(), to_utf8(row.text));
  }
}

TEST(JsonText, EscapesHalfCharacters) {
  const Text half{0xD83D}, other{u'a', 0xDE00, u'b'};
  EXPECT_EQ(json_text(half), u"\"\\ud83d\"");
  EXPECT_EQ(json_text(other), u"\"a\\ude00b\"");
}

TEST(JsonText, HoldsEveryUnit) {
  Text all;
  for (unsigned unit = 0; unit < 0x10000; ++unit) all.push_back(static_cast<char16_t>(unit));
  EXPECT_EQ(read_json(to_utf8(json_text(all))).text(), to_utf8(all));
}

TEST(Json, IsPutTogether) {
  const Text object = json_object({json_member(u"a b", json_number(12)), json_member(u"c", json_truth(false)),
                                   json_member(u"d", json_array({json_text(u"x"), Text(u"null")}))});
  EXPECT_EQ(object, u"{\"a b\":12,\"c\":false,\"d\":[\"x\",null]}");
  EXPECT_EQ(json_array({}), u"[]");
}

struct NoJson {
  const char* name;
  std::string text;
};

const NoJson kNoJson[] = {
    {"nothing", ""},
    {"object never closed", "{"},
    {"comma at the end of an array", "[1,]"},
    {"comma at the end of an object", "{\"a\":1,}"},
    {"text never closed", "\"a"},
    {"line feed in a text", "\"\n\""},
    {"unknown escape", "\"\\x\""},
    {"two values", "[1] 2"},
    {"member twice", "{\"a\":1,\"a\":2}"},
    {"word cut", "tru"},
};

using JsonReader = Rows<testing::Test, NoJson>;

TEST_P(JsonReader, RefusesWhatIsNoJson) { EXPECT_THROW(read_json(GetParam().text), std::runtime_error); }

INSTANTIATE_TEST_SUITE_P(, JsonReader, testing::ValuesIn(kNoJson), row_name);

}  // namespace
}  // namespace qvr::tests
