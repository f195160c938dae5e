#include "query/search/criterion.h"

#include <algorithm>

#include "query/search/dates.h"
#include "query/search/numbers.h"
#include "query/search/tokens.h"
#include "session/global.h"

namespace qvr::query {
namespace {

Text in_quotes(TextView text) {
  Text quoted = u"\"";
  for (const char16_t unit : text) {
    if (is_double_quote(unit)) quoted += unit;  // doubled
    quoted += unit;
  }
  return quoted += u'"';
}

bool holds_any(TextView text, bool (*test)(char16_t)) { return std::ranges::any_of(text, test); }

bool holds_word_that_connects(TextView text) {
  for (std::size_t at = 0; at != TextView::npos; at = text.find_first_not_of(u' ', text.find(u' ', at))) {
    if (or_word(text.substr(at)) > 0 || and_word(text.substr(at)) > 0) return true;
  }
  return false;
}

// Whether a part of a pattern inside single quotes needs double quotes to be read back as itself.
bool needs_quotes_in_pattern(TextView part) {
  const bool blank = part.find(u' ') != TextView::npos;
  return part.find_first_of(u"*?;") != TextView::npos || holds_any(part, is_double_quote) ||
         (blank && (part.find_first_of(u"&|") != TextView::npos || holds_any(part, is_single_quote)));
}

// The same for the operand of an operator.
bool needs_quotes_as_value(TextView value) {
  const bool blank = value.find(u' ') != TextView::npos;
  if (value.empty() || value.front() == u' ' || value.back() == u' ' || is_single_quote(value.front())) return true;
  if (null_phrase(value).length > 0 || like_phrase(value).length > 0 || comparison_in(value).length > 0) return true;
  if (TextView(u"!&|").find(value.front()) != TextView::npos) return true;
  if (needs_quotes_in_pattern(value)) return true;
  return blank && (value.find_first_of(u"<>=!") != TextView::npos || holds_word_that_connects(value));
}

// Quotes the parts between the wildcards where necessary.
Text shown_pattern(const Operand& pattern) {
  Text shown, part;
  const auto finish = [&] {
    shown += needs_quotes_in_pattern(part) ? in_quotes(part) : part;
    part.clear();
  };
  for (std::size_t i = 0; i < pattern.text().size(); ++i) {
    if (pattern.is_wildcard(i)) {
      finish();
      shown += pattern.text()[i];
    } else {
      part += pattern.text()[i];
    }
  }
  finish();
  return shown;
}

struct CriterionWriter {
  Text operator()(const IsNull&) const { return Text(message(MsgEsNulo)); }
  Text operator()(const IsEmpty&) const { return u"''"; }
  Text operator()(const IsTrue& test) const { return Text(truth_word(test.truth)); }
  Text operator()(const Like& test) const {
    return join({message(MsgEsComo), u" '", shown_pattern(test.pattern), u"'"});
  }
  Text operator()(const CompareText& test) const {
    const Text& value = test.operand.text();
    return join({needs_quotes_as_value(value) ? in_quotes(value) : value, test.with_all_that_begins ? u"*" : u""});
  }
  Text operator()(const CompareNumber& test) const { return shown_number(test.digits); }
  Text operator()(const CompareDate& test) const { return shown_unit(test.period); }
};

Text shown_value(const Test& test) { return std::visit(CriterionWriter(), test); }

// A null test and a pattern need no "=".
bool is_told_without_sign(const Test& test) {
  return std::holds_alternative<IsNull>(test) || std::holds_alternative<Like>(test);
}

Text shown_test(const Test& test) {
  if (is_told_without_sign(test)) return shown_value(test);
  return join({sign_of(order_in(test).value_or(Comparison::Equal)), u" ", shown_value(test)});
}

// What stands between the stars of a pattern that finds a word.
Text shown_word(const Test& test) {
  const Text& pattern = std::get<Like>(test).pattern.text();
  return in_quotes(TextView(pattern).substr(1, pattern.size() - 2));
}

Text shown_range(const Atom& range) {
  const Test &first = range.tests.front(), &last = range.tests.back();
  if (const auto* text = std::get_if<CompareText>(&first)) {
    return join({u"! ", in_quotes(text->operand.text()), u"..", in_quotes(std::get<CompareText>(last).operand.text())});
  }
  return join({u"<> ", shown_value(first), u"..", shown_value(last)});
}

Text shown_negation(const Atom& atom) {
  const Test& first = atom.tests.front();
  const bool ordered = order_in(first).has_value();
  if (atom.tests.size() > 1) {
    return ordered ? shown_range(atom) : u"! " + joined(atom.tests, u" ", shown_word);
  }
  return ordered ? u"! " + shown_test(first) : u"<> " + shown_value(first);
}

Text shown_atom(const Atom& atom, TextView both) {
  return atom.negated ? shown_negation(atom) : joined(atom.tests, both, shown_test);
}

}  // namespace

Text search_criterion(TextView label, const Alternatives& search) {
  const Text both = join({u" ", message(MsgY), u" "});
  const auto shown = [&](const Alternative& alternative) {
    return joined(alternative, both, [&](const Atom& atom) { return shown_atom(atom, both); });
  };
  return join({label, u" ", joined(search, u"; ", shown)});
}

}  // namespace qvr::query
