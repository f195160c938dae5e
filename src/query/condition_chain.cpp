#include "query/condition_chain.h"

namespace qvr::query {
namespace {

constexpr TextView kAnd = u" and ";
constexpr std::size_t kSearchedSimply = 4096;
constexpr std::uint64_t kBase = 0x9E3779B97F4A7C15;

// The number that undoes a multiplication by an odd one, in arithmetic of 64 bits: each round doubles the right bits.
constexpr std::uint64_t inverse_of(std::uint64_t odd) {
  std::uint64_t inverse = odd;
  for (int round = 0; round < 6; ++round) inverse *= 2 - odd * inverse;
  return inverse;
}
constexpr std::uint64_t kInverse = inverse_of(kBase);
static_assert(kBase * kInverse == 1);

// Whether the first parenthesis closes with the last unit. Such a text, found in another one, ends there where its own
// first parenthesis closes, so that looking at whole parenthesised pieces misses none.
bool closes_at_its_end(TextView parenthesised) {
  std::size_t depth = 0;
  for (std::size_t i = 0; i < parenthesised.size(); ++i) {
    if (parenthesised[i] == u'(') ++depth;
    if (parenthesised[i] == u')' && --depth == 0) return i + 1 == parenthesised.size();
  }
  return false;
}

std::uint64_t weight(char16_t unit) { return std::uint64_t{fold(unit)} + 1; }

std::uint64_t hash_of(TextView piece) {
  std::uint64_t hash = 0, power = 1;
  for (const char16_t unit : piece) {
    hash += weight(unit) * power;
    power *= kBase;
  }
  return hash;
}

}  // namespace

void ConditionChain::clear() noexcept {
  text_.clear();
  forget_index();
}

void ConditionChain::assign(Text text) noexcept {
  text_ = std::move(text);
  forget_index();
}

void ConditionChain::forget_index() noexcept {
  if (indexed_ == 0) return;  // as in nearly every query
  pieces_.clear();
  open_.clear();
  indexed_ = 0;
  hash_ = 0;
  power_ = inverse_power_ = 1;
}

bool ConditionChain::add(TextView condition) {
  if (is_blank(condition)) return false;
  if (is_blank(text_)) {
    assign(join({u"(", condition, u")"}));
    return true;
  }
  const Text piece = join({kAnd, u"(", condition, u")"});
  if (holds(TextView(piece).substr(kAnd.size()))) return false;
  text_ += piece;
  return true;
}

bool ConditionChain::holds(TextView parenthesised) {
  if (text_.size() > kSearchedSimply && closes_at_its_end(parenthesised)) {
    catch_up();
    const auto found = pieces_.find(hash_of(parenthesised));
    if (found == pieces_.end()) return false;
    if (equal_no_case(TextView(text_).substr(found->second, parenthesised.size()), parenthesised)) return true;
    // Two pieces with one hash: only the first is in the index.
  }
  return find_no_case(text_, parenthesised) != TextView::npos;
}

// The hash of a piece is what the text's hash gained since the piece began, moved down to its beginning. A unit counts
// as indexed after all that can fail for it, so that a later call goes on where this one had to stop.
void ConditionChain::catch_up() {
  for (; indexed_ < text_.size(); ++indexed_) {
    const char16_t unit = text_[indexed_];
    const std::uint64_t hash = hash_ + weight(unit) * power_;
    if (unit == u'(') open_.push_back({indexed_, hash_, inverse_power_});
    if (unit == u')' && !open_.empty()) {
      const Opening& from = open_.back();
      pieces_.try_emplace((hash - from.hash_before) * from.inverse_power, from.position);
      open_.pop_back();
    }
    hash_ = hash;
    power_ *= kBase;
    inverse_power_ *= kInverse;
  }
}

}  // namespace qvr::query
