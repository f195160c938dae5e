#include <algorithm>
#include <array>

#include "qvrscript/check/rules.h"
#include "qvrscript/check/silence.h"
#include "qvrscript/engines.h"
#include "script/script_preparation.h"

namespace qvr::script_tool {
namespace {

constexpr std::array<TextView, 6> kWords = {u"NombreBD",           u"LogFile",       u"UsuarioQVRAdm",
                                            u"ClaveUsuarioQVRAdm", u"UsuarioQVRCli", u"ClaveUsuarioQVRCli"};
constexpr std::size_t kLongest = 64;

// Uses the library's own preparation.
bool is_replaced(TextView bracketed, Engine engine) {
  Silence silence;
  return with_accounts(Text(bracketed), engine, {}, silence) != bracketed;
}

Text without_blanks(TextView word) {
  Text bare;
  for (const char16_t unit : word) {
    if (unit != u' ' && unit != u'\t' && unit != u'_' && unit != u'-') bare.push_back(fold(unit));
  }
  return bare;
}

// Damerau-Levenshtein distance (optimal string alignment).
std::size_t distance(TextView a, TextView b) {
  std::vector<std::vector<std::size_t>> steps(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
  for (std::size_t i = 0; i <= a.size(); ++i) {
    for (std::size_t j = 0; j <= b.size(); ++j) {
      if (i == 0 || j == 0) {
        steps[i][j] = i + j;
        continue;
      }
      const std::size_t changed = steps[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
      steps[i][j] = std::min({changed, steps[i - 1][j] + 1, steps[i][j - 1] + 1});
      const bool swapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
      if (swapped) steps[i][j] = std::min(steps[i][j], steps[i - 2][j - 2] + 1);
    }
  }
  return steps[a.size()][b.size()];
}

// Stricter for short words, which are likely to be other names, of columns say.
bool is_near(TextView word, TextView known) {
  constexpr std::size_t kShort = 10;
  const std::size_t most = known.size() < kShort ? 1 : 2;
  const std::size_t longer = std::max(word.size(), known.size()), shorter = std::min(word.size(), known.size());
  return longer - shorter <= most && distance(word, without_blanks(known)) <= most;
}

// The word that was probably meant; empty for none.
TextView meant(TextView word) {
  const Text bare = without_blanks(word);
  const auto* found = std::ranges::find_if(kWords, [&](TextView known) { return is_near(bare, known); });
  return found == kWords.end() ? TextView() : *found;
}

bool looks_ours(TextView word) { return find_no_case(word, u"QVR") != TextView::npos; }

bool is_name(TextView word) {
  return !word.empty() && std::ranges::all_of(word, [](char16_t unit) {
    return unit == u'_' || unit >= 0x80 || is_digit(unit) || is_ascii_letter(unit);
  });
}

void check_word(const Script& script, std::size_t begin, TextView bracketed, Findings& findings) {
  if (is_replaced(bracketed, script.engine())) return;
  const TextView word = bracketed.substr(1, bracketed.size() - 2);
  const std::size_t line = script.line_of(begin);
  if (is_replaced(bracketed, Engine::Oracle)) {
    findings.add(line, "placeholder-of-oracle", {bracketed, u" is replaced in scripts for Oracle only"});
  } else if (const TextView known = meant(word); !known.empty()) {
    findings.add(line, "placeholder-misspelt",
                 {bracketed, u" is no placeholder and stays as it is; [", known, u"] would be one"});
  } else if (looks_ours(word)) {
    findings.add(line, "placeholder-unknown", {bracketed, u" is no placeholder and stays as it is"});
  } else if (script.engine() == Engine::Oracle && is_name(word)) {
    findings.add(line, "placeholder-unknown",
                 {bracketed, u" is no placeholder and stays as it is; Oracle has no names in brackets"});
  }
}

bool in_comment(const Script& script, std::size_t position) {
  const Region* region = region_at(script.regions(), position);
  return region != nullptr && is_comment(*region);
}

}  // namespace

// Also in strings and quoted names, as replacing does not parse.
void check_placeholders(const Script& script, Findings& findings) {
  const TextView text = script.text();
  for (auto at = text.find(u'['); at != TextView::npos; at = text.find(u'[', at + 1)) {
    const std::size_t length = text.substr(at, kLongest).find(u']');
    if (length == TextView::npos || in_comment(script, at)) continue;
    const TextView bracketed = text.substr(at, length + 1);
    if (bracketed.find_first_of(u"\r\n") == TextView::npos) check_word(script, at, bracketed, findings);
  }
}

}  // namespace qvr::script_tool
