// Which parts of a script are comments, strings and quoted names.
#pragma once

#include <cstdint>
#include <vector>

#include "base/engine.h"
#include "base/text.h"

namespace qvr::script_tool {

enum class RegionKind { LineComment, BlockComment, String, QuotedName };

struct Region {
  RegionKind kind;
  std::size_t begin, end;  // with its delimiters; `end` is behind the last one
  bool closed;             // false: unclosed, up to the end of the text
};

inline bool is_comment(const Region& region) {
  return region.kind == RegionKind::LineComment || region.kind == RegionKind::BlockComment;
}

// In order. Block comments nest in SQL Server only; Jet has no comments and Oracle no names in brackets. An unknown
// engine is treated as SQL Server.
std::vector<Region> regions_of(TextView text, Engine engine);

// The region at this position; null for none.
const Region* region_at(const std::vector<Region>& regions, std::size_t position);

}  // namespace qvr::script_tool
