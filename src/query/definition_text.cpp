#include "query/definition_text.h"

#include <charconv>

#include "base/failure.h"

namespace qvr::query {
namespace {

constexpr TextView kOpen = u"<*", kClose = u"*>", kEnd = u"<*fin=";
constexpr std::size_t kDigits = 8;

[[noreturn]] void refuse(SourcePlace place = SourcePlace::here()) {
  throw RuntimeFailure(failure_number::kTypeMismatch, {}, Text(kOwnSource), place);
}

// 32-bit FNV-1a over both bytes of each unit: detects accidental changes, not forgeries.
Text check_digits(TextView text) {
  std::uint32_t hash = 0x811C9DC5;
  for (const char16_t unit : text) {
    for (const int byte : {unit & 0xFF, unit >> 8}) hash = (hash ^ static_cast<std::uint32_t>(byte)) * 0x01000193;
  }
  return hexadecimal(hash, kDigits);
}

Text end_mark(TextView text) { return join({kEnd, check_digits(text), kClose}); }

std::int32_t number_in(const Text& digits) {
  const std::string ascii(digits.begin(), digits.end());
  std::int32_t number = 0;
  const auto read = std::from_chars(ascii.data(), ascii.data() + ascii.size(), number);
  if (read.ec != std::errc() || read.ptr != ascii.data() + ascii.size() || decimal(number) != digits) refuse();
  return number;
}

}  // namespace

Text escaped_marks(TextView value) { return replace_all(value, kOpen, u"<**"); }

std::optional<Text> without_escapes(TextView text) {
  Text value;
  value.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    value.push_back(text[i]);
    if (!text.substr(i).starts_with(kOpen)) continue;
    if (!text.substr(i).starts_with(u"<**")) return std::nullopt;
    value.push_back(u'*');
    i += 2;
  }
  return value;
}

void DefinitionWriter::add(TextView name, char16_t type, TextView value) {
  text_ += join({kOpen, name, u"=", TextView(&type, 1), kClose, escaped_marks(value)});
}

void DefinitionWriter::add_text(TextView name, TextView value) { add(name, u'T', value); }
void DefinitionWriter::add_number(TextView name, std::int32_t value) { add(name, u'N', decimal(value)); }
void DefinitionWriter::add_truth(TextView name, bool value) { add(name, u'L', value ? u"1" : u"0"); }

Text DefinitionWriter::finished() { return text_ += end_mark(text_); }

DefinitionReader::DefinitionReader(TextView text, TextView version) {
  text = without_white_end(text);
  const std::size_t end = text.rfind(kEnd);
  if (end == TextView::npos || text.substr(end) != end_mark(text.substr(0, end))) refuse();
  text = text.substr(0, end);
  if (!text.starts_with(version)) refuse();
  text.remove_prefix(version.size());
  while (!text.empty()) {
    const std::size_t close = text.find(kClose);
    if (!text.starts_with(kOpen) || close == TextView::npos || close < 5 || text[close - 2] != u'=') refuse();
    Field field{text.substr(2, close - 4), {}, text[close - 1]};
    text.remove_prefix(close + 2);
    // The value ends before the next mark: "<*" that is not followed by the "*" of an escape.
    std::size_t next = text.find(kOpen);
    while (next != TextView::npos && text.substr(next).starts_with(u"<**")) next = text.find(kOpen, next + 3);
    field.value = text.substr(0, next);
    text.remove_prefix(field.value.size());
    fields_.push_back(field);
  }
}

bool DefinitionReader::next_is(TextView name) const { return next_ < fields_.size() && fields_[next_].name == name; }

Text DefinitionReader::value(TextView name, char16_t type) {
  if (!next_is(name) || fields_[next_].type != type) refuse();
  auto value = without_escapes(fields_[next_++].value);
  if (!value) refuse();
  return std::move(*value);
}

Text DefinitionReader::text(TextView name) { return value(name, u'T'); }
std::int32_t DefinitionReader::number(TextView name) { return number_in(value(name, u'N')); }

bool DefinitionReader::truth(TextView name) {
  const Text value = this->value(name, u'L');
  if (value != u"0" && value != u"1") refuse();
  return value == u"1";
}

void DefinitionReader::expect_end() const {
  if (next_ != fields_.size()) refuse();
}

}  // namespace qvr::query
