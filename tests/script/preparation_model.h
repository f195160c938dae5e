// A naive reference model of the preparation of scripts.
#pragma once

#include "script/script_preparation.h"

namespace qvr::tests {

Text plainly_replaced(TextView text, TextView what, TextView by);
Text plainly_encrypted(Text text);
// `hour` is what a log file's name ends in.
Text plainly_filled(Text text, Engine motor, const ScriptAccounts& accounts, TextView hour);

}  // namespace qvr::tests
