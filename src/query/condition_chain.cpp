#include "query/condition_chain.h"

namespace qvr::query {

bool ConditionChain::add(TextView condition) {
  if (is_blank(condition)) return false;
  const Text parenthesised = join({u"(", condition, u")"});
  if (is_blank(text_)) {
    text_ = parenthesised;
    return true;
  }
  if (find_no_case(text_, parenthesised) != TextView::npos) return false;
  text_ += join({u" and ", parenthesised});
  return true;
}

}  // namespace qvr::query
