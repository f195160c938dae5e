// A temporary folder, removed on destruction.
#pragma once

#include <filesystem>
#include <string>

#include "base/text.h"

namespace qvr::tests {

class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  Text text() const { return path_.u16string(); }
  std::filesystem::path file(TextView name) const { return path_ / std::filesystem::path(name); }
  Text file_text(TextView name) const { return join({text(), u"\\", name}); }

  std::string read(TextView name) const;
  void write(TextView name, std::string_view bytes) const;

 private:
  std::filesystem::path path_;
};

}  // namespace qvr::tests
