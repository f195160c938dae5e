#include "dialect/sql_tokens.h"

#include <optional>
#include <ostream>

#include "base/utf8.h"

namespace qvr::tests {
namespace {

bool is_letter(char16_t unit) { return is_ascii_letter(unit) || unit == u'_'; }

class Tokenizer {
 public:
  Tokenizer(Engine engine, TextView sql) : engine_(engine), rest_(sql) {}

  Tokens all() {
    Tokens tokens;
    for (skip_blanks(); !rest_.empty(); skip_blanks()) {
      auto token = next();
      tokens.push_back(token ? *token : Token{TokenKind::Bad, Text(rest_)});
      if (!token) break;
    }
    return tokens;
  }

 private:
  // One token, or nothing where the engine would stop.
  std::optional<Token> next() {
    const char16_t first = rest_[0], second = rest_.size() > 1 ? rest_[1] : u'\0';
    if (first == u'\'') return literal(TokenKind::String);
    if (engine_ == Engine::SqlServer && first == u'N' && second == u'\'') {
      rest_.remove_prefix(1);
      return literal(TokenKind::Unicode);
    }
    if (engine_ == Engine::Jet && first == u'#') return jet_date();
    if (engine_ == Engine::SqlServer && first == u'{') return escape();
    if (is_digit(first) || (first == u'-' && is_digit(second))) return number();
    if (is_letter(first)) return word();
    if (TextView(u"(),=<>").find(first) == TextView::npos) return std::nullopt;
    return Token{TokenKind::Punctuation, take(1)};
  }

  std::optional<Token> literal(TokenKind kind) {
    Text content;
    for (std::size_t at = 1; at < rest_.size(); ++at) {
      const bool quote = rest_[at] == u'\'';
      if (quote && (at + 1 == rest_.size() || rest_[at + 1] != u'\'')) {
        rest_.remove_prefix(at + 1);
        return Token{kind, content};
      }
      content.push_back(rest_[at]);
      if (quote) ++at;
    }
    return std::nullopt;
  }

  std::optional<Token> jet_date() {
    const std::size_t end = rest_.find(u'#', 1);
    if (end == TextView::npos) return std::nullopt;
    const Text content(rest_.substr(1, end - 1));
    if (content.find_first_not_of(u"0123456789-: ") != Text::npos) return std::nullopt;
    rest_.remove_prefix(end + 1);
    return Token{TokenKind::Date, content};
  }

  // {d '...'}, {t '...'}, {ts '...'}
  std::optional<Token> escape() {
    rest_.remove_prefix(1);
    skip_blanks();
    const Text kind = take_while(is_letter);
    skip_blanks();
    if ((kind != u"d" && kind != u"t" && kind != u"ts") || !rest_.starts_with(u'\'')) return std::nullopt;
    const auto content = literal(TokenKind::String);
    skip_blanks();
    if (!content || !rest_.starts_with(u'}')) return std::nullopt;
    rest_.remove_prefix(1);
    return Token{TokenKind::Date, kind + u" " + content->content};
  }

  // Digits with decimals and an exponent, and nothing that would glue a name to them.
  std::optional<Token> number() {
    Text content = take(rest_[0] == u'-' ? 1 : 0);
    content += take_while(is_digit);
    if (rest_.starts_with(u'.')) {
      content += take(1);
      content += take_while(is_digit);
    }
    if (rest_.starts_with(u'E')) {
      content += take(rest_.size() > 1 && (rest_[1] == u'+' || rest_[1] == u'-') ? 2 : 1);
      if (rest_.empty() || !is_digit(rest_[0])) return std::nullopt;
      content += take_while(is_digit);
    }
    if (!rest_.empty() && (is_letter(rest_[0]) || rest_[0] == u'.')) return std::nullopt;
    return Token{TokenKind::Number, content};
  }

  std::optional<Token> word() {
    Text content = take_while([](char16_t unit) { return is_letter(unit) || is_digit(unit); });
    if (engine_ == Engine::Oracle && content == u"TO_DATE") return oracle_date();
    return Token{TokenKind::Word, content};
  }

  // ('...','...') behind TO_DATE
  std::optional<Token> oracle_date() {
    if (!rest_.starts_with(u"('")) return std::nullopt;
    rest_.remove_prefix(1);
    const auto date = literal(TokenKind::String);
    if (!date || !rest_.starts_with(u",'")) return std::nullopt;
    rest_.remove_prefix(1);
    const auto mask = literal(TokenKind::String);
    if (!mask || !rest_.starts_with(u')')) return std::nullopt;
    rest_.remove_prefix(1);
    return Token{TokenKind::Date, date->content + u"|" + mask->content};
  }

  Text take(std::size_t units) {
    const Text taken(rest_.substr(0, units));
    rest_.remove_prefix(units);
    return taken;
  }
  template <class Wanted>
  Text take_while(Wanted wanted) {
    std::size_t units = 0;
    while (units < rest_.size() && wanted(rest_[units])) ++units;
    return take(units);
  }
  void skip_blanks() {
    while (!rest_.empty() && kWhiteSpace.find(rest_[0]) != TextView::npos) rest_.remove_prefix(1);
  }

  Engine engine_;
  TextView rest_;
};

}  // namespace

Tokens tokens_of(Engine engine, TextView sql) { return Tokenizer(engine, sql).all(); }

void PrintTo(const Token& token, std::ostream* out) {
  constexpr const char* kKinds[] = {"Word", "String", "Unicode", "Number", "Date", "Punctuation", "Bad"};
  *out << kKinds[static_cast<std::size_t>(token.kind)] << ' ' << to_utf8(token.content);
}

}  // namespace qvr::tests
