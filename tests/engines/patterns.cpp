// LIKE patterns: the rows that the engine finds are those that the user's "*" and "?" mean.
#include "dialect/like_pattern.h"
#include "dialect/literals.h"
#include "engines/checked_script.h"

namespace qvr::tests {
namespace {

// "*" is any run of characters, "?" is one, everything else stands for itself.
bool means(TextView pattern, TextView text) {
  if (pattern.empty()) return text.empty();
  if (pattern[0] == u'*') return means(pattern.substr(1), text) || (!text.empty() && means(pattern, text.substr(1)));
  return !text.empty() && (pattern[0] == u'?' || pattern[0] == text[0]) && means(pattern.substr(1), text.substr(1));
}

constexpr TextView kTexts[] = {
    u"ana",  u"ana lopez", u"mariana",         u"50%", u"50",    u"500",  u"a_b",
    u"axb",  u"O'Neil",    u"[2026]",          u"2",   u"!",     u"50!%", u"!&/()$#=|%",
    u"a\\b", u"a\\%b",     u"\u00f1and\u00fa", u"--x", u"/*y*/", u"x;y",  u"%",
    u"_",    u"a%_!&c",    u"a\r\nb",
};

struct PatternRow {
  const char* name;
  TextView text;
  bool leading, trailing;
};

constexpr PatternRow kPatterns[] = {
    {"whole", u"ana", false, false},
    {"contained", u"ana", true, true},
    {"beginning", u"ana", false, true},
    {"end", u"ana", true, false},
    {"one character", u"a?b", false, false},
    {"a run", u"a*b", false, false},
    {"a per cent sign", u"50%", false, true},
    {"an underscore", u"a_b", false, false},
    {"only a per cent sign", u"%", false, false},
    {"only an underscore", u"_", true, true},
    {"an escape character", u"!", true, true},
    {"both signs and escapes", u"%_!&", true, true},
    {"an escape before a sign", u"!%", true, true},
    {"a quote", u"O'N*", false, false},
    {"a backslash", u"\\", true, true},
    {"a backslash before a sign", u"a\\%b", false, false},
    {"comment signs", u"--", false, true},
    {"a semicolon", u";", true, true},
    {"letters beyond ASCII", u"\u00f1*\u00fa", false, false},
    {"blanks at the edges", u"  ana  ", false, false},
    {"everything", u"", true, true},
    {"brackets", u"[2026]", false, false},
    {"line breaks", u"a*b", true, true},
};

TextView trimmed_pattern(TextView text) {
  while (!text.empty() && text.front() == u' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == u' ') text.remove_suffix(1);
  return text;
}

// What the pattern means: the user's text with "*" where the flags ask for one.
Text meant(const PatternRow& row) {
  Text pattern(trimmed_pattern(row.text));
  if (row.leading && !pattern.starts_with(u'*')) pattern = u"*" + pattern;
  if (row.trailing && !pattern.ends_with(u'*')) pattern += u"*";
  return pattern;
}

}  // namespace

void add_patterns(CheckedScript& script) {
  script.run(u"CREATE TABLE Texts (Weight BIGINT, Content VARCHAR(100))");
  std::int64_t weight = 1;
  for (const TextView text : kTexts) {
    script.run(join({u"INSERT INTO Texts VALUES (", decimal(weight), u",", dialect::ComillasSQL(text), u")"}));
    weight *= 2;
  }
  for (const PatternRow& row : kPatterns) {
    std::int64_t expected = 0;
    weight = 1;
    for (const TextView text : kTexts) {
      if (means(meant(row), text)) expected += weight;
      weight *= 2;
    }
    const Text pattern = dialect::PatronLikeMotor(script.engine(), row.text, row.leading, row.trailing);
    script.check(std::string("pattern: ") + row.name,
                 join({u"(SELECT Coalesce(Sum(Weight),0) FROM Texts WHERE Content LIKE ", pattern, u")=",
                       decimal(expected)}));
  }
}

}  // namespace qvr::tests
