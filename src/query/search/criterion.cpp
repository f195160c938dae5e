#include "query/search/criterion.h"

#include <algorithm>

#include "query/search/periods.h"
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
  for (const auto words : {or_words(), and_words()}) {
    for (const TextView word : words) {
      for (std::size_t at = 0; at < text.size();
           at = text.find(u' ', at) == TextView::npos ? text.size() : text.find(u' ', at) + 1) {
        if (word_at(text, at, word)) return true;
      }
    }
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
  if (null_phrase(value) > 0 || like_operand(value) || starts_with_no_case(value, u"LIKE")) return true;
  if (operator_length(value) > 0 || TextView(u"!&|").find(value.front()) != TextView::npos) return true;
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
  Text operator()(const IsNull& atom) const { return join({atom.negated ? u"<> " : u"", message(MsgEsNulo)}); }
  Text operator()(const IsEmpty& atom) const { return atom.negated ? u"<> ''" : u"= ''"; }
  Text operator()(const Like& atom) const {
    return join({atom.negated ? u"<> " : u"", message(MsgEsComo), u" '", shown_pattern(atom.pattern), u"'"});
  }
  Text operator()(const CompareText& atom) const {
    const Text& value = atom.operand.text();
    const Text shown = needs_quotes_as_value(value) ? in_quotes(value) : value;
    return join({sign_of(atom.comparison), u" ", shown, atom.and_what_begins_so ? u"*" : u""});
  }
  Text operator()(const CompareNumber& atom) const {
    return join({sign_of(atom.comparison), u" ", shown_number(atom.digits)});
  }
  Text operator()(const CompareDate& atom) const {
    return join({sign_of(atom.comparison), u" ", shown_moment(atom.from, atom.whole_day, atom.with_seconds)});
  }
  Text operator()(const CompareTruth& atom) const {
    return join({atom.negated ? u"<> " : u"= ", truth_word(atom.truth)});
  }
};

}  // namespace

Text search_criterion(TextView label, const Alternatives& search) {
  const CriterionWriter writer;
  const Text both = join({u" ", message(MsgY), u" "});
  Text criterion = join({label, u" "});
  for (const Alternative& alternative : search) {
    if (&alternative != search.data()) criterion += u"; ";
    for (const Atom& atom : alternative) {
      if (&atom != alternative.data()) criterion += both;
      criterion += std::visit(writer, atom);
    }
  }
  return criterion;
}

}  // namespace qvr::query
