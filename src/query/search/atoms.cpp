#include "query/search/atoms.h"

namespace qvr::query {
namespace {

// Nothing for what has no order.
struct OrderOf {
  std::optional<Comparison> operator()(const auto& test) const {
    if constexpr (requires { test.comparison; }) {
      if (test.comparison != Comparison::Equal) return test.comparison;
    }
    return std::nullopt;
  }
};

struct InOppositeOrder {
  Test operator()(auto test) const {
    if constexpr (requires { test.comparison; }) test.comparison = opposite(test.comparison);
    return test;
  }
};

}  // namespace

Comparison opposite(Comparison comparison) {
  switch (comparison) {
    case Comparison::Equal: return Comparison::Different;
    case Comparison::Different: return Comparison::Equal;
    case Comparison::Less: return Comparison::GreaterOrEqual;
    case Comparison::LessOrEqual: return Comparison::Greater;
    case Comparison::Greater: return Comparison::LessOrEqual;
    default: return Comparison::Less;
  }
}

std::optional<Comparison> order_in(const Test& test) { return std::visit(OrderOf(), test); }

Alternatives expanded(Atom atom) {
  if (!atom.negated) return {{std::move(atom)}};
  Alternatives all;
  bool null_too = false;
  for (Test& test : atom.tests) {
    const bool ordered = order_in(test).has_value();
    null_too = null_too || ordered;
    all.push_back({ordered ? Atom{{std::visit(InOppositeOrder(), std::move(test))}} : Atom{{std::move(test)}, true}});
  }
  if (null_too) all.push_back({Atom{{IsNull()}}});
  return all;
}

}  // namespace qvr::query
