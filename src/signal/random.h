// The generator behind all noise. Its result r is the sum, modulo 2^32, of two sequences: x, which subtracts with
// borrow, and g, which is linear congruential. Both are drawn in lanes.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/lanes.h"

namespace vemi::signal {

constexpr uint32_t nextCongruential(uint32_t g) { return g * 69069 + 1013904243; }

/// x, one value after the other, by its definition.
struct BorrowingSteps {
  uint32_t x2, x1, x0;  // the last three values, the latest one last
  uint32_t borrow;      // 0 or -1

  explicit constexpr BorrowingSteps(uint32_t seed)
      : x2(nextCongruential(nextCongruential(seed))), x1(nextCongruential(seed)), x0(seed), borrow(~0u) {}
  constexpr BorrowingSteps(uint32_t third, uint32_t second, uint32_t latest, uint32_t b)
      : x2(third), x1(second), x0(latest), borrow(b) {}

  constexpr uint32_t next() {
    uint32_t t = x1 - x2 + borrow;
    borrow = t >> 31 != 0 ? ~0u : 0;
    t -= borrow & 18;
    x2 = x1;
    x1 = x0;
    return x0 = t;
  }
};

namespace detail {

/// x is linear in the last three values but for what follows from the signs of its differences. So sixteen values are
/// the continuation without borrows, plus a response to each sign. The responses to eight signs at a time are
/// tabulated.
struct BorrowingResponses {
  alignas(laneAlignment) uint32_t ofLast[3][16];       // to each of the last three values, the latest one last
  alignas(laneAlignment) uint32_t ofSigns[256][4][8];  // of the same eight steps, and of the next three times eight

  constexpr BorrowingResponses() : ofLast(), ofSigns() {
    for (int last = 0; last < 3; ++last) continueWithoutBorrows({last == 0, last == 1, last == 2, 0}, 16, ofLast[last]);
    // A negative difference takes 18 off its own value, and the borrow takes 1 off the next one.
    uint32_t ofSign[32] = {0u - 18u, 0u - 1u};
    for (int i = 2; i < 32; ++i) ofSign[i] = ofSign[i - 2] - (i < 3 ? 0 : ofSign[i - 3]);
    for (int later = 0; later < 4; ++later) {
      for (int signs = 0; signs < 256; ++signs) {
        for (int i = 0; i < 8; ++i) {
          for (int j = 0; j < 8; ++j) {
            const int distance = 8 * later + i - j;
            if ((signs >> j & 1) != 0 && distance >= 0) ofSigns[signs][later][i] += ofSign[distance];
          }
        }
      }
    }
  }

  static constexpr void continueWithoutBorrows(BorrowingSteps from, int count, uint32_t* x) {
    for (int i = 0; i < count; ++i) {
      x[i] = from.x1 - from.x2 + (i == 0 ? from.borrow : 0);
      from = {from.x1, from.x0, x[i], 0};
    }
  }
};

inline constexpr BorrowingResponses borrowingResponses;

}  // namespace detail

/// x, sixteen values at a time.
class BorrowingSequence {
 public:
  explicit BorrowingSequence(uint32_t seed) : BorrowingSequence(BorrowingSteps(seed)) {}

  static constexpr ptrdiff_t steps = 16;

  HWY_INLINE void draw(uint32_t* x) {
    // The signs of the differences are guessed from the continuation. In about one block of a million the borrows
    // within it make another sign.
    const size_t early = signsOf(here_.v), late = signsOf(here_.v + half);
    Continued values;
    V wrong = hn::Zero(D());
    unrolled<half>([&](auto v) HWY_ATTR {
      const V first = here_.v[v], second = here_.v[half + v];
      values.v[v] = hn::Add(first, response(0, early, v));
      values.v[half + v] = hn::Add(second, hn::Add(response(1, early, v), response(0, late, v)));
      wrong = hn::Or(wrong, hn::Or(wrongSigns(first, values.v[v]), wrongSigns(second, values.v[half + v])));
    });
    if (HWY_LIKELY(hn::AllFalse(D(), negative(wrong)))) {
      unrolled<2 * half>([&](auto v) HWY_ATTR { hn::StoreU(values.v[v], D(), x + v * N); });
      latest_ = values.v[2 * half - 1];
      borrow_ = late < 128 ? 0 : ~0u;
      toNextBlock(early, late);
    } else {
      const BorrowingSequence redrawn = redraw(latest_, borrow_, x);
      unrolled<2 * half>([&](auto v) HWY_ATTR { here_.v[v] = redrawn.here_.v[v]; });
      latest_ = redrawn.latest_;
      borrow_ = redrawn.borrow_;
    }
  }

 private:
  using D = hn::CappedTag<uint32_t, 8>;
  using V = hn::Vec<D>;
  static constexpr ptrdiff_t N = hn::MaxLanes(D()), half = 8 / N;

  /// A block's values without borrows.
  using Continued = Vectors<V, 2 * half>;

  Continued here_;
  V latest_;         // the last values drawn
  uint32_t borrow_;  // of the next step

  static HWY_INLINE hn::Mask<D> negative(V v) {
    const hn::RebindToSigned<D> di;
    return hn::RebindMask(D(), hn::Lt(hn::BitCast(di, v), hn::Zero(di)));
  }

  /// A bit for each of eight steps.
  static HWY_INLINE size_t signsOf(const V* v) {
    size_t all = 0;
    unrolled<half>([&](auto n) HWY_ATTR {
      uint8_t bits[8];
      hn::StoreMaskBits(D(), negative(v[n]), bits);
      all |= static_cast<size_t>(bits[0]) << n * N;
    });
    return all;
  }

  static HWY_INLINE V response(int later, size_t signs, int v) {
    return hn::Load(D(), detail::borrowingResponses.ofSigns[signs][later] + v * N);
  }

  /// Negative where the difference that led to a value has another sign than its guess.
  static HWY_INLINE V wrongSigns(V guess, V value) {
    const auto subtracted = hn::IfThenElseZero(negative(guess), hn::Set(D(), 18));
    return hn::Xor(guess, hn::Add(value, subtracted));
  }

  /// The continuation of the next block. It does not wait for the values of this one: by linearity it is this block's
  /// continuation, continued, plus the responses of the next sixteen steps to this block's signs.
  HWY_INLINE void toNextBlock(size_t early, size_t late) {
    const V end = here_.v[2 * half - 1];
    const auto part = [&](int which, int v) HWY_ATTR {
      const auto place = hn::IndicesFromVec(D(), hn::Set(D(), static_cast<uint32_t>(N - 3 + which)));
      const V last = hn::TableLookupLanes(end, place);
      return hn::Mul(last, hn::Load(D(), detail::borrowingResponses.ofLast[which] + v * N));
    };
    const auto continuation = [&](int v) HWY_ATTR { return hn::Add(hn::Add(part(0, v), part(1, v)), part(2, v)); };
    unrolled<half>([&](auto v) HWY_ATTR {
      here_.v[v] = hn::Add(continuation(v), hn::Add(response(2, early, v), response(1, late, v)));
      here_.v[half + v] = hn::Add(continuation(half + v), hn::Add(response(3, early, v), response(2, late, v)));
    });
  }

  explicit BorrowingSequence(const BorrowingSteps& definition) : borrow_(definition.borrow) {
    uint32_t next[steps], last[N] = {};
    detail::BorrowingResponses::continueWithoutBorrows(definition, steps, next);
    unrolled<2 * half>([&](auto v) HWY_ATTR { here_.v[v] = hn::LoadU(D(), next + v * N); });
    last[N - 3] = definition.x2;
    last[N - 2] = definition.x1;
    last[N - 1] = definition.x0;
    latest_ = hn::LoadU(D(), last);
  }

  /// By value, since an address would keep the lanes of the usual way in memory.
  static HWY_NOINLINE BorrowingSequence redraw(V latest, uint32_t borrow, uint32_t* x) {
    uint32_t last[N];
    hn::StoreU(latest, D(), last);
    BorrowingSteps definition(last[N - 3], last[N - 2], last[N - 1], borrow);
    for (ptrdiff_t i = 0; i < steps; ++i) x[i] = definition.next();
    return BorrowingSequence(definition);
  }
};

/// g, a vector of consecutive steps at a time.
class CongruentialSequence {
 public:
  using V = hn::Vec<Lanes<uint32_t>>;

  CongruentialSequence() {
    const Lanes<uint32_t> d;
    alignas(laneAlignment) uint32_t first[laneCount<uint32_t>];
    uint32_t g = 1131199209, factor = 1, offset = 0;  // a vector further on, g is factor g + offset
    for (uint32_t& each : first) {
      each = g = nextCongruential(g);
      factor *= 69069;
      offset = nextCongruential(offset);
    }
    next_ = hn::Load(d, first);
    factor_ = hn::Set(d, factor);
    offset_ = hn::Set(d, offset);
  }

  HWY_INLINE V next() {
    const V g = next_;
    next_ = hn::Add(hn::Mul(g, factor_), offset_);
    return g;
  }

 private:
  V next_, factor_, offset_;
};

}  // namespace vemi::signal
