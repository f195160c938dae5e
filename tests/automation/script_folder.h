// A folder of script files that goes away with its test.
#pragma once

#include <cstdio>

#include "automation/host.h"

namespace qvr::tests {

class ScriptFolder {
 public:
  explicit ScriptFolder(const std::wstring& name) : path_(work_folder() + L"\\" + name) {
    CreateDirectoryW(path_.c_str(), nullptr);
  }
  ~ScriptFolder() {
    for (const std::wstring& file : files_) DeleteFileW(file.c_str());
    RemoveDirectoryW(path_.c_str());
  }
  ScriptFolder(const ScriptFolder&) = delete;
  ScriptFolder& operator=(const ScriptFolder&) = delete;

  void write(const std::wstring& name, const std::string& bytes) {
    files_.push_back(path_ + L"\\" + name);
    FILE* file = _wfopen(files_.back().c_str(), L"wb");
    ASSERT_NE(file, nullptr);
    std::fwrite(bytes.data(), 1, bytes.size(), file);
    std::fclose(file);
  }
  const std::wstring& path() const { return path_; }

 private:
  std::wstring path_;
  std::vector<std::wstring> files_;
};

}  // namespace qvr::tests
