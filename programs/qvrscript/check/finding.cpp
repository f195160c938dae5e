#include "qvrscript/check/finding.h"

#include <algorithm>

#include "qvrscript/check/ignore_comments.h"

namespace qvr::script_tool {

void Findings::add(std::size_t line, std::string_view rule, std::initializer_list<TextView> message) {
  const Text* reason = comments_ == nullptr ? nullptr : comments_->reason(line, rule);
  std::size_t& count = counts_[{rule, reason != nullptr}];
  if (++count > kMostOfRule) return;
  found_.push_back({line, rule, join(message), reason == nullptr ? std::nullopt : std::optional(*reason)});
}

std::vector<Finding> Findings::listed() && {
  std::ranges::stable_sort(found_, {}, &Finding::line);
  return std::move(found_);
}

std::vector<Findings::Omitted> Findings::omitted() const {
  std::vector<Omitted> omitted;
  for (const auto& [of, count] : counts_) {
    if (count > kMostOfRule) omitted.push_back({of.first, of.second, count - kMostOfRule});
  }
  return omitted;
}

}  // namespace qvr::script_tool
