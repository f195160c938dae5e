// The tokens that a statement must have, put together from those of its values.
#pragma once

#include <initializer_list>
#include <utility>
#include <vector>

#include "dialect/hostile_values.h"

namespace qvr::tests {

class ExpectedTokens {
 public:
  explicit ExpectedTokens(Engine engine) : engine_(engine) {}

  ExpectedTokens& words(std::initializer_list<TextView> words) {
    for (const TextView word : words) tokens_.push_back({TokenKind::Word, Text(word)});
    return *this;
  }
  ExpectedTokens& sign(char16_t sign) {
    tokens_.push_back({TokenKind::Punctuation, Text(1, sign)});
    return *this;
  }
  ExpectedTokens& value(const Sample& sample) {
    const Tokens& tokens = sample.for_engine(engine_);
    tokens_.insert(tokens_.end(), tokens.begin(), tokens.end());
    return *this;
  }
  ExpectedTokens& field(std::size_t number) { return words({u"f" + decimal(static_cast<std::int64_t>(number))}); }
  ExpectedTokens& number(TextView digits) {
    tokens_.push_back({TokenKind::Number, Text(digits)});
    return *this;
  }
  // f0=v,f1=v but for the one left out.
  ExpectedTokens& assignments(const std::vector<Sample>& samples, std::size_t left_out) {
    bool first = true;
    for (std::size_t i = 0; i < samples.size(); ++i) {
      if (i == left_out) continue;
      if (!std::exchange(first, false)) sign(u',');
      field(i).sign(u'=').value(samples[i]);
    }
    return *this;
  }
  ExpectedTokens& values(const std::vector<Sample>& samples) {
    sign(u'(');
    for (std::size_t i = 0; i < samples.size(); ++i) (i > 0 ? sign(u',') : *this).value(samples[i]);
    return sign(u')');
  }
  ExpectedTokens& fields(std::size_t count) {
    sign(u'(');
    for (std::size_t i = 0; i < count; ++i) (i > 0 ? sign(u',') : *this).field(i);
    return sign(u')');
  }

  const Tokens& tokens() const { return tokens_; }

 private:
  Engine engine_;
  Tokens tokens_;
};

}  // namespace qvr::tests
