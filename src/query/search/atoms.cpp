#include "query/search/atoms.h"

namespace qvr::query {
namespace {

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

// The negation of an atom. Negated equality and patterns include null already; for the other comparisons `null_too` is
// set, so that IS NULL is added.
struct Opposite {
  bool& null_too;

  Alternative operator()(const IsNull& atom) const { return {IsNull{!atom.negated}}; }
  Alternative operator()(const IsEmpty& atom) const { return {IsEmpty{!atom.negated}}; }
  Alternative operator()(const Like& atom) const { return {Like{!atom.negated, atom.pattern}}; }
  Alternative operator()(const CompareTruth& atom) const { return {CompareTruth{!atom.negated, atom.truth}}; }
  Alternative operator()(CompareNumber atom) const { return turned(std::move(atom)); }
  Alternative operator()(CompareDate atom) const { return turned(std::move(atom)); }
  Alternative operator()(const CompareText& atom) const {
    CompareText other{opposite(atom.comparison), atom.operand};
    note(atom.comparison);
    if (!atom.and_what_begins_so) return {std::move(other)};
    Operand begins = atom.operand;
    begins.append_wildcard(u'*');
    return {std::move(other), Like{true, std::move(begins)}};
  }

  template <class Compared>
  Alternative turned(Compared atom) const {
    note(atom.comparison);
    atom.comparison = opposite(atom.comparison);
    return {std::move(atom)};
  }
  void note(Comparison comparison) const {
    if (comparison != Comparison::Equal && comparison != Comparison::Different) null_too = true;
  }
};

// The negation of several single atoms: the conjunction of their negations (De Morgan). Only "<>" of a year or a month
// gives several; one of them is null, so that the negation excludes null.
Alternatives none_of(const Alternatives& alternatives) {
  Alternative all;
  bool null_too = false;
  for (const Alternative& single : alternatives) {
    if (std::holds_alternative<IsNull>(single.front())) continue;
    const Alternative opposites = std::visit(Opposite{null_too}, single.front());
    all.insert(all.end(), opposites.begin(), opposites.end());
  }
  return {std::move(all)};
}

}  // namespace

TextView sign_of(Comparison comparison) {
  switch (comparison) {
    case Comparison::Equal: return u"=";
    case Comparison::Different: return u"<>";
    case Comparison::Less: return u"<";
    case Comparison::LessOrEqual: return u"<=";
    case Comparison::Greater: return u">";
    default: return u">=";
  }
}

Alternatives negated(const Alternatives& alternatives) {
  if (alternatives.size() > 1) return none_of(alternatives);
  Alternatives found;
  bool null_too = false;
  for (const Atom& atom : alternatives.front()) found.push_back(std::visit(Opposite{null_too}, atom));
  if (null_too) found.push_back({IsNull{false}});
  return found;
}

}  // namespace qvr::query
