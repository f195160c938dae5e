#include "base/failure.h"
#include "platform/parts.h"
#include "platform/windows/wide_text.h"

#include <oleauto.h>

#include <iterator>

namespace qvr::windows {
namespace {

// The OLE conversions stop at a NUL, so reject it first.
bool has_zero(TextView text) { return text.find(u'\0') != TextView::npos; }

// The conversions of OLE Automation under the user's locale, as Visual Basic uses them.
class UserLocale final : public Locale {
 public:
  std::optional<Date> parse_date(TextView text) override {
    Date date;
    if (has_zero(text) || FAILED(VarDateFromStr(wide(text).data(), LOCALE_USER_DEFAULT, 0, &date.days)))
      return std::nullopt;
    return date;
  }

  std::optional<double> parse_number(TextView text) override {
    double number = 0;
    if (has_zero(text) || FAILED(VarR8FromStr(wide(text).data(), LOCALE_USER_DEFAULT, 0, &number))) return std::nullopt;
    return number;
  }

  Text date_text(Date date) override {
    BSTR written = nullptr;
    if (FAILED(VarBstrFromDate(date.days, LOCALE_USER_DEFAULT, 0, &written))) {
      throw RuntimeFailure(failure_number::kTypeMismatch);
    }
    Text text = text_from({written, SysStringLen(written)});
    SysFreeString(written);
    return text;
  }

  char16_t decimal_separator() override { return first_of(LOCALE_SDECIMAL, u'.'); }
  char16_t thousands_separator() override { return first_of(LOCALE_STHOUSAND, u','); }
  Text currency_symbol() override { return convention(LOCALE_SCURRENCY); }

 private:
  static Text convention(LCTYPE which) {
    wchar_t text[16] = L"";
    GetLocaleInfoW(LOCALE_USER_DEFAULT, which, text, static_cast<int>(std::size(text)));
    return text_from(text);
  }
  static char16_t first_of(LCTYPE which, char16_t otherwise) {
    const Text text = convention(which);
    return text.empty() ? otherwise : text[0];
  }
};

}  // namespace
}  // namespace qvr::windows

qvr::Locale& qvr::platform_parts::locale() {
  static windows::UserLocale instance;
  return instance;
}
