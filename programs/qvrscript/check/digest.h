// Digests by the system's cryptographic library; posix/ and windows/ implement them.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace qvr::script_tool {

// SHA-256. Throws RuntimeFailure when the library refuses.
std::array<std::uint8_t, 32> sha256(std::string_view bytes);

}  // namespace qvr::script_tool
