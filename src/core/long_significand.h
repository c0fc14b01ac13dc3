// Numbers with a significand of 64 bits, each operation rounded to nearest with ties to even: the bits of the x87
// format, by integers. For processors whose `long double` is another one.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace vemi {

/// +-significand 2^exponent, the highest bit of the significand set; no exponent is too large or too small. A zero, an
/// infinity and a NaN have no such form: their significand is 0, and `other` holds them.
class LongSignificand {
 public:
  LongSignificand(double value = 0) : other_(value) {
    if (value == 0 || !std::isfinite(value)) return;
    int exponent;
    const double fraction = std::frexp(std::fabs(value), &exponent);  // from 1/2 to 1
    significand_ = static_cast<uint64_t>(fraction * 0x1p53) << 11;
    exponent_ = exponent - 64;
    isNegative_ = value < 0;
  }

  LongSignificand& operator+=(LongSignificand b) { return *this = *this + b; }

  friend LongSignificand operator+(LongSignificand a, LongSignificand b) {
    if (!a.isNumber() || !b.isNumber()) return sumOfOthers(a, b);
    if (a.exponent_ < b.exponent_) return b + a;
    // The larger one stands below a bit for the carry; of what the smaller one loses at the end, one bit tells.
    const int distance = a.exponent_ - b.exponent_;
    const Wide upper = Wide{a.significand_} << 63, whole = Wide{b.significand_} << 63;
    Wide lower = distance < 128 ? whole >> distance : 0;
    if (distance >= 128 || lower << distance != whole) lower |= 1;
    const int exponent = a.exponent_ - 63;
    if (a.isNegative_ == b.isNegative_) return rounded(upper + lower, exponent, a.isNegative_);
    if (upper == lower) return 0.0;
    return upper > lower ? rounded(upper - lower, exponent, a.isNegative_)
                         : rounded(lower - upper, exponent, b.isNegative_);
  }

  friend LongSignificand operator*(LongSignificand a, LongSignificand b) {
    if (!a.isNumber() || !b.isNumber()) return a.standIn() * b.standIn();
    return rounded(Wide{a.significand_} * b.significand_, a.exponent_ + b.exponent_, a.isNegative_ != b.isNegative_);
  }

  friend LongSignificand operator/(LongSignificand a, LongSignificand b) {
    if (!a.isNumber() || !b.isNumber()) return a.standIn() / b.standIn();
    // A quotient of at least 64 bits, two more of them, and a last one that tells of a remainder.
    const Wide dividend = Wide{a.significand_} << 64, rest = dividend % b.significand_ << 2;
    const Wide quotient = (dividend / b.significand_ << 2) + rest / b.significand_;
    return rounded(quotient << 1 | (rest % b.significand_ != 0), a.exponent_ - b.exponent_ - 67,
                   a.isNegative_ != b.isNegative_);
  }

  friend LongSignificand sqrt(LongSignificand a) {
    if (!a.isNumber() || a.isNegative_) return std::sqrt(a.standIn());
    const int shift = a.exponent_ % 2 == 0 ? 64 : 63;
    const Wide square = Wide{a.significand_} << shift;
    uint64_t root = 0;
    for (uint64_t bit = uint64_t{1} << 63; bit != 0; bit >>= 1) {
      if (Wide{root | bit} * (root | bit) <= square) root |= bit;
    }
    // (root + 1/2)^2 = root^2 + root + 1/4 lies between two integers.
    const bool isAboveMiddle = square - Wide{root} * root > root;
    return rounded(Wide{root} + isAboveMiddle, (a.exponent_ - shift) / 2, false);
  }

  explicit operator double() const {
    if (!isNumber()) return other_;
    // The exponent of the last bit that a double has room for.
    constexpr int lowest = std::numeric_limits<double>::min_exponent - std::numeric_limits<double>::digits;
    const int exponent = exponent_ + 11 > lowest ? exponent_ + 11 : lowest, lost = exponent - exponent_;
    uint64_t kept = 0;
    if (lost <= 64) {
      const Wide half = Wide{1} << (lost - 1), rest = significand_ & ((half << 1) - 1);
      kept = static_cast<uint64_t>(Wide{significand_} >> lost);
      kept += rest > half || (rest == half && kept % 2 != 0);
    }
    return std::copysign(std::ldexp(static_cast<double>(kept), exponent), isNegative_ ? -1.0 : 1.0);
  }

 private:
  using Wide = unsigned __int128;

  uint64_t significand_ = 0;
  int exponent_ = 0;
  bool isNegative_ = false;
  double other_;

  bool isNumber() const { return significand_ != 0; }
  /// A double of the same kind and sign.
  double standIn() const { return isNumber() ? (isNegative_ ? -1.0 : 1.0) : other_; }

  static LongSignificand sumOfOthers(LongSignificand a, LongSignificand b) {
    if (a.isNumber() && b.other_ == 0) return a;
    if (b.isNumber() && a.other_ == 0) return b;
    return a.standIn() + b.standIn();
  }

  /// value 2^exponent to 64 bits; value is not 0, and where a bit was lost below it, its lowest one is set.
  static LongSignificand rounded(Wide value, int exponent, bool isNegative) {
    while (value >> 127 == 0) value <<= 1, --exponent;
    constexpr uint64_t half = uint64_t{1} << 63;
    const auto rest = static_cast<uint64_t>(value);
    LongSignificand result;
    result.significand_ = static_cast<uint64_t>(value >> 64);
    result.exponent_ = exponent + 64;
    result.isNegative_ = isNegative;
    if (rest > half || (rest == half && result.significand_ % 2 != 0)) ++result.significand_;
    if (result.significand_ == 0) result.significand_ = half, ++result.exponent_;
    return result;
  }
};

}  // namespace vemi
