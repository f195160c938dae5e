// The rules of the check by name: what the help, the formats for machines and the manual tell of them.
#pragma once

#include <span>
#include <string_view>

#include "qvrscript/command_line/requests.h"

namespace qvr::script_tool {

struct Rule {
  std::string_view name;
  Severity severity;
  std::string_view group;    // a heading of the help
  std::string_view summary;  // what happens at run time, in a few words
};

// The group whose rules are of no use where nothing is encrypted.
inline constexpr std::string_view kEncryptionRules =
    "Encryption (SQL Server): AS alone on its line becomes WITH ENCRYPTION AS";

// All of them, by group.
std::span<const Rule> rules();

// Null for no rule of this name.
const Rule* rule_named(std::string_view name);

}  // namespace qvr::script_tool
