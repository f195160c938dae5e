#include "qvrscript/output/json.h"

namespace qvr::script_tool {
namespace {

Text escape(char16_t unit) { return u"\\u" + hexadecimal(unit, 4, u"0123456789abcdef"); }

bool is_surrogate(char16_t unit) { return (unit & 0xF800) == 0xD800; }

bool pair_at(TextView text, std::size_t i) {
  return (text[i] & 0xFC00) == 0xD800 && i + 1 < text.size() && (text[i + 1] & 0xFC00) == 0xDC00;
}

void append_unit(Text& written, char16_t unit) {
  switch (unit) {
    case u'"': written += u"\\\""; break;
    case u'\\': written += u"\\\\"; break;
    case u'\n': written += u"\\n"; break;
    case u'\r': written += u"\\r"; break;
    case u'\t': written += u"\\t"; break;
    default:
      if (unit < 0x20 || unit == 0x7F || is_surrogate(unit)) {
        written += escape(unit);
      } else {
        written.push_back(unit);
      }
  }
}

Text listed(std::span<const Text> items, char16_t open, char16_t close) {
  Text text(1, open);
  text += join(items, u",");
  text.push_back(close);
  return text;
}

}  // namespace

Text json_text(TextView text) {
  Text written = u"\"";
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (pair_at(text, i)) {
      written += text.substr(i++, 2);
    } else {
      append_unit(written, text[i]);
    }
  }
  written.push_back(u'"');
  return written;
}

Text json_number(std::size_t number) { return decimal(static_cast<std::int64_t>(number)); }

TextView json_truth(bool truth) { return truth ? u"true" : u"false"; }

Text json_member(TextView name, TextView value) { return join({json_text(name), u":", value}); }

Text json_object(std::initializer_list<Text> members) { return listed({members.begin(), members.size()}, u'{', u'}'); }

Text json_array(const std::vector<Text>& values) { return listed(values, u'[', u']'); }

}  // namespace qvr::script_tool
