// What makes an empty database that of this program, written for the engine of the parameters.
#pragma once

#include <QVRlib21.hpp>

#include <string>

namespace list_form {

inline constexpr long kVersion = 1;

// Commands with lines GO between them; the last one tells the version, so that only a whole update has it.
std::wstring update_commands(const qvrlib21::QVRcfp& parameters);

}  // namespace list_form
