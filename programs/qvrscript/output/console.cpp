#include "qvrscript/output/console.h"

#include <algorithm>

#include "base/utf8.h"

namespace qvr::script_tool {
namespace {

// C0 and C1 controls, and the marks that change the direction of what follows.
bool obeyed(char16_t unit) {
  return unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || (unit >= 0x200E && unit <= 0x200F) ||
         (unit >= 0x2028 && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069);
}

bool lone_surrogate(TextView text, std::size_t at) {
  const auto is = [&](std::size_t i, char16_t kind) { return i < text.size() && (text[i] & 0xFC00) == kind; };
  return (is(at, 0xD800) && !is(at + 1, 0xDC00)) || (is(at, 0xDC00) && !(at > 0 && is(at - 1, 0xD800)));
}

Text shown(char16_t unit) {
  constexpr TextView kDigits = u"0123456789abcdef";
  return unit < 0x100 ? u"\\x" + hexadecimal(unit, 2, kDigits) : u"\\u" + hexadecimal(unit, 4, kDigits);
}

std::string_view code_of(Colour colour) {
  switch (colour) {
    case Colour::Red: return "\x1b[31m";
    case Colour::Yellow: return "\x1b[33m";
    case Colour::Green: return "\x1b[32m";
    case Colour::None: break;
  }
  return {};
}

}  // namespace

Text printable(TextView text) {
  Text written;
  written.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (obeyed(text[i]) || lone_surrogate(text, i)) {
      written += shown(text[i]);
    } else {
      written.push_back(text[i]);
    }
  }
  return written;
}

void Console::say(std::initializer_list<TextView> line, Colour colour) {
  write(streams_.out, streams_.out_colours, {}, line, colour);
}

void Console::complain(std::initializer_list<TextView> line) {
  write(streams_.err, streams_.err_colours, u"qvrscript: ", line, Colour::None);
}

void Console::complain_more(std::initializer_list<TextView> line, Colour colour) {
  write(streams_.err, streams_.err_colours, {}, line, colour);
}

void Console::write(std::ostream& stream, bool colours, TextView prefix, std::initializer_list<TextView> line,
                    Colour colour) {
  clear_status();
  const std::string bytes = to_utf8(join({prefix, printable(secrets.left_out(join(line)))}));
  if (listener) listener(bytes);
  const bool coloured = colours && colour != Colour::None;
  if (coloured) stream << code_of(colour);
  stream << bytes;
  if (coloured) stream << "\x1b[0m";
  stream << '\n' << std::flush;
}

void Console::document(std::string_view utf8) {
  clear_status();
  if (listener) listener(utf8);
  streams_.out << utf8 << '\n' << std::flush;
}

void Console::status(std::string_view utf8) {
  if (!streams_.err_is_terminal) return;
  clear_status();
  streams_.err << utf8 << std::flush;
  status_width_ = utf8.size();
}

void Console::clear_status() {
  if (status_width_ == 0) return;
  // Without the terminal's own codes, which one without colours may not know.
  streams_.err << '\r' << std::string(status_width_, ' ') << '\r' << std::flush;
  status_width_ = 0;
}

}  // namespace qvr::script_tool
