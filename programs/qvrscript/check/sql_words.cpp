#include "qvrscript/check/sql_words.h"

#include <algorithm>

namespace qvr::script_tool {
namespace {

constexpr TextView kDdl[] = {u"CREATE", u"ALTER",   u"DROP",    u"TRUNCATE", u"RENAME",  u"GRANT",
                             u"REVOKE", u"COMMENT", u"ANALYZE", u"AUDIT",    u"NOAUDIT", u"PURGE"};
constexpr TextView kModules[] = {u"PROC", u"PROCEDURE", u"VIEW", u"FUNCTION", u"TRIGGER"};

// The kind of object that the command creates or alters; empty for other commands.
TextView made(const std::vector<Word>& words) {
  const bool create_or_alter = words_are(words, 0, {u"CREATE", u"OR"});
  const bool makes = words_are(words, 0, {u"CREATE"}) || words_are(words, 0, {u"ALTER"});
  const std::size_t at = create_or_alter ? 3 : 1;
  return makes && at < words.size() ? words[at].text : TextView();
}

}  // namespace

bool in_word(char16_t unit) {
  return unit == u'_' || unit == u'@' || unit == u'#' || unit == u'$' || unit >= 0x80 || is_digit(unit) ||
         is_ascii_letter(unit);
}

std::vector<Word> words_in(const Script& script, const ScriptCommand& piece) {
  std::vector<Word> words;
  const std::size_t end = piece.begin + piece.text.size();
  for (std::size_t at = piece.begin; at < end;) {
    if (const Region* region = region_at(script.regions(), at)) {
      at = region->end;
      continue;
    }
    const std::size_t begin = at;
    while (at < end && in_word(script.text()[at])) ++at;
    if (at > begin) words.push_back({script.text().substr(begin, at - begin), begin});
    if (at == begin) ++at;
  }
  return words;
}

std::size_t first_code(const Script& script, std::size_t begin, std::size_t end) {
  for (std::size_t at = begin; at < end;) {
    const Region* region = region_at(script.regions(), at);
    const bool comment = region != nullptr && is_comment(*region);
    if (!comment && kWhiteSpace.find(script.text()[at]) == TextView::npos) return at;
    at = comment ? region->end : at + 1;
  }
  return TextView::npos;
}

std::size_t last_code(const Script& script, const ScriptCommand& piece) {
  for (std::size_t end = piece.begin + piece.text.size(); end > piece.begin;) {
    const Region* region = region_at(script.regions(), end - 1);
    const bool comment = region != nullptr && is_comment(*region);
    if (!comment && kWhiteSpace.find(script.text()[end - 1]) == TextView::npos) return end - 1;
    end = comment ? region->begin : end - 1;
  }
  return TextView::npos;
}

bool holds_code(const Script& script, const ScriptCommand& piece) {
  return first_code(script, piece.begin, piece.begin + piece.text.size()) != TextView::npos;
}

std::size_t next_statement(const Script& script, const ScriptCommand& piece, std::size_t from) {
  const std::size_t end = piece.begin + piece.text.size();
  for (std::size_t at = from; at < end;) {
    if (const Region* region = region_at(script.regions(), at)) {
      at = region->end;
    } else if (script.text()[at++] == u';') {
      const std::size_t code = first_code(script, at, end);
      if (code == TextView::npos || script.text()[code] != u';') return code;
      at = code;
    }
  }
  return TextView::npos;
}

bool would_be_missed(const Script& script, const ScriptCommand& piece) {
  std::size_t from = piece.begin;
  const std::size_t end = piece.begin + piece.text.size();
  const auto code_before = [&](std::size_t to) {
    return holds_code(script, {script.text().substr(from, to - from), from});
  };
  for (const Word& word : words_in(script, piece)) {
    if (!equal_no_case(word.text, u"GO")) return true;
    if (code_before(word.begin)) return true;
    from = word.begin + word.text.size();
  }
  return code_before(end);
}

bool words_are(const std::vector<Word>& words, std::size_t at, std::initializer_list<TextView> wanted) {
  for (const TextView word : wanted) {
    if (at >= words.size() || !equal_no_case(words[at++].text, word)) return false;
  }
  return true;
}

bool is_ddl(const std::vector<Word>& words, std::size_t at) {
  if (words_are(words, at, {u"ALTER", u"SESSION"}) || words_are(words, at, {u"ALTER", u"SYSTEM"})) return false;
  return std::ranges::any_of(kDdl, [&](TextView each) { return words_are(words, at, {each}); });
}

bool is_module(const std::vector<Word>& words) {
  const TextView kind = made(words);
  return std::ranges::any_of(kModules, [&](TextView each) { return equal_no_case(each, kind); });
}

bool is_trigger(const std::vector<Word>& words) { return equal_no_case(made(words), u"TRIGGER"); }

}  // namespace qvr::script_tool
