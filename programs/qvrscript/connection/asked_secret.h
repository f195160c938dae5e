// Secrets that stand in an environment variable or are typed on the terminal.
#pragma once

#include <optional>

#include "base/secret_text.h"
#include "qvrscript/output/console.h"
#include "qvrscript/surroundings.h"

namespace qvr::script_tool {

struct SecretQuestion {
  std::optional<Text> variable;  // nothing: it is asked for
  TextView option;               // that names a variable, such as "--id-env"
  Text prompt;
  bool twice = false;  // a new one, which a slip of the fingers must not change
};

// The console's secrets have it from then on. Throws UsageFailure where the variable is not set, where there is nobody
// to ask, or where two answers differ.
SecretText asked_secret(const SecretQuestion& question, const Surroundings& surroundings, Console& console);

// The same for an identification, which must not be empty: also throws UsageFailure for that.
SecretText asked_identification(const std::optional<Text>& variable, const Surroundings& surroundings,
                                Console& console);
SecretText asked_new_identification(const std::optional<Text>& variable, TextView option,
                                    const Surroundings& surroundings, Console& console);

}  // namespace qvr::script_tool
