// Pieces of text that the models of queries share.
#pragma once

#include <string>

#include "query/query_model.h"

namespace qvr::tests {

inline Text lower(Text text) {
  for (char16_t& unit : text) {
    if (unit >= u'A' && unit <= u'Z') unit = static_cast<char16_t>(unit + 32);
  }
  return text;
}

inline bool blank(const Text& text) { return text.find_first_not_of(u' ') == Text::npos; }

inline Text number(std::int64_t value) {
  const std::string digits = std::to_string(value);
  return {digits.begin(), digits.end()};
}

inline Text alias(Engine engine, const Text& name) {
  if (engine == Engine::Jet || engine == Engine::SqlServer) return u" As [" + name + u"]";
  return engine == Engine::Oracle ? u" \"" + name + u"\"" : Text();
}

inline Text top_mark(Engine engine, std::int32_t top) {
  return (engine == Engine::Jet || engine == Engine::SqlServer) && top > 0 ? u" TOP " + number(top) + u" " : Text();
}

}  // namespace qvr::tests
