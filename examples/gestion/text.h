// Texts and files of this program: UTF-16 inside, UTF-8 outside.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gestion {

std::string to_utf8(std::wstring_view text);
std::wstring from_utf8(std::string_view bytes);
std::string to_system_page(std::wstring_view text);

std::string file_bytes(const std::wstring& path);
void write_file(const std::wstring& path, std::string_view bytes);
void remove_file(const std::wstring& path);

// The parts of `text` between the separators, the last one included.
std::vector<std::wstring> split(std::wstring_view text, std::wstring_view separator);
std::wstring_view trimmed(std::wstring_view text);
std::wstring padded(std::wstring text, std::size_t width);

}  // namespace gestion
