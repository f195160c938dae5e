// Decoding of script files.
#pragma once

#include <string_view>

#include "platform/platform.h"

namespace qvr::services {

enum class ScriptEncoding { Utf8, Utf8WithMark, Utf16LittleEndian, Utf16BigEndian, SystemPage };

// By the byte-order mark; without one UTF-8 if the bytes are valid UTF-8, else the system's ANSI code page.
ScriptEncoding encoding_of(std::string_view bytes);

// The decoded text without its byte-order mark. Throws failure 75 for invalid input: half a code unit, a lone
// surrogate, a NUL byte without a byte-order mark (UTF-16, or a binary file).
Text decoded_script(std::string_view bytes, Files& files);

// Every lone LF or CR as CR LF: the separator of commands is defined with CR LF.
Text with_whole_line_breaks(Text text);

}  // namespace qvr::services
