// The preparation of scripts compared with its reference model, and on large texts.
#include <random>

#include "script/loading_fixture.h"
#include "script/preparation_model.h"

namespace qvr::tests {
namespace {

class PreparationModelTest : public LoadingTest {};

template <std::size_t N>
Text random_text(std::mt19937& random, const TextView (&pieces)[N], std::size_t longest) {
  std::uniform_int_distribution<std::size_t> length(0, longest), piece(0, N - 1);
  Text text;
  for (std::size_t left = length(random); left > 0; --left) text += pieces[piece(random)];
  return text;
}

TEST_F(PreparationModelTest, EncryptsAsThePlainPassesDo) {
  constexpr TextView kPieces[] = {u"\r\n",
                                  u"\r\n",
                                  u"\r\n",
                                  u"\r",
                                  u"\n",
                                  u"AS",
                                  u"as",
                                  u"As",
                                  u" ",
                                  u"FOR DELETE",
                                  u"FOR INSERT",
                                  u"for update",
                                  u"For Insert, Update, Delete",
                                  u", UPDATE",
                                  u"WITH ENCRYPTION AS",
                                  u"\r\nAS\r\n",
                                  u"\r\nFOR UPDATE\r\nAS\r\n",
                                  u"x",
                                  u"\u00e1s"};
  std::mt19937 random(20260102);
  int changed = 0, moved = 0;
  for (int round = 0; round < 20000; ++round) {
    const Text text = random_text(random, kPieces, 16), expected = plainly_encrypted(text);
    ASSERT_EQ(with_encryption(text, events), expected) << testing::PrintToString(text);
    changed += text != expected;
    moved += find_no_case(expected, u"WITH ENCRYPTION FOR") != Text::npos;
  }
  EXPECT_GT(changed, 5000);
  EXPECT_GT(moved, 2000);
}

// Values of the same pieces as the texts: they hold words, and make words with what stands around them.
TEST_F(PreparationModelTest, FillsInAsThePlainPassesDo) {
  constexpr TextView kPieces[] = {u"[",
                                  u"]",
                                  u"[NombreBD]",
                                  u"[nombrebd]",
                                  u"NombreBD",
                                  u"[LogFile]",
                                  u"[LOGFILE]",
                                  u"Log",
                                  u"File]",
                                  u"[UsuarioQVRAdm]",
                                  u"Usuario",
                                  u"QVRAdm]",
                                  u"[Clave",
                                  u"[CLAVE",
                                  u"[ClaveUsuarioQVRAdm]",
                                  u"[UsuarioQVRCli]",
                                  u"[ClaveUsuarioQVRCli]",
                                  u"QVRCli]",
                                  u"x",
                                  u" ",
                                  u"\u00f1",
                                  u"1200"};
  std::mt19937 random(20260103);
  int changed = 0;
  for (int round = 0; round < 20000; ++round) {
    const auto value = [&] { return random_text(random, kPieces, 3); };
    accounts = {value(), value(), value(), value(), value()};
    motor = static_cast<Engine>(round % 5);
    const Text text = random_text(random, kPieces, 12), expected = plainly_filled(text, motor, accounts, u"1200");
    ASSERT_EQ(with_accounts(text, motor, accounts, events), expected) << testing::PrintToString(text);
    changed += text != expected;
  }
  EXPECT_GT(changed, 10000);
}

constexpr std::size_t kLargeUnits = std::size_t{QVR_TESTS_LARGE_TEXT_MIB} * 1024 * 1024 / 10 / sizeof(char16_t);

// The piece again and again, up to the large size, and how many of them.
Text repeated(TextView piece, std::size_t& count) {
  Text text;
  text.reserve(kLargeUnits + piece.size());
  for (count = 0; text.size() < kLargeUnits; ++count) text += piece;
  return text;
}

TEST_F(PreparationModelTest, PreparesALargeTextFullOfReplacements) {
  constexpr TextView kPiece = u"trigger [NombreBD]\r\nFOR DELETE\r\nAS\r\ngrant [UsuarioQVRCli]\r\nGO\r\n";
  constexpr TextView kPrepared = u"trigger Ventas\r\nWITH ENCRYPTION FOR DELETE AS\r\ngrant cli\r\nGO\r\n";
  std::size_t count = 0;
  const Text prepared = with_accounts(with_encryption(repeated(kPiece, count), events), motor, accounts, events);
  ASSERT_EQ(prepared.size(), count * kPrepared.size());
  for (std::size_t at = 0; at < prepared.size(); at += kPrepared.size()) {
    ASSERT_EQ(TextView(prepared).substr(at, kPrepared.size()), kPrepared) << at;
  }
}

TEST_F(PreparationModelTest, GetsThroughLargeTextsOfNearMisses) {
  motor = Engine::Oracle;
  for (const TextView piece :
       {u"[", u"\r\n", u"\r\nA", u"\r\nAS\r", u"[ClaveUsuarioQVRCl", u"\r\nFOR INSERT, UPDATE\r\n"}) {
    SCOPED_TRACE(testing::PrintToString(piece));
    std::size_t count = 0;
    const Text text = repeated(piece, count);
    EXPECT_TRUE(with_accounts(with_encryption(text, events), motor, accounts, events) == text);
  }
}

TEST_F(PreparationModelTest, LoadsALargeFile) {
  std::size_t count = 0;
  put(u"GestionSQL1.cfc", to_utf8(repeated(u"insert [NombreBD]\n", count)));
  put(u"GestionSQL2.cfc", "end");
  const Text text = definition();
  EXPECT_EQ(text.size(), count * TextView(u"insert Ventas\r\n").size() + TextView(u"\r\nend\r\n").size());
  EXPECT_TRUE(text.ends_with(u"insert Ventas\r\n\r\nend\r\n"));
}

}  // namespace
}  // namespace qvr::tests
