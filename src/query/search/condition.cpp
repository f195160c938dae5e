#include "query/search/condition.h"

#include "dialect/like_pattern.h"
#include "dialect/literals.h"
#include "query/search/periods.h"

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

  Text operator()(const IsNull& atom) const { return in_not(atom.negated, is_null()); }

  // Oracle stores the empty text as null.
  Text operator()(const IsEmpty& atom) const {
    if (engine_ == Engine::Oracle) return in_not(atom.negated, is_null());
    const Text empty = join({expression_, like_only_ ? u" LIKE " : u"=", literal(u"")});
    return in_not(atom.negated, join({empty, u" Or ", is_null()}));
  }

  Text operator()(const CompareText& atom) const {
    const bool different = atom.comparison == Comparison::Different;
    if (like_only_) return (*this)(Like{different, Operand::literal(atom.operand.text())});
    const Text compared = join({subject(), sign_of(atom.comparison), in_upper(literal(atom.operand.text()))});
    if (different) return or_null(compared);
    if (!atom.and_what_begins_so) return compared;
    Operand begins = Operand::literal(atom.operand.text());
    begins.append_wildcard(u'*');
    return join({u"(", compared, u" Or ", like(begins, false), u")"});
  }

  Text operator()(const Like& atom) const {
    return atom.negated ? or_null(like(atom.pattern, true)) : like(atom.pattern, false);
  }

  Text operator()(const CompareNumber& atom) const {
    const TextView blank = atom.digits.starts_with(u'-') ? u"" : u" ";
    const Text compared = join({expression_, sign_of(atom.comparison), blank, atom.digits});
    return atom.comparison == Comparison::Different ? or_null(compared) : compared;
  }

  Text operator()(const CompareDate& atom) const {
    const auto beside = [&](TextView sign, const Moment& moment) {
      const Date date = date_of(moment);
      const Text written = atom.whole_day ? dialect::FechaSQL(engine_, date) : dialect::FechaHoraSQL(engine_, date);
      return join({expression_, sign, written});
    };
    switch (atom.comparison) {
      case Comparison::Equal: return join({beside(u">=", atom.from), u" And ", beside(u"<", atom.to)});
      case Comparison::Different: return or_null(join({beside(u"<", atom.from), u" Or ", beside(u">=", atom.to)}));
      case Comparison::Less: return beside(u"<", atom.from);
      case Comparison::LessOrEqual: return beside(u"<", atom.to);
      case Comparison::Greater: return beside(u">=", atom.to);
      default: return beside(u">=", atom.from);
    }
  }

  Text operator()(const CompareTruth& atom) const {
    const bool truth = atom.truth != atom.negated;
    const Text tested = truth ? dialect::sqlEsTrue(expression_) : dialect::sqlEsFalse(expression_);
    return atom.negated ? or_null(tested) : tested;
  }

 private:
  Text is_null() const { return join({expression_, u" Is Null"}); }
  Text or_null(TextView condition) const { return join({u"(", condition, u" Or ", expression_, u" Is Null)"}); }
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

// "<=C; C*" in parentheses would read like the inclusive upper bound "C*" inside a longer condition.
bool reads_as_bound(TextView condition, const ConditionWriter& writer, const Alternatives& search) {
  const auto* first = std::get_if<CompareText>(&search.front().front());
  if (search.size() != 2 || first == nullptr || first->comparison != Comparison::LessOrEqual) return false;
  return equal_no_case(join({u"(", condition, u")"}), writer(CompareText{first->comparison, first->operand, true}));
}

}  // namespace

Text search_condition(Engine engine, SearchType type, TextView expression, const Alternatives& search) {
  const ConditionWriter writer(engine, type, expression);
  Text condition;
  for (const Alternative& alternative : search) {
    if (&alternative != search.data()) condition += u" Or ";
    for (const Atom& atom : alternative) {
      if (&atom != alternative.data()) condition += u" And ";
      condition += std::visit(writer, atom);
    }
  }
  if (reads_as_bound(condition, writer, search)) return join({u"(", condition, u")"});
  return condition;
}

}  // namespace qvr::query
