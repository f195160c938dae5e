#include "query/search/condition.h"

#include <span>

#include "dialect/like_pattern.h"
#include "dialect/literals.h"
#include "query/search/dates.h"

namespace qvr::query {
namespace {

// A LIKE pattern, literal wildcards escaped, as the engine's literal, with an ESCAPE clause (preceded by a blank) where
// necessary.
struct PatternText {
  Text literal, escape;
};

// Jet has no ESCAPE: special characters are escaped by brackets.
constexpr TextView kSpecialToJet = u"%_#[*?";

bool is_special(Engine engine, char16_t unit, bool bracketed) {
  if (engine == Engine::Jet) return kSpecialToJet.find(unit) != TextView::npos;
  return unit == u'%' || unit == u'_' || (bracketed && unit == u'[');
}

// An escape character that the text does not contain: the usual candidates, else a rare one. Not a letter, as both
// sides of the comparison may be converted to upper case.
Text free_escape(Engine engine, TextView text) {
  const Text usual = dialect::CaracterEscapeLibre(text);
  if (!usual.empty() || engine != Engine::Oracle) return usual;
  for (char16_t unit = u'\u2500'; unit < u'\u2800'; ++unit) {
    if (text.find(unit) == TextView::npos) return Text(1, unit);
  }
  return {};
}

PatternText pattern_text(Engine engine, const Operand& pattern) {
  const Text& text = pattern.text();
  const bool marked = engine != Engine::Jet && text.find_first_of(u"%_") != Text::npos;
  const Text escape = marked ? free_escape(engine, text) : Text();
  const bool bracketed = engine == Engine::SqlServer;
  Text written;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    if (pattern.is_wildcard(i)) {
      written += unit == u'*' ? u'%' : u'_';
    } else if (!is_special(engine, unit, bracketed)) {
      written += unit;
    } else if (escape.empty() || unit == u'[') {
      written.append({u'[', unit, u']'});
    } else {
      written.append(escape).push_back(unit);
    }
  }
  const TextView national = bracketed ? u"N" : u"";
  return {join({national, dialect::ComillasSQL(written)}),
          escape.empty() ? Text() : join({u" ESCAPE '", escape, u"'"})};
}

class ConditionWriter {
 public:
  ConditionWriter(Engine engine, SearchType type, TextView expression)
      : engine_(engine),
        expression_(expression),
        upper_(type == SearchType::Text ? engine != Engine::Jet : type == SearchType::Memo && engine == Engine::Oracle),
        like_only_(type == SearchType::Memo && engine != Engine::Jet) {}

  Text atom(const Atom& atom) const {
    const auto written = [&](const Test& test) {
      return std::visit([&](const auto& held) { return this->written(held, atom.negated); }, test);
    };
    if (!atom.negated) return joined(atom.tests, u" And ", written);
    const Test& first = atom.tests.front();
    const bool of_null = std::holds_alternative<IsNull>(first) || std::holds_alternative<IsEmpty>(first);
    return of_null ? written(first) : or_null(joined(atom.tests, u" Or ", written));
  }

  // "(... Or X Is Null)"
  Text or_null(TextView condition) const { return join({u"(", condition, u" Or ", is_null(), u")"}); }

 private:
  // Each test or its opposite, which does not select null.

  Text written(const IsNull&, bool negated) const { return in_not(negated, is_null()); }

  // Oracle stores the empty text as null.
  Text written(const IsEmpty&, bool negated) const {
    if (engine_ == Engine::Oracle) return in_not(negated, is_null());
    const Text empty = join({expression_, like_only_ ? u" LIKE " : u"=", literal(u"")});
    return in_not(negated, join({empty, u" Or ", is_null()}));
  }

  Text written(const IsTrue& test, bool negated) const {
    return test.truth != negated ? dialect::sqlEsTrue(expression_) : dialect::sqlEsFalse(expression_);
  }

  Text written(const Like& test, bool negated) const { return like(test.pattern, negated); }

  Text written(const CompareText& test, bool negated) const {
    const TextView value = test.operand.text();
    if (like_only_) return like(Operand::literal(value), negated);
    const Comparison comparison = negated ? opposite(test.comparison) : test.comparison;
    const Text compared = join({subject(), sign_of(comparison), in_upper(literal(value))});
    if (!test.with_all_that_begins) return compared;
    Operand begins = Operand::literal(value);
    begins.append_wildcard(u'*');
    return comparison == Comparison::LessOrEqual ? join({u"(", compared, u" Or ", like(begins, false), u")"})
                                                 : join({compared, u" And ", like(begins, true)});
  }

  Text written(const CompareNumber& test, bool negated) const {
    const TextView blank = test.digits.starts_with(u'-') ? u"" : u" ";
    return join({expression_, sign_of(negated ? opposite(test.comparison) : test.comparison), blank, test.digits});
  }

  Text written(const CompareDate& test, bool negated) const {
    const Period& period = test.period;
    const auto beside = [&](TextView sign, const Moment& moment) {
      const Date date = date_of(moment);
      return join({expression_, sign,
                   period.whole_days ? dialect::FechaSQL(engine_, date) : dialect::FechaHoraSQL(engine_, date)});
    };
    switch (negated ? opposite(test.comparison) : test.comparison) {
      case Comparison::Equal: return join({beside(u">=", period.from), u" And ", beside(u"<", period.to)});
      case Comparison::Different: return join({beside(u"<", period.from), u" Or ", beside(u">=", period.to)});
      case Comparison::Less: return beside(u"<", period.from);
      case Comparison::LessOrEqual: return beside(u"<", period.to);
      case Comparison::Greater: return beside(u">=", period.to);
      default: return beside(u">=", period.from);
    }
  }

  Text is_null() const { return join({expression_, u" Is Null"}); }
  static Text in_not(bool negated, TextView condition) { return join({negated ? u"Not (" : u"(", condition, u")"}); }

  Text literal(TextView text) const {
    return join({engine_ == Engine::SqlServer ? u"N" : u"", dialect::ComillasSQL(text)});
  }
  Text subject() const { return upper_ ? join({u" UPPER(", expression_, u")"}) : Text(expression_); }
  Text in_upper(Text operand) const { return upper_ ? join({u"UPPER(", operand, u")"}) : std::move(operand); }

  Text like(const Operand& pattern, bool negated) const {
    const PatternText written = pattern_text(engine_, pattern);
    return join({subject(), negated ? u" NOT LIKE " : u" LIKE ", in_upper(written.literal), written.escape});
  }

  Engine engine_;
  TextView expression_;
  bool upper_, like_only_;
};

const Test* only_test(const Alternative& alternative) {
  const bool one = alternative.size() == 1 && !alternative.front().negated && alternative.front().tests.size() == 1;
  return one ? &alternative.front().tests.front() : nullptr;
}

// "< a; > b; Is Null": what lies outside a range is written as the negation of the range is, in one pair of
// parentheses.
bool is_outside(std::span<const Alternative> search) {
  if (search.size() < 3) return false;
  const Test *below = only_test(search[0]), *above = only_test(search[1]), *null = only_test(search[2]);
  return below != nullptr && above != nullptr && null != nullptr && order_in(*below) == Comparison::Less &&
         order_in(*above) == Comparison::Greater && std::holds_alternative<IsNull>(*null);
}

// "<=C; C*" in parentheses would read like the inclusive upper bound "C*" inside a longer condition.
bool reads_as_bound(TextView condition, const ConditionWriter& writer, const Alternatives& search) {
  const Test* first = only_test(search.front());
  const auto* bound = first != nullptr ? std::get_if<CompareText>(first) : nullptr;
  if (search.size() != 2 || bound == nullptr || bound->comparison != Comparison::LessOrEqual) return false;
  const Atom inclusive{{CompareText{bound->comparison, bound->operand, true}}};
  return equal_no_case(join({u"(", condition, u")"}), writer.atom(inclusive));
}

// The engines limit both.
bool is_too_long(TextView condition) {
  constexpr std::size_t kLongestCondition = 30'000;
  std::size_t connectors = 0;
  bool quoted = false;
  for (std::size_t i = condition.find_first_of(u"' "); i != TextView::npos; i = condition.find_first_of(u"' ", i + 1)) {
    const TextView rest = condition.substr(i);
    if (rest[0] == u'\'') quoted = !quoted;
    if (!quoted && (rest.starts_with(u" And ") || rest.starts_with(u" Or "))) ++connectors;
  }
  return condition.size() > kLongestCondition || connectors > kMostConnectors;
}

}  // namespace

std::optional<Text> search_condition(Engine engine, SearchType type, TextView expression, const Alternatives& search) {
  const ConditionWriter writer(engine, type, expression);
  const auto alternative = [&](const Alternative& atoms) {
    return joined(atoms, u" And ", [&](const Atom& atom) { return writer.atom(atom); });
  };
  Text condition;
  for (std::span rest(search); !rest.empty();) {
    const bool outside = is_outside(rest);
    if (!condition.empty()) condition += u" Or ";
    condition += outside ? writer.or_null(join({alternative(rest[0]), u" Or ", alternative(rest[1])}))
                         : alternative(rest[0]);
    rest = rest.subspan(outside ? 3 : 1);
  }
  if (reads_as_bound(condition, writer, search)) condition = join({u"(", condition, u")"});
  return is_too_long(condition) ? std::nullopt : std::optional(std::move(condition));
}

}  // namespace qvr::query
