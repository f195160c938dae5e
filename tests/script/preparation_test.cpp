// What is done to the text of scripts: the encryption clause and the bracketed words, pass by pass.
#include "script/loading_fixture.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

// Rows show a line break as "|".
Text lines(TextView text) { return replace_all(text, u"|", kLineBreak); }

class PreparationTest : public LoadingTest {
 protected:
  Text encrypted(TextView text) { return with_encryption(Text(text), events); }
  Text filled(TextView text) { return with_accounts(Text(text), motor, accounts, events); }
};

struct Row {
  const char* name;
  TextView before, after;
};

constexpr Row kEncryption[] = {
    {"nothing", u"", u""},
    {"procedure", u"create procedure P|AS|select 1|", u"create procedure P|WITH ENCRYPTION AS|select 1|"},
    {"small letters", u"|as|", u"|WITH ENCRYPTION AS|"},
    {"mixed letters", u"|aS|x|As|", u"|WITH ENCRYPTION AS|x|WITH ENCRYPTION AS|"},
    {"first line", u"AS|", u"AS|"},
    {"last line without its end", u"x|AS", u"x|AS"},
    {"blank before", u"| AS|", u"| AS|"},
    {"blank behind", u"|AS |", u"|AS |"},
    {"tabulator", u"|\tAS|", u"|\tAS|"},
    {"longer words", u"|ASC|BAS|", u"|ASC|BAS|"},
    {"lone line feeds", u"\nAS\n", u"\nAS\n"},
    {"lone line feed behind", u"|AS\n", u"|AS\n"},
    {"wide letters", u"|\uff21\uff33|", u"|\uff21\uff33|"},
    {"blank line between two", u"|AS||AS|", u"|WITH ENCRYPTION AS||WITH ENCRYPTION AS|"},
    {"two that share a line break", u"|AS|AS|", u"|WITH ENCRYPTION AS|AS|"},
    {"three that share line breaks", u"|AS|AS|AS|", u"|WITH ENCRYPTION AS|AS|WITH ENCRYPTION AS|"},
    {"delete", u"T|FOR DELETE|AS|x", u"T|WITH ENCRYPTION FOR DELETE AS|x"},
    {"insert", u"T|FOR INSERT|AS|x", u"T|WITH ENCRYPTION FOR INSERT AS|x"},
    {"update", u"T|FOR UPDATE|AS|x", u"T|WITH ENCRYPTION FOR UPDATE AS|x"},
    {"all three", u"T|FOR INSERT, UPDATE, DELETE|AS|x", u"T|WITH ENCRYPTION FOR INSERT, UPDATE, DELETE AS|x"},
    {"all three in small letters", u"|for insert, update, delete|as|",
     u"|WITH ENCRYPTION FOR INSERT, UPDATE, DELETE AS|"},
    {"no blanks", u"|FOR INSERT,UPDATE,DELETE|AS|", u"|FOR INSERT,UPDATE,DELETE|WITH ENCRYPTION AS|"},
    {"another order", u"|FOR UPDATE, INSERT, DELETE|AS|", u"|FOR UPDATE, INSERT, DELETE|WITH ENCRYPTION AS|"},
    {"two of three", u"|FOR INSERT, UPDATE|AS|", u"|FOR INSERT, UPDATE|WITH ENCRYPTION AS|"},
    {"two blanks", u"|FOR  DELETE|AS|", u"|FOR  DELETE|WITH ENCRYPTION AS|"},
    {"blank at the end of the line", u"|FOR DELETE |AS|", u"|FOR DELETE |WITH ENCRYPTION AS|"},
    {"blank line between", u"|FOR DELETE||AS|", u"|FOR DELETE||WITH ENCRYPTION AS|"},
    {"more on the line", u"|on T FOR DELETE|AS|", u"|on T FOR DELETE|WITH ENCRYPTION AS|"},
    {"first line of the text", u"FOR DELETE|AS|", u"FOR DELETE|WITH ENCRYPTION AS|"},
    {"no body", u"|FOR DELETE|", u"|FOR DELETE|"},
    {"clause of the author", u"|FOR UPDATE|with encryption as|", u"|WITH ENCRYPTION FOR UPDATE AS|"},
    {"clause of the author in its place", u"|WITH ENCRYPTION FOR UPDATE AS|", u"|WITH ENCRYPTION FOR UPDATE AS|"},
    {"two triggers that share a line break", u"|FOR DELETE|AS|FOR DELETE|AS|",
     u"|WITH ENCRYPTION FOR DELETE AS|FOR DELETE|WITH ENCRYPTION AS|"},
    {"different ones that share it", u"|FOR INSERT|AS|FOR DELETE|AS|FOR UPDATE|AS|",
     u"|WITH ENCRYPTION FOR INSERT AS|WITH ENCRYPTION FOR DELETE AS|WITH ENCRYPTION FOR UPDATE AS|"},
};

using EncryptionClause = Rows<PreparationTest, Row>;

TEST_P(EncryptionClause, StandsWhereTheServerWantsIt) {
  EXPECT_EQ(encrypted(lines(GetParam().before)), lines(GetParam().after));
  EXPECT_EQ(taken().size(), 5u) << "every step is told, whatever there is to do";
}

INSTANTIATE_TEST_SUITE_P(, EncryptionClause, testing::ValuesIn(kEncryption), row_name);

TEST_F(PreparationTest, OnlySqlServerEncryptsAndOnlyWhenAsked) {
  for (Engine engine : {Engine::Jet, Engine::SqlServer, Engine::Oracle}) {
    for (const bool asked : {false, true}) {
      SCOPED_TRACE(testing::Message() << "engine " << number_of(engine) << (asked ? ", asked" : ""));
      motor = engine, encrypt = asked;
      for (TextView tag : {u"JET", u"SQL", u"ORA"}) put(join({u"Gestion", tag, u"1.cfc"}), "create\nas\nx");
      EXPECT_EQ(definition(),
                lines(engine == Engine::SqlServer && asked ? u"create|WITH ENCRYPTION AS|x|" : u"create|as|x|"));
    }
  }
}

TEST_F(PreparationTest, TheClauseIsFoundAcrossFilesButNotInWhatIsFilledIn) {
  encrypt = true;
  accounts.NombreBaseOTablespace = u"AS";
  put(u"GestionSQL1.cfc", "trigger\nFOR DELETE");
  put(u"GestionSQL2.cfc", "AS\n[NombreBD]\n[UsuarioQVRAdm]");
  accounts.UsuarioQVRAdm = lines(u"|AS|");
  EXPECT_EQ(definition(), lines(u"trigger|WITH ENCRYPTION FOR DELETE AS|AS||AS||"));
}

constexpr TextView kWords[] = {u"[NombreBD]",           u"[LogFile]",       u"[UsuarioQVRAdm]",
                               u"[ClaveUsuarioQVRAdm]", u"[UsuarioQVRCli]", u"[ClaveUsuarioQVRCli]"};

TEST_F(PreparationTest, EachWordInAnyCaseForEachEngine) {
  for (Engine engine : {Engine::None, Engine::Jet, Engine::SqlServer, Engine::Oracle, Engine{4}, Engine{-3}}) {
    motor = engine;
    const Text values[] = {u"Ventas",   engine == Engine::Oracle ? u"Ventas1200" : u"", u"adm", u"adm clave", u"cli",
                           u"cli clave"};
    for (std::size_t i = 0; i < std::size(kWords); ++i) {
      Text upper(kWords[i]), lower(kWords[i]);
      for (char16_t& unit : upper) unit = fold(unit);
      for (char16_t& unit : lower) unit = unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32) : unit;
      for (const Text& word : {Text(kWords[i]), upper, lower}) {
        SCOPED_TRACE(testing::Message() << "engine " << number_of(engine) << " " << to_utf8(word));
        const Text expected = values[i].empty() ? word : values[i];
        EXPECT_EQ(filled(word), expected);
        EXPECT_EQ(filled(join({u"a ", word, word, u"\r\n[", word, u"]"})),
                  join({u"a ", expected, expected, u"\r\n[", expected, u"]"}));
      }
    }
  }
}

struct NoWord {
  const char* name;
  TextView text;
};

constexpr NoWord kNoWords[] = {
    {"nothing", u""},
    {"brackets alone", u"[]"},
    {"another word", u"[Otro]"},
    {"not closed", u"[NombreBD"},
    {"not opened", u"NombreBD]"},
    {"blank before", u"[ NombreBD]"},
    {"blank inside", u"[Nombre BD]"},
    {"blank behind", u"[NombreBD ]"},
    {"other brackets", u"(NombreBD)"},
    {"letter behind", u"[NombreBDs]"},
    {"part of a word", u"[Usuario]"},
    {"accent", u"[N\u00f3mbreBD]"},
    {"accent at the end", u"[LogFil\u00e9]"},
    {"line break inside", u"[Nombre\r\nBD]"},
};

using NoSuchWord = Rows<PreparationTest, NoWord>;

TEST_P(NoSuchWord, Stays) {
  motor = Engine::Oracle;
  EXPECT_EQ(filled(GetParam().text), Text(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(, NoSuchWord, testing::ValuesIn(kNoWords), row_name);

TEST_F(PreparationTest, TheLogFileHasTheHourAndMinute) {
  struct Moment {
    const char* name;
    double days;
    TextView after;
  };
  constexpr Moment kMoments[] = {
      {"noon", 40548.5, u"1200"},
      {"midnight", 40548, u"0000"},
      {"leading zeros", 40548 + (5 * 60 + 7) / 1440.0, u"0507"},
      {"seconds are left out", 40548 + (9 * 3600 + 59 * 60 + 59) / 86400.0, u"0959"},
      {"last minute", 40548 + 86399 / 86400.0, u"2359"},
      {"before the first day", -1.25, u"0600"},
  };
  motor = Engine::Oracle;
  for (const Moment& moment : kMoments) {
    SCOPED_TRACE(moment.name);
    thread.system.moment = Date{moment.days};
    EXPECT_EQ(filled(u"[LogFile].log"), join({u"Ventas", moment.after, u".log"}));
  }
}

struct Chain {
  const char* name;
  ScriptAccounts accounts;
  TextView before, after;
};

const Chain kChains[] = {
    {"the next one", {u"[UsuarioQVRAdm]", u"adm", u"", u"", u""}, u"x [NombreBD]", u"x adm"},
    {"through all of them",
     {u"[LogFile]", u"[claveusuarioQVRAdm]", u"[UsuarioQVRCli]", u"[ClaveUsuarioQVRCli]", u"end"},
     u"[NombreBD]/[UsuarioQVRAdm]",
     u"[LogFile]1200/end"},
    {"an earlier one stays",
     {u"base", u"", u"[NombreBD]", u"[ClaveUsuarioQVRAdm]", u"[UsuarioQVRCli]"},
     u"[ClaveUsuarioQVRAdm]/[UsuarioQVRCli]/[ClaveUsuarioQVRCli]",
     u"[NombreBD]/[ClaveUsuarioQVRAdm]/[UsuarioQVRCli]"},
    {"itself stays", {u"[NombreBD][NombreBD]", u"", u"", u"", u""}, u"[NombreBD]", u"[NombreBD][NombreBD]"},
    {"a word put together", {u"Usuario", u"adm", u"", u"", u""}, u"[[NombreBD]QVRAdm]", u"adm"},
    {"a word put together too late", {u"base", u"Nombre", u"", u"", u""}, u"[[UsuarioQVRAdm]BD]", u"[NombreBD]"},
    {"a word inside a word", {u"", u"adm", u"", u"", u""}, u"[Usuario[NombreBD]QVRAdm]", u"adm"},
    {"no values", {}, u"<[NombreBD]|[UsuarioQVRAdm]|[ClaveUsuarioQVRCli]>", u"<||>"},
    {"signs of other languages", {u"$1 \\1 %s & 'x' \"", u"", u"", u"", u""}, u"[NombreBD]", u"$1 \\1 %s & 'x' \""},
    {"line breaks", {u"a\r\nGO\r\nb", u"", u"", u"", u""}, u"[NombreBD]", u"a\r\nGO\r\nb"},
    {"other letters", {u"\u00f1 \u65e5 \U0001F4C1", u"", u"", u"", u""}, u"[NombreBD]", u"\u00f1 \u65e5 \U0001F4C1"},
};

using FilledInValue = Rows<PreparationTest, Chain>;

TEST_P(FilledInValue, IsSeenByLaterPassesOnly) {
  motor = Engine::Oracle;
  accounts = GetParam().accounts;
  EXPECT_EQ(filled(GetParam().before), Text(GetParam().after));
}

INSTANTIATE_TEST_SUITE_P(, FilledInValue, testing::ValuesIn(kChains), row_name);

}  // namespace
}  // namespace qvr::tests
