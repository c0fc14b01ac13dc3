// The factors of fast Fourier transforms: powers of w = exp(-2 pi i / n), level by level of a transform of a power of
// two, each rounded once from double precision. Levels up to 2^14 are read out of tables; those of longer ones are
// formed when they are wanted, as products in double precision of two short tables' entries.
#pragma once

#include <algorithm>
#include <cstddef>

#include "core/scratch.h"

namespace vemi::signal {

/// Of exp(-2 pi i k / 2^order); whole eighths of a turn are exact where a double has them.
struct Root {
  double re, im;
};
Root unitRoot(Vemi64s k, int order);

/// Of exp(-2 pi i k / length) for k from 0 on; whole quarters of a turn are exact.
Root rootOfLength(Vemi64s k, Vemi64s length);

/// Factors for 16 consecutive j: w^j, w^2j and w^3j, of each 16 real parts and 16 imaginary parts.
inline constexpr ptrdiff_t factorsAtOnce = 16;
inline constexpr ptrdiff_t factorBlock = 6 * factorsAtOnce;

class Roots {
 public:
  static constexpr int firstOrder = 3, lastInTables = 14;

  Roots() = default;
  /// For transforms of lengths up to 2^order.
  explicit Roots(int order);

  bool failed() const { return factors_.failed() || products_.failed(); }

  /// The factors of level 2^order for j = 16 index to 16 index + 15 below a quarter of it; `own` takes what is formed.
  const float* block(int order, ptrdiff_t index, float* own) const {
    if (order <= lastInTables) return factors_.as<float>() + (firstBlock(order) + index) * factorBlock;
    form(order, index, own);
    return own;
  }

 private:
  Scratch factors_, products_;
  int order_ = 0, coarseOrder_ = 0, fineOrder_ = 0;

  static constexpr ptrdiff_t blocks(int order) {
    return ((ptrdiff_t{1} << (order - 2)) + factorsAtOnce - 1) / factorsAtOnce;
  }
  /// Levels up to 2^6 have one block each, and those above 2, 4, 8, ...
  static constexpr ptrdiff_t firstBlock(int order) {
    return order <= 6 ? order - firstOrder : (ptrdiff_t{1} << (order - 6)) + 2;
  }

  Root* ofLevel(int order) const {
    return products_.as<Root>() + ptrdiff_t{3} * (order - lastInTables - 1) * factorsAtOnce;
  }
  Root* coarse() const { return ofLevel(order_ + 1); }
  Root* fine() const { return coarse() + (ptrdiff_t{1} << coarseOrder_); }

  void fillTables();
  void fillProducts();
  void form(int order, ptrdiff_t index, float* own) const;
};

}  // namespace vemi::signal
