#include "session/system_language.h"

#include <algorithm>

#include "session/catalogue.h"

namespace qvr {
namespace {

constexpr TextView kBasque[] = {u"42d"};
constexpr TextView kCatalan[] = {u"403"};
constexpr TextView kEnglish[] = {u"409",  u"809",  u"c09",  u"1009", u"1409", u"1809", u"1c09",
                                 u"2009", u"2409", u"2809", u"2c09", u"3009", u"3409"};
constexpr TextView kFrench[] = {u"40c", u"80c", u"c0c", u"100c", u"140c", u"180c"};
constexpr TextView kGalician[] = {u"456"};
constexpr TextView kGerman[] = {u"407", u"807", u"c07", u"1007", u"1407"};
constexpr TextView kItalian[] = {u"410", u"810"};
constexpr TextView kPortuguese[] = {u"416", u"816"};
// "x480a" and "4c0a " can equal no identifier: applications rely on 0x480A and 0x4C0A being English.
constexpr TextView kSpanish[] = {u"40a",  u"80a",  u"c0a",  u"100a",  u"140a",  u"180a", u"1c0a",
                                 u"200a", u"240a", u"280a", u"2c0a",  u"300a",  u"340a", u"380a",
                                 u"3c0a", u"400a", u"440a", u"x480a", u"4c0a ", u"500a"};

struct List {
  std::span<const TextView> identifiers;
  SystemLanguage language;
};

constexpr List kLists[] = {
    {kBasque, {language::kBasque, true}},     {kCatalan, {language::kCatalan, true}},
    {kEnglish, {language::kEnglish, false}},  {kFrench, {language::kFrench, true}},
    {kGalician, {language::kGalician, true}}, {kGerman, {language::kGerman, true}},
    {kItalian, {language::kItalian, true}},   {kPortuguese, {language::kPortuguese, true}},
    {kSpanish, {language::kSpanish, false}},
};

Text hexadecimal(std::uint16_t identifier) {
  Text digits;
  for (int shift = 12; shift >= 0; shift -= 4) {
    const int digit = identifier >> shift & 0xF;
    if (digit != 0 || !digits.empty() || shift == 0) digits.push_back(u"0123456789abcdef"[digit]);
  }
  return digits;
}

}  // namespace

SystemLanguage system_language(std::uint16_t identifier) {
  const Text text = hexadecimal(identifier);
  for (const List& list : kLists) {
    if (std::ranges::find(list.identifiers, TextView(text)) != list.identifiers.end()) return list.language;
  }
  return {language::kEnglish, false};
}

}  // namespace qvr
