// The text in a script file's bytes.
#pragma once

#include <string_view>

#include "platform/platform.h"

namespace qvr::services {

enum class ScriptEncoding { Utf8, Utf8WithMark, Utf16LittleEndian, Utf16BigEndian, SystemPage };

// By the byte-order mark; without one UTF-8 where the bytes are strictly that, else the system's page.
ScriptEncoding encoding_of(std::string_view bytes);

// The decoded text without its mark. Throws failure 75 for what the encoding cannot hold: half a unit, a lone
// surrogate, a zero byte without a mark (the sign of another encoding or of no text at all).
Text decoded_script(std::string_view bytes, Files& files);

// Every lone LF or CR as CR LF, since commands are told apart by whole line breaks.
Text with_whole_line_breaks(Text text);

}  // namespace qvr::services
