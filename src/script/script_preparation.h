// What is done to the text of scripts between their files and their run.
#pragma once

#include <cstdint>

#include "script/qvrscr.h"

namespace qvr {

// What takes the place of the bracketed words in a script.
struct ScriptAccounts {
  Text NombreBaseOTablespace;
  Text UsuarioQVRAdm, ClaveUsuarioQVRAdm;
  Text UsuarioQVRCli, ClaveUsuarioQVRCli;
  ~ScriptAccounts() {
    wipe(ClaveUsuarioQVRAdm);
    wipe(ClaveUsuarioQVRCli);
  }
};

// Puts WITH ENCRYPTION before every line that holds only AS, and before the FOR line of a trigger, as SQL Server wants
// it. Tells each step.
Text with_encryption(Text text, ScriptEvents& events);

// Replaces the bracketed words in their order, each over what the ones before left. Tells each step.
Text with_accounts(Text text, Engine MotorBD, const ScriptAccounts& accounts, ScriptEvents& events);

}  // namespace qvr
