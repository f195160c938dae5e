#include "script/script_preparation.h"

#include "base/date_text.h"
#include "session/thread_state.h"

namespace qvr {
namespace {

struct Rewrite {
  TextView find, replacement;
};

constexpr Rewrite kEncryption[] = {
    {u"\r\nAS\r\n", u"\r\nWITH ENCRYPTION AS\r\n"},
    {u"\r\nFOR DELETE\r\nWITH ENCRYPTION AS\r\n", u"\r\nWITH ENCRYPTION FOR DELETE AS\r\n"},
    {u"\r\nFOR INSERT\r\nWITH ENCRYPTION AS\r\n", u"\r\nWITH ENCRYPTION FOR INSERT AS\r\n"},
    {u"\r\nFOR UPDATE\r\nWITH ENCRYPTION AS\r\n", u"\r\nWITH ENCRYPTION FOR UPDATE AS\r\n"},
    {u"\r\nFOR INSERT, UPDATE, DELETE\r\nWITH ENCRYPTION AS\r\n",
     u"\r\nWITH ENCRYPTION FOR INSERT, UPDATE, DELETE AS\r\n"},
};

void tell_step(ScriptEvents& events, std::size_t step, std::size_t of) {
  events.Progreso(
      join({u"Procesando ", decimal(static_cast<std::int64_t>(step)), u"/", decimal(static_cast<std::int64_t>(of))}));
}

Text replaced(Text text, TextView what, TextView by) {
  if (find_no_case(text, what) == Text::npos) return text;  // do not copy a long text for nothing
  return replace_all_no_case(text, what, by);
}

}  // namespace

Text with_encryption(Text text, ScriptEvents& events) {
  std::size_t step = 0;
  for (const Rewrite& rewrite : kEncryption) {
    tell_step(events, ++step, std::size(kEncryption));
    text = replaced(std::move(text), rewrite.find, rewrite.replacement);
  }
  return text;
}

Text with_accounts(Text text, Engine MotorBD, const ScriptAccounts& accounts, ScriptEvents& events) {
  const bool oracle = MotorBD == Engine::Oracle;
  const Text log_file = oracle ? accounts.NombreBaseOTablespace +
                                     formatted_date(thread_state().platform().system.now(), u"hhnn")
                               : Text();
  const struct {
    Rewrite word;
    bool wanted;
  } words[] = {
      {{u"[NombreBD]", accounts.NombreBaseOTablespace}, true},
      {{u"[LogFile]", log_file}, oracle},
      {{u"[UsuarioQVRAdm]", accounts.UsuarioQVRAdm}, true},
      {{u"[ClaveUsuarioQVRAdm]", accounts.ClaveUsuarioQVRAdm}, true},
      {{u"[UsuarioQVRCli]", accounts.UsuarioQVRCli}, true},
      {{u"[ClaveUsuarioQVRCli]", accounts.ClaveUsuarioQVRCli}, true},
  };
  std::size_t step = 0;
  for (const auto& [word, wanted] : words) {
    ++step;
    if (!wanted) continue;
    tell_step(events, step, std::size(words));
    text = replaced(std::move(text), word.find, word.replacement);
  }
  return text;
}

}  // namespace qvr
