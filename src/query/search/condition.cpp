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
    if (!atom.negated) return joined(atom.tests, u" And ", [this](const Test& test) { return positive(test); });
    const Test& first = atom.tests.front();
    if (std::holds_alternative<IsNull>(first)) return join({u"Not (", is_null(), u")"});
    if (std::holds_alternative<IsEmpty>(first)) return join({u"Not (", empty_or_null(), u")"});
    return or_null(joined(atom.tests, u" Or ", [this](const Test& test) { return negative(test); }));
  }

  // "(... Or X Is Null)"
  Text or_null(TextView condition) const { return join({u"(", condition, u" Or ", is_null(), u")"}); }

 private:
  Text positive(const Test& test) const {
    return std::visit([this](const auto& held) { return written(held); }, test);
  }
  // The opposite, which does not select null.
  Text negative(const Test& test) const {
    return std::visit([this](const auto& held) { return opposite_of(held); }, test);
  }

  Text written(const IsNull&) const { return join({u"(", is_null(), u")"}); }
  Text opposite_of(const IsNull&) const { return join({u"Not (", is_null(), u")"}); }

  Text written(const IsEmpty&) const { return join({u"(", empty_or_null(), u")"}); }
  Text opposite_of(const IsEmpty&) const { return join({u"Not (", empty_or_null(), u")"}); }

  Text written(const IsTrue& test) const {
    return test.truth ? dialect::sqlEsTrue(expression_) : dialect::sqlEsFalse(expression_);
  }
  Text opposite_of(const IsTrue& test) const { return written(IsTrue{!test.truth}); }

  Text written(const Like& test) const { return like(test.pattern, u" LIKE "); }
  Text opposite_of(const Like& test) const { return like(test.pattern, u" NOT LIKE "); }

  Text written(const CompareText& test) const {
    if (like_only_) return like(Operand::literal(test.operand.text()), u" LIKE ");
    const Text compared = compared_text(test.comparison, test);
    if (!test.with_all_that_begins) return compared;
    Operand begins = Operand::literal(test.operand.text());
    begins.append_wildcard(u'*');
    return test.comparison == Comparison::LessOrEqual ? join({u"(", compared, u" Or ", like(begins, u" LIKE "), u")"})
                                                      : join({compared, u" And ", like(begins, u" NOT LIKE ")});
  }
  Text opposite_of(const CompareText& test) const {
    if (like_only_) return like(Operand::literal(test.operand.text()), u" NOT LIKE ");
    if (test.comparison == Comparison::Equal) return compared_text(Comparison::Different, test);
    return written(CompareText{opposite(test.comparison), test.operand, test.with_all_that_begins});
  }
  Text compared_text(Comparison comparison, const CompareText& test) const {
    return join({subject(), sign_of(comparison), in_upper(literal(test.operand.text()))});
  }

  Text written(const CompareNumber& test) const { return compared_number(test.comparison, test.digits); }
  Text opposite_of(const CompareNumber& test) const { return compared_number(opposite(test.comparison), test.digits); }
  Text compared_number(Comparison comparison, TextView digits) const {
    return join({expression_, sign_of(comparison), digits.starts_with(u'-') ? u"" : u" ", digits});
  }

  Text written(const CompareDate& test) const { return compared_period(test.comparison, test.period); }
  Text opposite_of(const CompareDate& test) const { return compared_period(opposite(test.comparison), test.period); }
  Text compared_period(Comparison comparison, const Period& period) const {
    const auto beside = [&](TextView sign, const Moment& moment) {
      const Date date = date_of(moment);
      return join({expression_, sign,
                   period.whole_days ? dialect::FechaSQL(engine_, date) : dialect::FechaHoraSQL(engine_, date)});
    };
    switch (comparison) {
      case Comparison::Equal: return join({beside(u">=", period.from), u" And ", beside(u"<", period.to)});
      case Comparison::Different: return join({beside(u"<", period.from), u" Or ", beside(u">=", period.to)});
      case Comparison::Less: return beside(u"<", period.from);
      case Comparison::LessOrEqual: return beside(u"<", period.to);
      case Comparison::Greater: return beside(u">=", period.to);
      default: return beside(u">=", period.from);
    }
  }

  Text is_null() const { return join({expression_, u" Is Null"}); }
  // Oracle stores the empty text as null.
  Text empty_or_null() const {
    if (engine_ == Engine::Oracle) return is_null();
    return join({expression_, like_only_ ? u" LIKE " : u"=", literal(u""), u" Or ", is_null()});
  }

  Text literal(TextView text) const {
    return join({engine_ == Engine::SqlServer ? u"N" : u"", dialect::ComillasSQL(text)});
  }
  Text subject() const { return upper_ ? join({u" UPPER(", expression_, u")"}) : Text(expression_); }
  Text in_upper(Text operand) const { return upper_ ? join({u"UPPER(", operand, u")"}) : std::move(operand); }

  Text like(const Operand& pattern, TextView sign) const {
    const PatternText written = pattern_text(engine_, pattern);
    return join({subject(), sign, in_upper(written.literal), written.escape});
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
  for (std::size_t i = 0; i < condition.size(); ++i) {
    if (condition[i] == u'\'') quoted = !quoted;
    const TextView rest = condition.substr(i);
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
