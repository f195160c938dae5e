// The scripts that are released and must not change, with a digest each:
//   qvrscript lock 1
//   <64 hexadecimal digits of SHA-256>  <path from the lock file's folder, with "/">
#pragma once

#include <array>
#include <cstdint>
#include <exception>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/text.h"

namespace qvr::script_tool {

// A lock file that cannot be read, understood or written, or a script that it cannot name.
class LockFailure : public std::exception {
 public:
  explicit LockFailure(std::initializer_list<TextView> message) : message_(join(message)) {}
  const Text& message() const { return message_; }
  const char* what() const noexcept override { return "lock"; }

 private:
  Text message_;
};

class LockFile {
 public:
  enum class State { Same, Changed, Missing, New, NoText };

  // Reads it; with `may_be_new` one that is not there has no scripts. Throws LockFailure.
  LockFile(TextView path, bool may_be_new);

  // Compares a script, which has been looked at then. Of what the runner would see: neither line ends nor encoding
  // count. Throws LockFailure.
  State compare(TextView script, std::string_view bytes);

  struct Other {
    Text path;
    State state;
  };
  // Reads and compares those that have not been looked at.
  std::vector<Other> compare_others();

  // How many scripts are new; writes them with the others, and nothing where there are none. Throws LockFailure.
  std::size_t fresh() const;
  void write() const;

 private:
  using Digest = std::array<std::uint8_t, 32>;
  struct Entry {
    Digest digest;
    bool fresh = false, seen = false;
  };
  struct LessNoCase {
    bool operator()(const Text& a, const Text& b) const { return less_no_case(a, b); }
  };

  static std::optional<Digest> digest_of(std::string_view bytes);
  void read(std::string_view bytes);
  void read_line(std::string_view line, std::size_t number);
  [[noreturn]] void refuse(std::size_t line) const;
  Text name_of(TextView script) const;
  State compare(Entry& entry, std::string_view bytes) const;

  Text path_;
  std::map<Text, Entry, LessNoCase> entries_;  // by path
};

}  // namespace qvr::script_tool
