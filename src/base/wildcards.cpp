#include "base/wildcards.h"

#include <algorithm>

namespace qvr {

// Where a run of "*" turns out too short, only the last one has to grow: no exponential search.
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
