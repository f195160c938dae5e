// Preparation of scripts compared with its reference model.
#include "base/date_text.h"
#include "fuzz/fuzz_input.h"
#include "fuzz/fuzz_thread.h"
#include "script/preparation_model.h"

namespace qvr::tests {
namespace {

struct Steps final : ScriptEvents {
  void Progreso(const Text&) noexcept override { ++told; }
  void Terminado(bool) noexcept override { require(false, "preparing ends nothing"); }
  int told = 0;
};

}  // namespace

// Engine, five account texts, then the script, in which a line end is typed as one.
void fuzz(FuzzInput& input) {
  fuzz_thread().speak(0);
  const auto motor = static_cast<Engine>(input.choice("0123"));
  ScriptAccounts accounts;
  for (Text* account : {&accounts.NombreBaseOTablespace, &accounts.UsuarioQVRAdm, &accounts.ClaveUsuarioQVRAdm,
                        &accounts.UsuarioQVRCli, &accounts.ClaveUsuarioQVRCli}) {
    *account = input.text();
  }
  const Text text = replace_all(input.text(), u"\n", u"\r\n");
  Steps steps;
  require(with_encryption(text, steps) == plainly_encrypted(text), "encrypted as plainly", {text});
  require(steps.told == 5, "each pass is told");
  steps.told = 0;
  const Text filled = with_accounts(text, motor, accounts, steps);
  require(filled == plainly_filled(text, motor, accounts, u"1200"), "filled in as plainly", {text, filled});
  require(steps.told == (motor == Engine::Oracle ? 6 : 5), "each word is told");
}

}  // namespace qvr::tests
