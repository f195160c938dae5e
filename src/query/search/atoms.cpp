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
  Alternatives all;
  const auto add = [&all](Test test, bool negated) {
    Atom& single = all.emplace_back().emplace_back();
    single.tests.push_back(std::move(test));
    single.negated = negated;
  };
  if (!atom.negated) {
    all.emplace_back().push_back(std::move(atom));
    return all;
  }
  bool null_too = false;
  for (Test& test : atom.tests) {
    const bool ordered = order_in(test).has_value();
    null_too = null_too || ordered;
    ordered ? add(std::visit(InOppositeOrder(), std::move(test)), false) : add(std::move(test), true);
  }
  if (null_too) add(IsNull(), false);
  return all;
}

}  // namespace qvr::query
