#include "script/preparation_model.h"

namespace qvr::tests {
namespace {

bool stands_at(TextView text, std::size_t at, TextView what) {
  if (text.size() - at < what.size()) return false;
  for (std::size_t i = 0; i < what.size(); ++i) {
    if (fold(text[at + i]) != fold(what[i])) return false;
  }
  return true;
}

}  // namespace

Text plainly_replaced(TextView text, TextView what, TextView by) {
  Text result;
  for (std::size_t at = 0; at < text.size();) {
    if (stands_at(text, at, what)) {
      result += by;
      at += what.size();
    } else {
      result += text[at++];
    }
  }
  return result;
}

Text plainly_encrypted(Text text) {
  text = plainly_replaced(text, u"\r\nAS\r\n", u"\r\nWITH ENCRYPTION AS\r\n");
  for (const Text kind : {u"FOR DELETE", u"FOR INSERT", u"FOR UPDATE", u"FOR INSERT, UPDATE, DELETE"}) {
    text = plainly_replaced(text, join({u"\r\n", kind, u"\r\nWITH ENCRYPTION AS\r\n"}),
                            join({u"\r\nWITH ENCRYPTION ", kind, u" AS\r\n"}));
  }
  return text;
}

Text plainly_filled(Text text, Engine motor, const ScriptAccounts& accounts, TextView hour) {
  text = plainly_replaced(text, u"[NombreBD]", accounts.NombreBaseOTablespace);
  if (motor == Engine::Oracle)
    text = plainly_replaced(text, u"[LogFile]", join({accounts.NombreBaseOTablespace, hour}));
  text = plainly_replaced(text, u"[UsuarioQVRAdm]", accounts.UsuarioQVRAdm);
  text = plainly_replaced(text, u"[ClaveUsuarioQVRAdm]", accounts.ClaveUsuarioQVRAdm);
  text = plainly_replaced(text, u"[UsuarioQVRCli]", accounts.UsuarioQVRCli);
  return plainly_replaced(text, u"[ClaveUsuarioQVRCli]", accounts.ClaveUsuarioQVRCli);
}

}  // namespace qvr::tests
