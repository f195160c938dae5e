#include "dialect/hostile_values.h"

#include <iterator>

#include "base/date_text.h"

namespace qvr::tests {
namespace {

using enum TokenKind;

Sample alike(Value value, const Tokens& tokens) { return {std::move(value), {tokens, tokens, tokens}}; }
Sample null_sample(Value value) { return alike(std::move(value), {{Word, u"Null"}}); }
Sample number_sample(Value value, TextView digits) { return alike(std::move(value), {{Number, Text(digits)}}); }
Sample truth_sample(bool truth) {
  const Tokens bit = {{Number, truth ? u"1" : u"0"}};
  return {truth, {Tokens{{Word, truth ? u"True" : u"False"}}, bit, bit}};
}

Sample clock_sample(Value word) {
  const Token open{Punctuation, u"("}, close{Punctuation, u")"};
  return {std::move(word),
          {Tokens{{Word, u"Now"}, open, close}, {{Word, u"GetDate"}, open, close}, {{Word, u"SYSDATE"}}}};
}

// Pieces that end a literal, a statement or a line somewhere, and some that look like what the library writes.
const Text kPieces[] = {
    u"'",
    u"'",
    u"''",
    u"\"",
    u"%",
    u"_",
    u"*",
    u"?",
    u"[",
    u"]",
    u"#",
    u"{",
    u"}",
    u";",
    u"--",
    u"/*",
    u"*/",
    u"\\",
    u"\\'",
    u"\r\n",
    u"\n",
    u"\t",
    u" ",
    Text(1, u'\0'),
    u",",
    u"(",
    u")",
    u"!",
    u"&",
    u"||",
    u"=",
    u"a",
    u"Z",
    u"0",
    u"1",
    u"N'",
    u"' OR 1=1 --",
    u"'); DROP TABLE t; --",
    u"{ d '2011-01-05'}",
    u"#2011-01-05#",
    u"TO_DATE('",
    u"AhoraSQL",
    u"Null",
    u"\u00f1",
    u"\u20ac",
    u"\u2019",
    u"\u02bc",
    u"\uff07",
    u"\U0001f600",
    Text(1, char16_t{0xD83D}),
    Text(1, char16_t{0xDE00}),
    u"\u2028",
};

}  // namespace

Text HostileValues::text() {
  Text text;
  for (std::size_t left = below(9); left != 0; --left) text += kPieces[below(std::size(kPieces))];
  // Now and then longer than Oracle takes, with the cut anywhere.
  if (below(50) == 0) text.insert(0, 3990 + below(20), u'\'');
  return text;
}

Sample HostileValues::text_sample() {
  const Text held = text();
  if (equal_no_case(held, u"ahorasql")) return clock_sample(held);
  const Tokens whole = {{String, held}}, cut = {{String, held.substr(0, 4000)}};
  return {held, {whole, whole, cut}};
}

Sample HostileValues::date_sample() {
  const auto part = [this](int first, std::size_t count) { return first + static_cast<int>(below(count)); };
  CalendarTime time{part(100, 9900), part(1, 12), part(1, 28)};
  const bool with_time = below(2) == 0;
  if (with_time) time = {time.year, time.month, time.day, part(0, 24), part(0, 60), part(1, 59)};
  const auto two = [](int number) { return padded(number, 2); };
  Text written = join({padded(time.year, 4), u"-", two(time.month), u"-", two(time.day)});
  if (with_time) written += join({u" ", two(time.hour), u":", two(time.minute), u":", two(time.second)});
  const Text mask = with_time ? u"|YYYY-MM-DD HH24:MI:SS" : u"|YYYY-MM-DD";
  return {date_from(time).value(),
          {Tokens{{Date, written}}, {{Date, (with_time ? u"ts " : u"d ") + written}}, {{Date, written + mask}}}};
}

Sample HostileValues::next() {
  const auto number = static_cast<std::int32_t>(random_());
  const std::string digits = std::to_string(number);
  switch (below(24)) {
    case 0: return number_sample(number, Text(digits.begin(), digits.end()));
    case 1: return number_sample(std::int16_t{-7}, u"-7");
    case 2: return number_sample(std::uint8_t{200}, u"200");
    case 3: return number_sample(-0.1f, u"-0.1");
    case 4: return number_sample(1e300, u"1E+300");
    case 5: return number_sample(-2.5e-7, u"-2.5E-07");
    case 6: return number_sample(qvr::Currency{-12345}, u"-1.2345");
    case 7: return number_sample(qvr::Decimal{0, 0, 12345, 3, false}, u"12.345");
    case 8: return truth_sample(below(2) == 0);
    case 9: return null_sample(qvr::Null{});
    case 10: return null_sample(qvr::Empty{});
    case 11: return null_sample(ErrorValue{number});
    case 12: return null_sample(Array{{Value(text())}, 0, 1});
    case 13: return null_sample(std::int64_t{number});
    case 14: return clock_sample(u"aHORAsql");
    case 15:
    case 16: return date_sample();
    default: return text_sample();
  }
}

}  // namespace qvr::tests
