#include "support/describe.h"

#include <charconv>

#include "base/utf8.h"

namespace qvr::tests {
namespace {

std::string digits(double number) {
  char buffer[40];
  return {buffer, std::to_chars(buffer, buffer + sizeof buffer, number).ptr};
}

struct Describe {
  std::string operator()(const Empty&) const { return "Empty"; }
  std::string operator()(const Missing&) const { return "Missing"; }
  std::string operator()(const Null&) const { return "Null"; }
  std::string operator()(bool held) const { return held ? "Boolean True" : "Boolean False"; }
  std::string operator()(std::uint8_t held) const { return "Byte " + std::to_string(held); }
  std::string operator()(std::int16_t held) const { return "Integer " + std::to_string(held); }
  std::string operator()(std::int32_t held) const { return "Long " + std::to_string(held); }
  std::string operator()(std::int64_t held) const { return "LongLong " + std::to_string(held); }
  std::string operator()(std::uint64_t held) const { return "ULongLong " + std::to_string(held); }
  std::string operator()(float held) const { return "Single " + digits(held); }
  std::string operator()(double held) const { return "Double " + digits(held); }
  std::string operator()(const Currency& held) const { return "Currency " + std::to_string(held.scaled); }
  std::string operator()(const Decimal&) const { return "Decimal"; }
  std::string operator()(const Date& held) const { return "Date " + digits(held.days); }
  std::string operator()(const Text& held) const { return "String " + to_utf8(held); }
  std::string operator()(const ErrorValue& held) const { return "Error " + std::to_string(held.code); }
  std::string operator()(const ObjectRef& held) const { return held ? "Object" : "Nothing"; }
  std::string operator()(const Array& held) const { return "Array of " + std::to_string(held.items.size()); }
};

}  // namespace

std::string describe(const Value& value) { return std::visit(Describe{}, value.storage()); }

}  // namespace qvr::tests
