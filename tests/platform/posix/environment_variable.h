// An environment variable set to a value, or taken away, while this lives.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace qvr::tests {

class EnvironmentVariable {
 public:
  EnvironmentVariable(const char* name, std::optional<std::string> value) : name_(name) {
    if (const char* former = std::getenv(name)) former_ = former;
    put(value);
  }
  ~EnvironmentVariable() { put(former_); }
  EnvironmentVariable(const EnvironmentVariable&) = delete;
  EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

 private:
  void put(const std::optional<std::string>& value) {
    if (value) {
      ::setenv(name_, value->c_str(), 1);
    } else {
      ::unsetenv(name_);
    }
  }

  const char* name_;
  std::optional<std::string> former_;
};

}  // namespace qvr::tests
