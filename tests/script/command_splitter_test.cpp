#include "script/command_splitter.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

std::vector<Text> commands_of(TextView text) {
  std::vector<Text> commands;
  CommandSplitter splitter(text);
  while (const auto command = splitter.next()) commands.emplace_back(*command);
  return commands;
}

struct Row {
  const char* name;
  Text text;
  std::int32_t separators;
  std::vector<Text> commands;
};

const Row kRows[] = {
    {"empty", u"", 0, {}},
    {"no separator", u"SELECT 1", 0, {}},
    {"one", u"A\r\nGO\r\n", 1, {u"A"}},
    {"last command without one", u"A\r\nGO\r\nB", 1, {u"A"}},
    {"cut separator at the end", u"A\r\nGO\r", 0, {}},
    {"separator without its line end", u"A\r\nGO", 0, {}},
    {"two", u"A\r\nGO\r\nB\r\nGO\r\n", 2, {u"A", u"B"}},
    {"lower case", u"A\r\ngo\r\nB\r\nGo\r\nC\r\ngO\r\n", 3, {u"A", u"B", u"C"}},
    {"two blank lines between", u"A\r\nGO\r\n\r\n\r\nB\r\nGO\r\n", 2, {u"A", u"B"}},
    {"blank lines before the separator belong to the command", u"A\r\n\r\n\r\nGO\r\n", 1, {u"A\r\n\r\n"}},
    {"separator alone", u"\r\nGO\r\n", 1, {u""}},
    {"first line GO is part of the first command", u"GO\r\nA\r\nGO\r\n", 1, {u"GO\r\nA"}},
    {"first line GO alone", u"GO\r\n", 0, {}},
    {"overlapping separators count but do not run", u"A\r\nGO\r\nGO\r\n", 2, {u"A"}},
    {"three overlapping", u"A\r\nGO\r\nGO\r\nGO\r\n", 3, {u"A", u"GO"}},
    {"command behind overlapping ones", u"A\r\nGO\r\nGO\r\nB\r\nGO\r\n", 3, {u"A", u"GO\r\nB"}},
    {"blank line between two separators", u"A\r\nGO\r\n\r\nGO\r\n", 2, {u"A"}},
    {"blank behind GO", u"A\r\nGO \r\nB\r\nGO\r\n", 1, {u"A\r\nGO \r\nB"}},
    {"blank before GO", u"A\r\n GO\r\n", 0, {}},
    {"word that begins with GO", u"A\r\nGOTO\r\nGO\r\n", 1, {u"A\r\nGOTO"}},
    {"word that ends with GO", u"A\r\nEGO\r\nGO\r\n", 1, {u"A\r\nEGO"}},
    {"lone line feeds", u"A\nGO\nB\r\nGO\r\n", 1, {u"A\nGO\nB"}},
    {"line feeds behind the separator are kept", u"A\r\nGO\r\n\nB\r\nGO\r\n", 2, {u"A", u"\nB"}},
    {"carriage return behind the separator is kept", u"A\r\nGO\r\n\rB\r\nGO\r\n", 2, {u"A", u"\rB"}},
    {"full width letters", u"A\r\n\uff27\uff2f\r\n", 0, {}},
    {"units that share low bits with G and O", u"A\r\n\u0147\u014f\r\nB\r\n'/\r\n", 0, {}},
    {"zero units", Text(u"A\0\r\nGO\r\n", 8), 1, {Text(u"A\0", 2)}},
};

using CommandsOf = Rows<testing::Test, Row>;

TEST_P(CommandsOf, AreCountedAndWalked) {
  EXPECT_EQ(count_separators(GetParam().text), GetParam().separators);
  EXPECT_EQ(commands_of(GetParam().text), GetParam().commands);
}

INSTANTIATE_TEST_SUITE_P(, CommandsOf, testing::ValuesIn(kRows), row_name);

TEST(CommandSplitter, StaysAtItsEnd) {
  CommandSplitter splitter(u"A\r\nGO\r\n");
  EXPECT_TRUE(splitter.next());
  EXPECT_FALSE(splitter.next());
  EXPECT_FALSE(splitter.next());
}

TEST(FindSeparator, LooksAtOrAfterAPosition) {
  constexpr TextView kText = u"A\r\nGO\r\nB\r\nGO\r\n";
  EXPECT_EQ(find_separator(kText, 0), 1u);
  EXPECT_EQ(find_separator(kText, 1), 1u);
  EXPECT_EQ(find_separator(kText, 2), 8u);
  EXPECT_EQ(find_separator(kText, 9), TextView::npos);
  EXPECT_EQ(find_separator(kText, kText.size()), TextView::npos);
  EXPECT_EQ(find_separator(u"", 0), TextView::npos);
}

// A naive reference implementation.
bool separator_starts_at(TextView text, std::size_t at) {
  return at + 6 <= text.size() && equal_no_case(text.substr(at, 6), u"\r\nGO\r\n");
}

std::size_t plain_find(TextView text, std::size_t from) {
  for (std::size_t at = from; at < text.size(); ++at) {
    if (separator_starts_at(text, at)) return at;
  }
  return TextView::npos;
}

std::int32_t plain_count(TextView text) {
  std::int32_t count = 0;
  for (std::size_t at = 0; at < text.size(); ++at) count += separator_starts_at(text, at) ? 1 : 0;
  return count;
}

std::vector<Text> plain_commands(TextView text) {
  std::vector<Text> commands;
  std::size_t start = 0;
  for (std::size_t at = plain_find(text, start); at != TextView::npos; at = plain_find(text, start)) {
    commands.emplace_back(text.substr(start, at - start));
    start = at + 4;
    while (text.substr(start, 2) == u"\r\n") start += 2;
  }
  return commands;
}

// Units that a separator is made of, singly and in its order, so that separators and near misses are frequent.
Text random_script(std::mt19937& random) {
  constexpr TextView kPieces[] = {u"\r", u"\n", u"G", u"O", u"g", u"o", u"x", u"\r\n", u"GO", u"\r\nGO\r\n", u"GO\r\n"};
  std::uniform_int_distribution<std::size_t> length(0, 24), piece(0, std::size(kPieces) - 1);
  Text text;
  for (std::size_t left = length(random); left > 0; --left) text += kPieces[piece(random)];
  return text;
}

TEST(CommandSplitter, AgreesWithThePlainDefinitionOnRandomTexts) {
  std::mt19937 random(20260101);
  std::int64_t separators = 0;
  for (int round = 0; round < 60000; ++round) {
    const Text text = random_script(random);
    ASSERT_EQ(count_separators(text), plain_count(text)) << ::testing::PrintToString(text);
    ASSERT_EQ(commands_of(text), plain_commands(text)) << ::testing::PrintToString(text);
    separators += plain_count(text);
  }
  EXPECT_GT(separators, 60000);
}

TEST(CommandSplitter, WalksAVeryLargeText) {
  constexpr std::size_t kUnits = std::size_t{QVR_TESTS_LARGE_TEXT_MIB} * 1024 * 1024 / sizeof(char16_t);
  const Text command = u"INSERT INTO T (A, B) VALUES (1, 'some words')";
  const Text piece = command + u"\r\nGO\r\n\r\n";
  Text text;
  text.reserve(kUnits + piece.size());
  std::int32_t expected = 0;
  for (; text.size() < kUnits; ++expected) text += piece;
  EXPECT_EQ(count_separators(text), expected);
  CommandSplitter splitter(text);
  std::int32_t walked = 0;
  while (const auto next = splitter.next()) {
    if (*next == command) ++walked;
  }
  EXPECT_EQ(walked, expected);
}

TEST(CommandSplitter, GetsThroughALargeTextOfBlankLines) {
  Text text = u"A\r\nGO";
  while (text.size() < (std::size_t{1} << 20)) text += kLineBreak;
  text += u"B\r\nGO\r\n";
  EXPECT_EQ(count_separators(text), 2);
  EXPECT_EQ(commands_of(text), (std::vector<Text>{u"A", u"B"}));
}

}  // namespace
}  // namespace qvr::tests
