// Whole numbers of up to 4,096 bits, for numbers in floating point as text and back without an error.
#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>

namespace qvr {

// No member checks for a result of more bits, or below zero: what is done with these numbers has its limits.
class BigNumber {
 public:
  explicit BigNumber(std::uint64_t number);
  BigNumber(const BigNumber& other);
  BigNumber& operator=(const BigNumber&) = delete;

  void multiply(std::uint32_t factor) { multiply_and_add(factor, 0); }
  void multiply_and_add(std::uint32_t factor, std::uint32_t summand);
  void multiply_by_power_of_ten(int exponent);
  void shift_left(int bits);
  void add(const BigNumber& other);
  void subtract(const BigNumber& other);
  // Leaves the remainder and gives the quotient, which has to be small.
  int divide(const BigNumber& divisor);
  int bit_length() const;

  friend std::strong_ordering operator<=>(const BigNumber& one, const BigNumber& other);

 private:
  std::array<std::uint32_t, 128> words_;  // the lowest first; only the first `size_` have a value
  std::size_t size_ = 0;                  // without leading zeros
};

}  // namespace qvr
