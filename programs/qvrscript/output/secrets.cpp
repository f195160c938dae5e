#include "qvrscript/output/secrets.h"

#include <algorithm>
#include <array>
#include <utility>

namespace qvr::script_tool {
namespace {

constexpr TextView kMask = u"***";
constexpr std::size_t kShortest = 4;  // that is replaced inside a word, too

struct Range {
  std::size_t begin, end;
};

bool in_word(char16_t unit) { return is_ascii_letter(unit) || is_digit(unit) || unit == u'_' || unit >= 0x80; }

bool stands_alone(TextView text, Range range) {
  const bool before = range.begin > 0 && in_word(text[range.begin - 1]);
  return !before && (range.end == text.size() || !in_word(text[range.end]));
}

// Every occurrence, overlapping ones too, in one pass: a text from a server may be large and a secret repetitive.
template <class Found>
void each_occurrence(TextView text, TextView what, Found found) {
  std::vector<std::size_t> border(what.size() + 1, 0);  // of each beginning: its longest one that is also its end
  for (std::size_t i = 1, length = 0; i < what.size(); ++i) {
    while (length > 0 && what[i] != what[length]) length = border[length];
    if (what[i] == what[length]) ++length;
    border[i + 1] = length;
  }
  for (std::size_t i = 0, length = 0; i < text.size(); ++i) {
    while (length > 0 && (length == what.size() || text[i] != what[length])) length = border[length];
    if (text[i] == what[length]) ++length;
    if (length == what.size()) found(Range{i + 1 - length, i + 1});
  }
}

bool is_one_of(TextView units, char16_t unit) { return units.find(unit) != TextView::npos; }

std::size_t skipped(TextView text, std::size_t from, TextView units) {
  return std::min(text.find_first_not_of(units, from), text.size());
}

// How many quotes stand for one where these open a value: 1, and twice as many for each text that it stands in. Further
// ones in their run are quotes of the value.
std::size_t quote_depth(TextView value) {
  const std::size_t run = skipped(value, 0, value.substr(0, 1));
  return run & (~run + 1);
}

std::size_t quoted_end(TextView text, std::size_t from) {
  const char16_t quote = text[from];
  const std::size_t opened = skipped(text, from, TextView(&quote, 1)), run = opened - from;
  const bool at_end = opened == text.size() || is_one_of(u";\r\n", text[opened]);
  if (run % 2 == 0 && at_end) return opened;  // the empty value
  const std::size_t depth = quote_depth(text.substr(from));
  for (std::size_t at = opened; at < text.size() && !is_one_of(u"\r\n", text[at]);) {
    if (text[at] != quote) {
      ++at;
      continue;
    }
    const std::size_t end = skipped(text, at, TextView(&quote, 1)), closing = end - at;
    if (closing / depth % 2 == 1) return at + closing / depth * depth;
    at = end;
  }
  return std::min(text.find_first_of(u"\r\n", from), text.size());
}

std::size_t braced_end(TextView text, std::size_t from) {
  for (std::size_t at = from + 1; at < text.size(); ++at) {
    if (text[at] != u'}') continue;
    if (at + 1 == text.size() || text[at + 1] != u'}') return at + 1;
    ++at;
  }
  return text.size();
}

// Up to the semicolon, blanks too: what else is lost of the line is not worth the end of a password. Inside quotes it
// ends with them, and has its own ones doubled.
std::size_t bare_end(TextView text, std::size_t from, bool inside_quotes) {
  const std::size_t end = std::min(text.find_first_of(u";\r\n", from), text.size());
  if (!inside_quotes) return end;
  for (std::size_t at = text.find(u'"', from); at < end; at = text.find(u'"', at)) {
    const std::size_t after = skipped(text, at, u"\"");
    if ((after - at) % 2 == 1) return after - 1;
    at = after;
  }
  return end;
}

std::size_t value_end(TextView text, std::size_t from, bool inside_quotes) {
  if (from == text.size()) return from;
  if (inside_quotes && skipped(text, from, u"\"") == from + 1) return from;  // the closing one
  if (is_one_of(u"\"'", text[from])) return quoted_end(text, from);
  if (text[from] == u'{') return braced_end(text, from);
  return bare_end(text, from, inside_quotes);
}

// Whether a position is inside quotes that opened in its line; asked for rising positions.
class Quotes {
 public:
  explicit Quotes(TextView text) : text_(text) {}
  bool open_at(std::size_t position) {
    for (; at_ < position; ++at_) {
      if (text_[at_] == u'"') open_ = !open_;
      if (text_[at_] == u'\n') open_ = false;
    }
    return open_;
  }

 private:
  TextView text_;
  std::size_t at_ = 0;
  bool open_ = false;
};

constexpr std::array<TextView, 3> kPasswordWords{u"password", u"pwd", u"passwd"};

// Wherever a word that ends so is followed by "=": also "Jet OLEDB:Database Password".
template <class Found>
void each_password_value(TextView text, Found found) {
  Quotes quotes(text);
  for (std::size_t equals = text.find(u'='); equals != TextView::npos; equals = text.find(u'=', equals + 1)) {
    const std::size_t last = equals == 0 ? TextView::npos : text.find_last_not_of(u" \t", equals - 1);
    if (last == TextView::npos) continue;
    const bool means_password = std::ranges::any_of(kPasswordWords, [&](TextView word) {
      return last + 1 >= word.size() && equal_no_case(text.substr(last + 1 - word.size(), word.size()), word);
    });
    if (!means_password) continue;
    const std::size_t begin = skipped(text, equals + 1, u" \t");
    const std::size_t end = value_end(text, begin, quotes.open_at(begin));
    if (end > begin) found(Range{begin, end});
    if (end > equals + 1) equals = end - 1;
  }
}

// A value, which is not empty, without its quotes or braces, and what is doubled in it once.
Text bare(TextView value) {
  const char16_t first = value.front();
  if (!is_one_of(u"\"'{", first)) return Text(value);
  const Text close(first == u'{' ? 1 : quote_depth(value), first == u'{' ? u'}' : first);
  value.remove_prefix(std::min(close.size(), value.size()));
  if (value.ends_with(close)) value.remove_suffix(close.size());
  return replace_all(value, close + close, TextView(close).substr(0, 1));
}

// Without quotes of its own, inside the quotes of the extended properties: these end it, and are doubled in it.
Text bare_within_quotes(TextView value) {
  value = trimmed(value, u" \t");
  const std::size_t closing = value.size() - 1 - std::min(value.find_last_not_of(u'"'), value.size() - 1);
  if (closing % 2 == 1) value.remove_suffix(1);
  return replace_all(value, u"\"\"", u"\"");
}

}  // namespace

void Secrets::add_spelling(Text spelling) {
  const bool known = std::ranges::any_of(spellings_,
                                         [&](const SecretText& each) { return TextView(each) == TextView(spelling); });
  if (known) {
    wipe(spelling);
  } else {
    spellings_.emplace_back(std::move(spelling));
  }
}

void Secrets::add(TextView secret) {
  if (secret.empty()) return;
  add_spelling(Text(secret));
  for (const TextView mark : {u"\"", u"'", u"}"}) add_spelling(replace_all(secret, mark, join({mark, mark})));
}

void Secrets::add_passwords_of(TextView connection_string) {
  each_password_value(connection_string, [&](Range range) {
    const TextView value = connection_string.substr(range.begin, range.end - range.begin);
    add(SecretText(is_one_of(u"\"'{", value.front()) ? bare(value) : bare_within_quotes(value)));
  });
}

Text Secrets::left_out(TextView text) const {
  std::vector<Range> ranges;
  for (const SecretText& each : spellings_) {
    const TextView secret(each);
    each_occurrence(text, secret, [&](Range range) {
      if (secret.size() >= kShortest || stands_alone(text, range)) ranges.push_back(range);
    });
  }
  each_password_value(text, [&](Range range) { ranges.push_back(range); });
  std::ranges::sort(ranges, {}, &Range::begin);
  Text shown;
  std::size_t at = 0;  // what is before it has been dealt with
  bool masked = false;
  for (const Range& range : ranges) {
    if (range.begin >= at && !(masked && range.begin == at)) {
      shown.append(text.substr(at, range.begin - at)).append(kMask);
    }
    masked = true;
    at = std::max(at, range.end);
  }
  return shown.append(text.substr(at));
}

bool names_password(TextView connection_string) {
  bool any = false;
  each_password_value(connection_string, [&](Range range) {
    any = any || !bare(connection_string.substr(range.begin, range.end - range.begin)).empty();
  });
  return any;
}

}  // namespace qvr::script_tool
