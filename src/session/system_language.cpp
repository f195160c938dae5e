#include "session/system_language.h"

#include <algorithm>
#include <span>

#include "session/catalogue.h"

namespace qvr {
namespace {

constexpr std::uint16_t kBasque[] = {0x42D};
constexpr std::uint16_t kCatalan[] = {0x403};
constexpr std::uint16_t kEnglish[] = {0x409,  0x809,  0xC09,  0x1009, 0x1409, 0x1809, 0x1C09,
                                      0x2009, 0x2409, 0x2809, 0x2C09, 0x3009, 0x3409};
constexpr std::uint16_t kFrench[] = {0x40C, 0x80C, 0xC0C, 0x100C, 0x140C, 0x180C};
constexpr std::uint16_t kGalician[] = {0x456};
constexpr std::uint16_t kGerman[] = {0x407, 0x807, 0xC07, 0x1007, 0x1407};
constexpr std::uint16_t kItalian[] = {0x410, 0x810};
constexpr std::uint16_t kPortuguese[] = {0x416, 0x816};
// Without 0x480A and 0x4C0A, Honduras and Nicaragua: applications rely on these being English.
constexpr std::uint16_t kSpanish[] = {0x40A,  0x80A,  0xC0A,  0x100A, 0x140A, 0x180A, 0x1C0A, 0x200A, 0x240A,
                                      0x280A, 0x2C0A, 0x300A, 0x340A, 0x380A, 0x3C0A, 0x400A, 0x440A, 0x500A};

struct List {
  std::span<const std::uint16_t> identifiers;
  SystemLanguage language;
};

constexpr List kLists[] = {
    {kBasque, {language::kBasque, true}},     {kCatalan, {language::kCatalan, true}},
    {kEnglish, {language::kEnglish, false}},  {kFrench, {language::kFrench, true}},
    {kGalician, {language::kGalician, true}}, {kGerman, {language::kGerman, true}},
    {kItalian, {language::kItalian, true}},   {kPortuguese, {language::kPortuguese, true}},
    {kSpanish, {language::kSpanish, false}},
};

}  // namespace

SystemLanguage system_language(std::uint16_t identifier) {
  for (const List& list : kLists) {
    if (std::ranges::find(list.identifiers, identifier) != list.identifiers.end()) return list.language;
  }
  return {language::kEnglish, false};
}

}  // namespace qvr
