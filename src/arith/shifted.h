// Shifts in lanes: by one count for all of them, and by a count for each.
//
// Processors have the second kind for lanes of 32 bits alone. In narrower ones a shift to the left is a product with a
// power of two, and a shift to the right the upper half of one. Instead of its count, each lane has this factor.
#pragma once

#include <cstdint>
#include <limits>
#include <type_traits>

#include "core/lanes.h"

namespace vemi::arith {

template <class T>
inline constexpr int bitsOf = 8 * sizeof(T);

struct LeftShift {
  /// Counts beyond it do the same.
  template <class T>
  static constexpr uint32_t lastCount = bitsOf<T>;

  /// By 0 < count < width, the same for all lanes.
  struct Alike {
    int count;

    template <class D, class V>
    HWY_INLINE V operator()(D, V v) const {
      return hn::ShiftLeftSame(v, count);
    }
  };

  /// 2^count, which is zero for lastCount.
  template <class T>
  static constexpr T factor(uint32_t count) {
    return static_cast<T>(uint64_t{1} << count);
  }

  struct Each {
    template <class D, class V>
    HWY_INLINE V operator()(D d, V v, V factor) const {
      if constexpr (sizeof(hn::TFromD<D>) > 1) {
        return hn::Mul(v, factor);
      } else {
        const hn::RepartitionToWide<D> d16;
        const auto upper = hn::Set(d16, 0xff00);
        const auto v16 = hn::BitCast(d16, v), factor16 = hn::BitCast(d16, factor);
        const auto odd = hn::Mul(hn::And(v16, upper), hn::ShiftRight<8>(factor16));
        const auto even = hn::Mul(v16, hn::AndNot(upper, factor16));
        return hn::BitCast(d, hn::Or(odd, hn::AndNot(upper, even)));
      }
    }
  };
};

struct RightShift {
  /// A signed element has nothing but its sign one bit before an unsigned one has nothing.
  template <class T>
  static constexpr uint32_t lastCount = std::is_signed_v<T> ? bitsOf<T> - 1 : bitsOf<T>;

  struct Alike {
    int count;

    template <class D, class V>
    HWY_INLINE V operator()(D, V v) const {
      return hn::ShiftRightSame(v, count);
    }
  };

  /// 2^(width - count), which is zero for a count of zero; in 32 bits the count itself.
  template <class T>
  static constexpr T factor(uint32_t count) {
    return static_cast<T>(sizeof(T) == 4 ? count : uint64_t{1} << (bitsOf<T> - count));
  }

  struct Each {
    template <class D, class V>
    HWY_INLINE V operator()(D d, V v, V factor) const {
      using T = hn::TFromD<D>;
      if constexpr (sizeof(T) == 4) {
        return v >> factor;
      } else if constexpr (std::is_unsigned_v<T>) {
        return logical(d, v, factor);
      } else {  // the logical shift of the element with its sign turned over, less what becomes of that bit
        const hn::RebindToUnsigned<D> du;
        const auto sign = hn::BitCast(du, hn::Set(d, std::numeric_limits<T>::min()));
        const auto f = hn::BitCast(du, factor);
        const auto shifted = logical(du, hn::Xor(hn::BitCast(du, v), sign), f);
        return hn::BitCast(d, hn::Sub(shifted, logical(du, sign, f)));
      }
    }

   private:
    /// Bytes are shifted in the upper halves of 16-bit lanes, where their factors have the same meaning.
    template <class D, class V>
    HWY_INLINE static V logical(D d, V v, V factor) {
      if constexpr (sizeof(hn::TFromD<D>) > 1) {
        return hn::IfThenElse(hn::Eq(factor, hn::Zero(d)), v, hn::MulHigh(v, factor));
      } else {
        const hn::RepartitionToWide<D> d16;
        const auto upper = hn::Set(d16, 0xff00);
        const auto v16 = hn::BitCast(d16, v), factor16 = hn::BitCast(d16, factor);
        const auto odd = logical(d16, v16, hn::And(factor16, upper));
        const auto even = logical(d16, hn::ShiftLeft<8>(v16), hn::ShiftLeft<8>(factor16));
        return hn::BitCast(d, hn::Or(hn::And(odd, upper), hn::ShiftRight<8>(even)));
      }
    }
  };
};

}  // namespace vemi::arith
