// A value of any type, as the automation hosts pass it.
#pragma once

#include <cstdint>
#include <memory>
#include <utility>
#include <variant>
#include <vector>

#include "base/text.h"

namespace qvr {

struct Missing {};  // an argument that was not given; not the same as Empty
struct Empty {};
struct Null {};

// Fixed point with four decimals: the amount times 10000.
struct Currency {
  std::int64_t scaled = 0;
};

// 96-bit magnitude, decimal scale 0..28 and sign.
struct Decimal {
  std::uint32_t high = 0, mid = 0, low = 0;
  std::uint8_t scale = 0;
  bool negative = false;
};

// Days since 30 December 1899 with the time of day as the fraction; before that day the fraction still counts forward.
struct Date {
  double days = 0;
};

struct ErrorValue {
  std::int32_t code = 0;
};

// Something outside the library that a host handed over; only the automation edge looks inside.
struct Object {
  virtual ~Object() = default;
};
using ObjectRef = std::shared_ptr<Object>;  // null is Nothing

class Value;

struct Array {
  std::vector<Value> items;
  std::int32_t lower = 0;
  std::uint16_t dimensions = 1;
};

// The numeric widths stay apart because type names decide how a value is written. Byte is uint8_t, Integer int16_t,
// Long int32_t; the two of 64 bits are none of the contract's types but can arrive all the same.
class Value {
 public:
  using Storage =
      std::variant<Empty, Missing, Null, bool, std::uint8_t, std::int16_t, std::int32_t, std::int64_t, std::uint64_t,
                   float, double, Currency, Decimal, Date, Text, ErrorValue, ObjectRef, Array>;

  Value() = default;
  template <class T>
    requires(!std::is_same_v<std::remove_cvref_t<T>, Value> && std::is_constructible_v<Storage, T>)
  Value(T&& held) : storage_(std::forward<T>(held)) {}  // implicit: a value is what it holds

  template <class T>
  const T* as() const {
    return std::get_if<T>(&storage_);
  }
  template <class T>
  bool is() const {
    return std::holds_alternative<T>(storage_);
  }
  const Storage& storage() const& { return storage_; }
  Storage&& storage() && { return std::move(storage_); }

 private:
  Storage storage_;
};

}  // namespace qvr
