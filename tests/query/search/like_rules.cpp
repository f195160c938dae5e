#include "query/search/like_rules.h"

#include <algorithm>
#include <vector>

namespace qvr::tests {
namespace {

struct Part {
  enum { AnyRun, AnyOne, OneOf } kind;
  Text set;
};

std::vector<Part> parts_of(TextView pattern, TextView escape, bool sets) {
  std::vector<Part> parts;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const char16_t unit = pattern[i];
    const std::size_t close = sets && unit == u'[' ? pattern.find(u']', i + 2) : TextView::npos;
    if (!escape.empty() && unit == escape[0] && i + 1 < pattern.size()) {
      parts.push_back({Part::OneOf, Text(1, pattern[++i])});
    } else if (close != TextView::npos) {
      parts.push_back({Part::OneOf, Text(pattern.substr(i + 1, close - i - 1))});
      i = close;
    } else if (unit == u'%') {
      parts.push_back({Part::AnyRun, {}});
    } else if (unit == u'_') {
      parts.push_back({Part::AnyOne, {}});
    } else {
      parts.push_back({Part::OneOf, Text(1, unit)});
    }
  }
  return parts;
}

}  // namespace

Text in_capitals(TextView text) {
  Text capitals(text);
  std::ranges::transform(capitals, capitals.begin(), [](char16_t unit) { return fold(unit); });
  return capitals;
}

// The prefixes of the text that the parts so far match (dynamic programming).
bool is_like(Engine engine, TextView text, TextView pattern, TextView escape) {
  if (engine == Engine::Jet) return is_like(Engine::SqlServer, in_capitals(text), in_capitals(pattern), escape);
  std::vector<bool> reached(text.size() + 1);
  reached[0] = true;
  for (const Part& part : parts_of(pattern, escape, engine == Engine::SqlServer)) {
    std::vector<bool> next(text.size() + 1);
    for (std::size_t i = 0; i <= text.size(); ++i) {
      if (part.kind == Part::AnyRun) {
        next[i] = reached[i] || (i > 0 && next[i - 1]);
      } else if (i > 0 && reached[i - 1]) {
        next[i] = part.kind == Part::AnyOne || part.set.find(text[i - 1]) != Text::npos;
      }
    }
    reached = std::move(next);
  }
  return reached[text.size()];
}

}  // namespace qvr::tests
