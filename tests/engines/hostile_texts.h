// Texts that end a literal, a comment or a statement where they are not kept inside.
#pragma once

#include <string>
#include <vector>

#include "base/text.h"

namespace qvr::tests {

struct HostileText {
  const char* name;
  Text text;
};

inline std::vector<HostileText> hostile_texts() {
  return {
      {"plain", u"Ana"},
      {"one quote", u"'"},
      {"quotes", u"''O'Neil'''"},
      {"end of a statement", u"x'; DROP TABLE Checks; --"},
      {"comments", u"-- a /* b */ c"},
      {"open comment", u"/*"},
      {"patterns", u"50%_[a-z]*?"},
      {"double quotes", u"\"a\" \"\"b\"\""},
      {"backslashes", u"a\\'b\\\\"},
      {"line breaks", u"one\r\ntwo\nthree\r"},
      {"braces and dollars", u"{ d '2011-01-05'} $$ ${x}"},
      {"letters beyond ASCII", u"\u00f1\u00c7\u20ac\u0416\u4e2d"},
      {"surrogate pair", u"\U0001F600 x"},
      {"only blanks", u"   "},
      {"blanks at the edges", u" a "},
      {"the name of the clock within", u"AhoraSQL?"},
      {"question marks", u"? :1 @p"},
      {"empty", u""},
      {"4000 characters", Text(4000, u'x')},
      {"quotes for 4000", Text(4000, u'\'')},
  };
}

}  // namespace qvr::tests
