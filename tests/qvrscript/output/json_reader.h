// Reads JSON strictly, to show that what was written is JSON.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace qvr::tests {

struct Json {
  using Members = std::map<std::string, Json>;
  using Items = std::vector<Json>;
  std::variant<std::nullptr_t, bool, double, std::string, Items, Members> value;

  const Json& operator[](const std::string& name) const { return std::get<Members>(value).at(name); }
  const Json& operator[](std::size_t index) const { return std::get<Items>(value).at(index); }
  std::size_t size() const { return std::get<Items>(value).size(); }
  const std::string& text() const { return std::get<std::string>(value); }
  double number() const { return std::get<double>(value); }
  bool truth() const { return std::get<bool>(value); }
};

// One document and nothing but blanks behind it; throws std::runtime_error for anything else.
Json read_json(std::string_view text);

}  // namespace qvr::tests
