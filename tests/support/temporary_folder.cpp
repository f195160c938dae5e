#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>

namespace qvr::tests {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
  std::random_device random;
  do {
    path_ = fs::temp_directory_path() / ("qvr_tests_" + std::to_string(random()));
  } while (!fs::create_directory(path_));
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code error;
  fs::remove_all(path_, error);
  EXPECT_FALSE(error) << "left behind: " << error.message();
}

std::string TemporaryFolder::read(TextView name) const {
  std::ifstream stream(file(name), std::ios::binary);
  EXPECT_TRUE(stream) << "no such file";
  return {std::istreambuf_iterator<char>(stream), {}};
}

void TemporaryFolder::write(TextView name, std::string_view bytes) const {
  std::ofstream stream(file(name), std::ios::binary);
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  stream.close();
  EXPECT_TRUE(stream) << "not written";
}

}  // namespace qvr::tests
