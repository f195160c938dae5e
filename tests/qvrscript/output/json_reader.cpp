#include "output/json_reader.h"

#include <charconv>
#include <stdexcept>

#include "base/utf8.h"

namespace qvr::tests {
namespace {

class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  Json document() {
    Json read = value();
    blanks();
    require(at_ == text_.size());
    return read;
  }

 private:
  static void require(bool holds) {
    if (!holds) throw std::runtime_error("no JSON");
  }

  char peek() const {
    require(at_ < text_.size());
    return text_[at_];
  }
  char take() {
    const char taken = peek();
    ++at_;
    return taken;
  }
  bool take_if(char wanted) {
    blanks();
    if (peek() != wanted) return false;
    ++at_;
    return true;
  }
  void blanks() {
    while (at_ < text_.size() && std::string_view(" \t\r\n").find(text_[at_]) != std::string_view::npos) ++at_;
  }
  void word(std::string_view wanted) {
    require(text_.substr(at_).starts_with(wanted));
    at_ += wanted.size();
  }

  Json value() {
    blanks();
    switch (peek()) {
      case '{': return {members()};
      case '[': return {items()};
      case '"': return {string()};
      case 't': return word("true"), Json{true};
      case 'f': return word("false"), Json{false};
      case 'n': return word("null"), Json{nullptr};
      default: return {number()};
    }
  }

  Json::Members members() {
    Json::Members read;
    take();
    if (take_if('}')) return read;
    do {
      blanks();
      require(peek() == '"');
      std::string name = string();
      require(take_if(':'));
      require(read.emplace(std::move(name), value()).second);
    } while (take_if(','));
    require(take_if('}'));
    return read;
  }

  Json::Items items() {
    Json::Items read;
    take();
    if (take_if(']')) return read;
    do read.push_back(value());
    while (take_if(','));
    require(take_if(']'));
    return read;
  }

  double number() {
    double read = 0;
    const auto [end, error] = std::from_chars(text_.data() + at_, text_.data() + text_.size(), read);
    require(error == std::errc());
    at_ = static_cast<std::size_t>(end - text_.data());
    return read;
  }

  std::string string() {
    std::string read;
    take();
    for (char each = take(); each != '"'; each = take()) {
      require(static_cast<unsigned char>(each) >= 0x20);
      read += each == '\\' ? escape() : std::string(1, each);
    }
    const auto text = from_utf8(read);
    require(text.has_value());
    return read;
  }

  std::string escape() {
    const char mark = take();
    if (mark == 'u') return unit();
    const std::size_t known = std::string_view("\"\\/bfnrt").find(mark);
    require(known != std::string_view::npos);
    return {"\"\\/\b\f\n\r\t"[known]};
  }

  std::string unit() {
    unsigned code = 0;
    const std::string_view digits = text_.substr(at_, 4);
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
    require(error == std::errc() && digits.size() == 4 && end == digits.data() + 4);
    at_ += 4;
    return to_utf8(Text(1, static_cast<char16_t>(code)));
  }

  std::string_view text_;
  std::size_t at_ = 0;
};

}  // namespace

Json read_json(std::string_view text) { return Reader(text).document(); }

}  // namespace qvr::tests
