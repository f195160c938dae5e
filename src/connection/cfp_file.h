// The ".cfp" file: ten protected lines, the last of which checks the other nine.
#pragma once

#include <string>

#include "connection/qvrcfp.h"
#include "platform/platform.h"
#include "services/text_protection.h"

namespace qvr {

Text cfp_path(TextView folder, TextView name);

// The parameters, without Archivo. Throws when there are fewer than ten lines, one is longer than 16 MiB, the first is
// no number, the protection cannot decrypt one, or the check line does not match.
ConnectionParameters read_cfp(InputFile& file, Files& encoding, services::TextProtection& protection, TextView key);

// The file's bytes for these parameters, which reading would give back. Throws when the protection's lines are not so.
std::string cfp_bytes(const ConnectionParameters& parameters, Files& encoding, services::TextProtection& protection,
                      TextView key);

}  // namespace qvr
