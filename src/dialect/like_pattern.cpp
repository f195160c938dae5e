#include "dialect/like_pattern.h"

#include <algorithm>

#include "dialect/literals.h"

namespace qvr::dialect {

Text CaracterEscapeLibre(TextView text) {
  constexpr TextView kCandidates = u"!&/()$#=|";
  for (const char16_t& candidate : kCandidates) {
    if (text.find(candidate) == TextView::npos) return Text(1, candidate);
  }
  return {};
}

Text PatronLikeMotor(Engine engine, TextView text, bool leading, bool trailing) {
  Text pattern(trimmed(text));
  if (leading && !pattern.starts_with(u'*')) pattern.insert(0, 1, u'*');
  if (trailing && !pattern.ends_with(u'*')) pattern.push_back(u'*');
  Text escape_clause;
  if (pattern.find_first_of(u"%_") != Text::npos) {
    const Text escape = CaracterEscapeLibre(pattern);
    escape_clause = join({u"ESCAPE '", escape, u"' "});
    pattern = replace_all(pattern, u"%", escape + u"%");
    pattern = replace_all(pattern, u"_", escape + u"_");
  }
  // Only after escaping the user's own "%" and "_".
  std::ranges::replace(pattern, u'*', u'%');
  std::ranges::replace(pattern, u'?', u'_');
  const TextView national = engine == Engine::SqlServer ? u"N" : u"";
  return join({national, ComillasSQL(pattern), u" ", escape_clause});
}

}  // namespace qvr::dialect
