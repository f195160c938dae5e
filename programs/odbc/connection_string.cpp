#include "odbc/connection_string.h"

#include <algorithm>
#include <array>

#include "odbc/ado_failure.h"

namespace qvr::odbc {
namespace {

[[noreturn]] void fail_malformed() {
  fail_provider(hresult::kBadInitString, u"The connection string is not a list of keywords and values.");
}

// Reads one `keyword=value` after another.
class Reader {
 public:
  explicit Reader(TextView text) : rest_(text) { skip_separators(); }

  bool at_end() const { return rest_.empty(); }

  Text keyword() {
    Text read;
    while (!rest_.empty()) {
      const char16_t unit = take();
      if (unit != u'=') {
        read += unit;
      } else if (!rest_.empty() && rest_.front() == u'=') {
        read += take();  // a doubled "=" is part of the keyword
      } else {
        return Text(trimmed(read, kWhiteSpace));
      }
    }
    if (!is_blank(read, kWhiteSpace)) fail_malformed();
    return {};
  }

  Text value() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(kWhiteSpace), rest_.size()));
    const char16_t first = rest_.empty() ? u'\0' : rest_.front();
    Text read = first == u'"' || first == u'\'' ? quoted() : unquoted(first == u'{');
    skip_separators();
    return read;
  }

 private:
  char16_t take() {
    const char16_t unit = rest_.front();
    rest_.remove_prefix(1);
    return unit;
  }

  void skip_separators() {
    while (!rest_.empty() && (rest_.front() == u';' || kWhiteSpace.find(rest_.front()) != TextView::npos)) take();
  }

  Text quoted() {
    const char16_t quote = take();
    Text read;
    while (!rest_.empty()) {
      const char16_t unit = take();
      if (unit != quote) {
        read += unit;
      } else if (!rest_.empty() && rest_.front() == quote) {
        read += take();
      } else {
        if (!is_blank(rest_.substr(0, rest_.find(u';')), kWhiteSpace)) fail_malformed();
        rest_.remove_prefix(std::min(rest_.find(u';'), rest_.size()));
        return read;
      }
    }
    fail_malformed();
  }

  // ODBC's braces may contain semicolons; they are kept for ODBC.
  Text unquoted(bool braced) {
    const std::size_t from = braced ? std::min(rest_.find(u'}'), rest_.size()) : 0;
    const std::size_t end = std::min(rest_.find(u';', from), rest_.size());
    const Text read(trimmed(rest_.substr(0, end), kWhiteSpace));
    rest_.remove_prefix(end);
    return read;
  }

  TextView rest_;
};

struct KnownKeyword {
  TextView name;
  Text ConnectionString::*part;  // null: accepted and ignored
};

constexpr std::array kKnownKeywords = {
    KnownKeyword{u"Provider", &ConnectionString::provider},
    KnownKeyword{u"Data Source", &ConnectionString::data_source},
    KnownKeyword{u"Extended Properties", &ConnectionString::extended},
    KnownKeyword{u"User ID", &ConnectionString::user},
    KnownKeyword{u"Password", &ConnectionString::password},
    KnownKeyword{u"Initial Catalog", &ConnectionString::catalog},
    KnownKeyword{u"Persist Security Info", nullptr},
    KnownKeyword{u"Integrated Security", nullptr},
    KnownKeyword{u"Connect Timeout", nullptr},
    KnownKeyword{u"Locale Identifier", nullptr},
    KnownKeyword{u"OLE DB Services", nullptr},
    KnownKeyword{u"Mode", nullptr},
};

void assign(ConnectionString& parts, const Text& keyword, const Text& value) {
  const auto known = std::find_if(kKnownKeywords.begin(), kKnownKeywords.end(),
                                  [&](const KnownKeyword& each) { return equal_no_case(each.name, keyword); });
  if (known == kKnownKeywords.end()) {
    parts.pass_through += join({keyword, u"=", value, u";"});
  } else if (known->part != nullptr) {
    parts.*(known->part) = value;
  }
}

bool names_keyword(TextView odbc, TextView keyword) {
  for (Reader reader(odbc); !reader.at_end();) {
    if (equal_no_case(reader.keyword(), keyword)) return true;
    reader.value();
  }
  return false;
}

Text braced_when_needed(TextView value) {
  if (value.find_first_of(u";{}") == TextView::npos) return Text(value);
  return join({u"{", replace_all(value, u"}", u"}}"), u"}"});
}

void add(Text& odbc, TextView keyword, TextView value) {
  if (value.empty() || names_keyword(odbc, keyword)) return;
  if (!odbc.empty() && odbc.back() != u';') odbc += u';';
  odbc += join({keyword, u"=", braced_when_needed(value), u";"});
}

}  // namespace

ConnectionString parse_connection_string(TextView text) {
  ConnectionString parts;
  if (text.find(u'=') == TextView::npos) {
    parts.data_source = Text(trimmed(text, kWhiteSpace));
    return parts;
  }
  for (Reader reader(text); !reader.at_end();) {
    const Text keyword = reader.keyword();
    assign(parts, keyword, reader.value());
  }
  return parts;
}

Text odbc_connection_string(const ConnectionString& parts) {
  Text odbc = parts.extended;
  if (!odbc.empty() && odbc.back() != u';') odbc += u';';
  odbc += parts.pass_through;
  // Not both: with DRIVER and DSN the driver manager would choose.
  if (!names_keyword(odbc, u"DRIVER")) add(odbc, u"DSN", parts.data_source);
  add(odbc, u"UID", parts.user);
  add(odbc, u"PWD", parts.password);
  add(odbc, u"DATABASE", parts.catalog);
  return odbc;
}

}  // namespace qvr::odbc
