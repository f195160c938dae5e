#include "base/wildcards.h"

#include <algorithm>

namespace qvr {

// Greedy: on a mismatch only the last "*" has to match more, so that there is no exponential backtracking.
bool matches_wildcards(TextView name, TextView pattern) {
  std::size_t n = 0, p = 0, star = TextView::npos, star_n = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == u'*') {
      star = p++;
      star_n = n;
    } else if (p < pattern.size() && (pattern[p] == u'?' || fold(pattern[p]) == fold(name[n]))) {
      ++p;
      ++n;
    } else if (star != TextView::npos) {
      p = star + 1;
      n = ++star_n;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == u'*') ++p;
  return p == pattern.size();
}

}  // namespace qvr
