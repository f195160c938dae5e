// What every case begins with: a screen, an empty database and an empty folder for the program.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>

#include "list_form/ado.h"
#include "user.h"

namespace qvr::tests {

class Scene : public testing::Test {
 public:
  // Sessions of the test's own.
  static list_form::Connection session();
  static list_form::Connection administrator();

 protected:
  Scene();
  ~Scene() override;

  std::wstring folder() const { return folder_; }
  std::filesystem::path filter_file() const { return folder_ / "list_form.filters"; }
  bool table_exists(const std::wstring& name) const;

 private:
  std::filesystem::path folder_;
};

}  // namespace qvr::tests
