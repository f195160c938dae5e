// A value of any type, as automation hosts pass it in a VARIANT.
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

// Currency: fixed point, the amount times 10000.
struct Currency {
  std::int64_t scaled = 0;
};

// 96-bit magnitude, decimal scale 0..28 and sign.
struct Decimal {
  std::uint32_t high = 0, mid = 0, low = 0;
  std::uint8_t scale = 0;
  bool negative = false;
};

// An automation date: days since 30 December 1899, the time of day as the fraction, which counts forward for negative
// days too.
struct Date {
  double days = 0;
};

struct ErrorValue {
  std::int32_t code = 0;
};

// An object of the host; only com/ knows what it is.
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
// Long int32_t. The contract has no 64-bit types, but hosts can pass them.
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
