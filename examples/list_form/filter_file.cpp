#include "filter_file.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace list_form {
namespace {

// Raised whenever the columns or tables of the list change: a filter names them.
constexpr int kListVersion = 1;
constexpr wchar_t kByteOrderMark = 0xFEFF;
constexpr std::size_t kLinesOfFilter = 2 + kColumns.size();

std::wstring whole_text(const std::wstring& path) {
  std::ifstream file(std::filesystem::path(path), std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
  std::copy_n(bytes.data(), text.size() * sizeof(wchar_t), reinterpret_cast<char*>(text.data()));
  return text;
}

// None of the texts has a line end: boxes of one line take none.
std::vector<std::wstring> lines_of(const std::wstring& text) {
  std::vector<std::wstring> lines;
  for (std::size_t at = 0, end = 0; (end = text.find(L"\r\n", at)) != std::wstring::npos; at = end + 2) {
    lines.push_back(text.substr(at, end - at));
  }
  return lines;
}

std::vector<Filter> filters_in(const std::vector<std::wstring>& lines) {
  std::vector<Filter> filters;
  for (std::size_t at = 1; at + kLinesOfFilter <= lines.size(); at += kLinesOfFilter) {
    Filter filter{lines[at], lines[at + 1], {}};
    for (std::size_t i = 0; i < kColumns.size(); ++i) filter.searches[i] = lines[at + 2 + i];
    filters.push_back(std::move(filter));
  }
  return filters;
}

}  // namespace

FilterFile::FilterFile(const std::wstring& folder, long engine)
    : path_(folder + L"\\list_form.filters"),
      heading_(kByteOrderMark + (L"list " + std::to_wstring(kListVersion)) + L", engine " + std::to_wstring(engine)) {
  const std::vector<std::wstring> lines = lines_of(whole_text(path_));
  if (!lines.empty() && lines.front() == heading_) filters_ = filters_in(lines);
}

void FilterFile::keep(const Filter& filter) {
  const auto same = std::find_if(filters_.begin(), filters_.end(), [&](const Filter& each) {
    return lstrcmpiW(each.name.c_str(), filter.name.c_str()) == 0;
  });
  if (same == filters_.end()) filters_.push_back(filter);
  else *same = filter;
  write();
}

// Beside the file first, so that what was kept before stays whole whatever happens meanwhile.
void FilterFile::write() const {
  std::wstring text = heading_ + L"\r\n";
  for (const Filter& filter : filters_) {
    text += filter.name + L"\r\n" + filter.criterion + L"\r\n";
    for (const std::wstring& search : filter.searches) text += search + L"\r\n";
  }
  const std::wstring unfinished = path_ + L".new";
  std::ofstream file(std::filesystem::path(unfinished), std::ios::binary | std::ios::trunc);
  file.write(reinterpret_cast<const char*>(text.data()), static_cast<std::streamsize>(text.size() * sizeof(wchar_t)));
  file.close();
  if (file.fail() || MoveFileExW(unfinished.c_str(), path_.c_str(), MOVEFILE_REPLACE_EXISTING) == 0) {
    throw Problem(L"The filters cannot be written to " + path_ + L".");
  }
}

}  // namespace list_form
