#include "base/value.h"

#include <gtest/gtest.h>

#include "support/describe.h"

namespace qvr::tests {
namespace {

TEST(Value, KeepsTheKindThatItIsMadeFrom) {
  EXPECT_EQ(describe(Value()), "Empty");
  EXPECT_EQ(describe(Missing{}), "Missing");
  EXPECT_EQ(describe(Null{}), "Null");
  EXPECT_EQ(describe(true), "Boolean True");
  EXPECT_EQ(describe(std::uint8_t{1}), "Byte 1");
  EXPECT_EQ(describe(std::int16_t{1}), "Integer 1");
  EXPECT_EQ(describe(1), "Long 1");
  EXPECT_EQ(describe(std::int64_t{1}), "LongLong 1");
  EXPECT_EQ(describe(1.5f), "Single 1.5");
  EXPECT_EQ(describe(1.5), "Double 1.5");
  EXPECT_EQ(describe(Currency{15000}), "Currency 15000");
  EXPECT_EQ(describe(Decimal{}), "Decimal");
  EXPECT_EQ(describe(Date{1.5}), "Date 1.5");
  EXPECT_EQ(describe(Text(u"text")), "String text");
  EXPECT_EQ(describe(ErrorValue{13}), "Error 13");
  EXPECT_EQ(describe(ObjectRef()), "Nothing");
  EXPECT_EQ(describe(Array{{Value(1)}, 0, 1}), "Array of 1");
}

TEST(Value, TakesALiteralTextAsText) { EXPECT_EQ(describe(u"literal"), "String literal"); }

TEST(Value, IsACopyOfItsOwn) {
  const Value original = Text(u"one");
  Value copy = original;
  copy = 2;
  EXPECT_EQ(describe(original), "String one");
  EXPECT_EQ(describe(copy), "Long 2");
}

}  // namespace
}  // namespace qvr::tests
