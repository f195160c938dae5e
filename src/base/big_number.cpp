#include "base/big_number.h"

#include <algorithm>
#include <bit>

namespace qvr {

BigNumber::BigNumber(std::uint64_t number) {
  for (; number != 0; number >>= 32) words_[size_++] = static_cast<std::uint32_t>(number);
}

BigNumber::BigNumber(const BigNumber& other) : size_(other.size_) {
  std::copy_n(other.words_.begin(), size_, words_.begin());
}

void BigNumber::multiply_and_add(std::uint32_t factor, std::uint32_t summand) {
  std::uint64_t carry = summand;
  for (std::size_t i = 0; i < size_; ++i) {
    carry += static_cast<std::uint64_t>(words_[i]) * factor;
    words_[i] = static_cast<std::uint32_t>(carry);
    carry >>= 32;
  }
  if (carry != 0) words_[size_++] = static_cast<std::uint32_t>(carry);
}

void BigNumber::multiply_by_power_of_ten(int exponent) {
  constexpr std::uint32_t kPowers[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000};
  for (; exponent >= 9; exponent -= 9) multiply(1000000000);
  if (exponent > 0) multiply(kPowers[exponent]);
}

void BigNumber::shift_left(int bits) {
  if (size_ == 0 || bits == 0) return;
  const auto words = static_cast<std::size_t>(bits) / 32;
  std::copy_backward(words_.begin(), words_.begin() + size_, words_.begin() + size_ + words);
  std::fill_n(words_.begin(), words, 0U);
  size_ += words;
  if (bits % 32 != 0) multiply(1U << bits % 32);
}

void BigNumber::add(const BigNumber& other) {
  std::fill(words_.begin() + size_, words_.begin() + std::max(size_, other.size_), 0U);
  size_ = std::max(size_, other.size_);
  std::uint64_t carry = 0;
  for (std::size_t i = 0; i < size_; ++i) {
    carry += static_cast<std::uint64_t>(words_[i]) + (i < other.size_ ? other.words_[i] : 0);
    words_[i] = static_cast<std::uint32_t>(carry);
    carry >>= 32;
  }
  if (carry != 0) words_[size_++] = static_cast<std::uint32_t>(carry);
}

void BigNumber::subtract(const BigNumber& other) {
  std::uint64_t borrow = 0;
  for (std::size_t i = 0; i < size_; ++i) {
    const std::uint64_t difference = words_[i] - borrow - (i < other.size_ ? other.words_[i] : 0);
    words_[i] = static_cast<std::uint32_t>(difference);
    borrow = difference >> 63;
  }
  while (size_ > 0 && words_[size_ - 1] == 0) --size_;
}

int BigNumber::divide(const BigNumber& divisor) {
  int quotient = 0;
  for (; *this >= divisor; ++quotient) subtract(divisor);
  return quotient;
}

int BigNumber::bit_length() const {
  return size_ == 0 ? 0 : static_cast<int>(size_ * 32) - std::countl_zero(words_[size_ - 1]);
}

std::strong_ordering operator<=>(const BigNumber& one, const BigNumber& other) {
  if (one.size_ != other.size_) return one.size_ <=> other.size_;
  for (std::size_t i = one.size_; i-- > 0;) {
    if (one.words_[i] != other.words_[i]) return one.words_[i] <=> other.words_[i];
  }
  return std::strong_ordering::equal;
}

}  // namespace qvr
