#include "query/search/condition_evaluator.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>

#include "base/utf8.h"
#include "dialect/sql_tokens.h"
#include "query/search/like_rules.h"

namespace qvr::tests {
namespace {

enum class Truth { False, Unknown, True };

Truth of(bool truth) { return truth ? Truth::True : Truth::False; }
Truth opposite(Truth truth) { return static_cast<Truth>(2 - static_cast<int>(truth)); }

struct NoCondition {};

class Evaluation {
 public:
  Evaluation(Engine engine, TextView condition, const Cell& cell)
      : engine_(engine), cell_(cell), tokens_(tokens_of(engine, condition)) {}

  bool whole() {
    const Truth truth = alternatives();
    if (at_ != tokens_.size()) throw NoCondition();
    return truth == Truth::True;
  }

 private:
  Truth alternatives() {
    Truth truth = conjunction();
    while (accept(TokenKind::Word, u"Or")) truth = std::max(truth, conjunction());
    return truth;
  }

  Truth conjunction() {
    Truth truth = negation();
    while (accept(TokenKind::Word, u"And")) truth = std::min(truth, negation());
    return truth;
  }

  Truth negation() { return accept(TokenKind::Word, u"Not") ? opposite(primary()) : primary(); }

  Truth primary() {
    if (!accept(TokenKind::Punctuation, u"(")) return test();
    const Truth truth = alternatives();
    expect(TokenKind::Punctuation, u")");
    return truth;
  }

  Truth test() {
    const Cell left = operand();
    if (accept(TokenKind::Word, u"Is")) {
      expect(TokenKind::Word, u"Null");
      return of(std::holds_alternative<std::monostate>(left));
    }
    const bool negated = accept(TokenKind::Word, u"NOT");
    if (accept(TokenKind::Word, u"LIKE")) return like(left, negated);
    if (negated) throw NoCondition();
    const Text sign = comparison();
    return compared(left, sign, operand());
  }

  Truth like(const Cell& left, bool negated) {
    const Cell pattern = operand();
    const Text escape = accept(TokenKind::Word, u"ESCAPE") ? take(TokenKind::String) : Text();
    const Text* text = std::get_if<Text>(&left);
    const Text* wanted = std::get_if<Text>(&pattern);
    if (text == nullptr || wanted == nullptr) return Truth::Unknown;
    const Truth found = of(is_like(engine_, *text, *wanted, escape));
    return negated ? opposite(found) : found;
  }

  Text comparison() {
    Text sign;
    while (at_ < tokens_.size() && tokens_[at_].kind == TokenKind::Punctuation &&
           TextView(u"<>=").find(tokens_[at_].content) != TextView::npos) {
      sign += tokens_[at_++].content;
    }
    return sign;
  }

  Truth compared(const Cell& left, const Text& sign, const Cell& right) {
    if (left.index() == 0 || right.index() == 0) return Truth::Unknown;
    if (left.index() != right.index()) throw NoCondition();
    const auto order = order_of(left, right);
    if (sign == u"=") return of(order == 0);
    if (sign == u"<>") return of(order != 0);
    if (sign == u"<") return of(order < 0);
    if (sign == u"<=") return of(order <= 0);
    if (sign == u">") return of(order > 0);
    if (sign == u">=") return of(order >= 0);
    throw NoCondition();
  }

  std::partial_ordering order_of(const Cell& left, const Cell& right) const {
    if (const Text* text = std::get_if<Text>(&left); text != nullptr && engine_ == Engine::Jet) {
      return in_capitals(*text) <=> in_capitals(std::get<Text>(right));
    }
    return left <=> right;
  }

  Cell operand() {
    if (at_ == tokens_.size()) throw NoCondition();
    const Token& token = tokens_[at_++];
    switch (token.kind) {
      case TokenKind::String:
        if (engine_ == Engine::Oracle && token.content.empty()) return std::monostate();
        return token.content;
      case TokenKind::Unicode: return token.content;
      case TokenKind::Number: return std::strtod(to_utf8(token.content).c_str(), nullptr);
      case TokenKind::Date: return moment_in(token.content).value();
      case TokenKind::Word: return token.content == u"X" ? cell() : capitals(token);
      default: throw NoCondition();
    }
  }

  Cell cell() const {
    const Text* text = std::get_if<Text>(&cell_);
    return engine_ == Engine::Oracle && text != nullptr && text->empty() ? Cell() : cell_;
  }

  Cell capitals(const Token& function) {
    if (function.content != u"UPPER") throw NoCondition();
    expect(TokenKind::Punctuation, u"(");
    Cell inner = operand();
    expect(TokenKind::Punctuation, u")");
    if (Text* text = std::get_if<Text>(&inner)) *text = in_capitals(*text);
    return inner;
  }

  bool accept(TokenKind kind, TextView content) {
    const bool there = at_ < tokens_.size() && tokens_[at_] == Token{kind, Text(content)};
    at_ += there ? 1 : 0;
    return there;
  }
  void expect(TokenKind kind, TextView content) {
    if (!accept(kind, content)) throw NoCondition();
  }
  Text take(TokenKind kind) {
    if (at_ == tokens_.size() || tokens_[at_].kind != kind) throw NoCondition();
    return tokens_[at_++].content;
  }

  Engine engine_;
  const Cell& cell_;
  Tokens tokens_;
  std::size_t at_ = 0;
};

}  // namespace

std::optional<Moment> moment_in(TextView text) {
  const std::size_t start = text.find_first_of(u"0123456789");
  if (start == TextView::npos || text.size() < start + 10) return std::nullopt;
  const std::string plain = to_utf8(text.substr(start));
  const auto number = [&](std::size_t at, std::size_t digits) { return std::atoi(plain.substr(at, digits).c_str()); };
  using namespace std::chrono;
  const year_month_day date{year{number(0, 4)}, month{static_cast<unsigned>(number(5, 2))},
                            day{static_cast<unsigned>(number(8, 2))}};
  const std::int64_t days = sys_days(date).time_since_epoch().count();
  const bool clock = plain.size() >= 19 && plain[10] == ' ';
  return Moment{days * 86400 + (clock ? number(11, 2) * 3600 + number(14, 2) * 60 + number(17, 2) : 0)};
}

std::optional<bool> selects(Engine engine, TextView condition, const Cell& cell) {
  try {
    return Evaluation(engine, condition, cell).whole();
  } catch (const NoCondition&) {
    return std::nullopt;
  }
}

bool is_condition(Engine engine, TextView condition) { return selects(engine, condition, Cell()).has_value(); }

std::size_t joints(Engine engine, TextView condition) {
  const Tokens tokens = tokens_of(engine, condition);
  return static_cast<std::size_t>(std::ranges::count_if(tokens, [](const Token& token) {
    return token.kind == TokenKind::Word && (token.content == u"And" || token.content == u"Or");
  }));
}

}  // namespace qvr::tests
