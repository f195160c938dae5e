// Preparation of the text of scripts before a run.
#pragma once

#include <cstdint>

#include "script/qvrscr.h"

namespace qvr {

// The replacements of the bracketed words.
struct ScriptAccounts {
  Text NombreBaseOTablespace;
  Text UsuarioQVRAdm, ClaveUsuarioQVRAdm;
  Text UsuarioQVRCli, ClaveUsuarioQVRCli;
  ~ScriptAccounts() {
    wipe(ClaveUsuarioQVRAdm);
    wipe(ClaveUsuarioQVRCli);
  }
};

// Inserts WITH ENCRYPTION before every line that holds only AS, and before the FOR line of a trigger, where SQL Server
// requires it. Reports progress.
Text with_encryption(Text text, ScriptEvents& events);

// Replaces the bracketed words in order, each in the result of the previous replacement. Reports progress.
Text with_accounts(Text text, Engine MotorBD, const ScriptAccounts& accounts, ScriptEvents& events);

}  // namespace qvr
