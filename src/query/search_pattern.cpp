// LIKE patterns in which any character can be meant.
#include "dialect/like_pattern.h"
#include "dialect/literals.h"
#include "query/search_condition.h"

namespace qvr::query {
namespace {

// Jet knows no ESCAPE: whatever means something to it goes into brackets.
constexpr TextView kSpecialToJet = u"%_#[*?";

bool is_special(Engine engine, char16_t unit, bool bracketed) {
  if (engine == Engine::Jet) return kSpecialToJet.find(unit) != TextView::npos;
  return unit == u'%' || unit == u'_' || (bracketed && unit == u'[');
}

// A character that is free to mark others: the usual candidates, else one that nobody types. No letter: both sides of
// the comparison may be turned to capitals.
Text free_escape(Engine engine, TextView text) {
  const Text usual = dialect::CaracterEscapeLibre(text);
  if (!usual.empty() || engine != Engine::Oracle) return usual;
  for (char16_t unit = u'\u2500'; unit < u'\u2800'; ++unit) {
    if (text.find(unit) == TextView::npos) return Text(1, unit);
  }
  return {};
}

}  // namespace

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

}  // namespace qvr::query
