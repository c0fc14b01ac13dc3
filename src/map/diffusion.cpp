#include "map/diffusion.h"

#include <bit>
#include <cstring>
#include <type_traits>

#include "core/lanes.h"
#include "core/processor.h"

namespace vemi::map {

namespace {

using D = hn::CappedTag<Vemi32s, Diffusion::rows>;
using V = hn::Vec<D>;
constexpr ptrdiff_t N = hn::MaxLanes(D());
constexpr int vectors = static_cast<int>(Diffusion::rows / N);

template <int factor>
HWY_INLINE V times(V v) {
  if constexpr (factor == 1) return v;
  if constexpr (factor == 3) return hn::Add(hn::ShiftLeft<1>(v), v);
  if constexpr (factor == 5) return hn::Add(hn::ShiftLeft<2>(v), v);
  if constexpr (factor == 7) return hn::Sub(hn::ShiftLeft<3>(v), v);
  if constexpr (std::has_single_bit(unsigned{factor})) return hn::ShiftLeft<std::countr_zero(unsigned{factor})>(v);
}

/// The latest five errors of each row, the last one first.
using Errors = Vectors<V, 5>;

// Weights give, with errors of at most 65534:
//   reach        columns to the left and right in the rows above that have a share
//   twoRows      whether the row two rows above has one
//   ofRow        what errors e1 and e2 to the left leave to a pixel
//   below        what five errors leave to the pixel below the middle one (with a reach of 1, below the second latest)
//   twoBelow     the same one row further down
//   share        floor((sum + T / 2) / T)

struct FloydSteinberg {
  static constexpr ptrdiff_t reach = 1;
  static constexpr bool twoRows = false;
  static HWY_INLINE V ofRow(V e1, V) { return times<7>(e1); }
  static HWY_INLINE V below(const Errors& e) { return hn::Add(hn::Add(times<3>(e.v[0]), times<5>(e.v[1])), e.v[2]); }
  static HWY_INLINE V share(V sum) { return hn::ShiftRight<4>(hn::Add(sum, hn::Set(D(), 8))); }
};

/// sum / T + 1 / 2T to nearest: halves go up, and what is nearest to another half stays 1 / 2T away from it, which is
/// more than the rounding of a product below 2^16 and of its factor.
template <int T>
HWY_INLINE V nearestShare(V sum) {
  const hn::RebindToFloat<D> df;
  const V doubled = hn::Add(hn::ShiftLeft<1>(sum), hn::Set(D(), 1));
  return rounded(D(), hn::Mul(hn::ConvertTo(df, doubled), hn::Set(df, 0.5f / T)));
}

struct JarvisJudiceNinke {
  static constexpr ptrdiff_t reach = 2;
  static constexpr bool twoRows = true;
  static HWY_INLINE V ofRow(V e1, V e2) { return hn::Add(times<7>(e1), times<5>(e2)); }
  static HWY_INLINE V below(const Errors& e) {
    const V outer = hn::Add(e.v[0], e.v[4]), inner = hn::Add(e.v[1], e.v[3]);
    return hn::Add(hn::Add(times<3>(outer), times<5>(inner)), times<7>(e.v[2]));
  }
  static HWY_INLINE V twoBelow(const Errors& e, V) {
    const V outer = hn::Add(e.v[0], e.v[4]), inner = hn::Add(e.v[1], e.v[3]);
    return hn::Add(hn::Add(outer, times<3>(inner)), times<5>(e.v[2]));
  }
  static HWY_INLINE V share(V sum) { return nearestShare<48>(sum); }
};

struct Stucki {
  static constexpr ptrdiff_t reach = 2;
  static constexpr bool twoRows = true;
  static HWY_INLINE V ofRow(V e1, V e2) { return hn::Add(times<8>(e1), times<4>(e2)); }
  static HWY_INLINE V below(const Errors& e) {
    const V outer = hn::Add(e.v[0], e.v[4]), inner = hn::Add(e.v[1], e.v[3]);
    return hn::Add(hn::Add(times<2>(outer), times<4>(inner)), times<8>(e.v[2]));
  }
  static HWY_INLINE V twoBelow(const Errors&, V below) { return hn::ShiftRight<1>(below); }
  static HWY_INLINE V share(V sum) { return nearestShare<42>(sum); }
};

/// Eight rows of eight elements: rows become columns.
template <class T>
HWY_INLINE void transpose(const T* in, ptrdiff_t inStep, T* out, ptrdiff_t outStep) {
  const hn::CappedTag<T, 8> d;
  Vectors<hn::Vec<decltype(d)>, 8> v;
  unrolled<8>([&](auto row) HWY_ATTR { v.v[row] = hn::LoadU(d, in + row * inStep); });
  unrolled<3>([&](auto) HWY_ATTR {
    const auto halves = v;
    unrolled<4>([&](auto k) HWY_ATTR {
      v.v[2 * k] = hn::InterleaveLower(d, halves.v[k], halves.v[k + 4]);
      v.v[2 * k + 1] = hn::InterleaveUpper(d, halves.v[k], halves.v[k + 4]);
    });
  });
  unrolled<8>([&](auto row) HWY_ATTR { hn::StoreU(v.v[row], d, out + row * outStep); });
}

/// Sums on their way to the rows below, of the latest 16 steps. A step has one for each row of the block, and ahead of
/// them room for those of the two rows above it: so the lanes of the next row, or of the next but one, begin one or two
/// elements further ahead.
class SumRing {
 public:
  SumRing() : sums_() {}

  Vemi32s* ofStep(ptrdiff_t i) { return sums_[i & 15] + Diffusion::rows; }

 private:
  alignas(laneAlignment) Vemi32s sums_[16][2 * Diffusion::rows];
};

}  // namespace

/// One channel of a block.
template <class Weights, bool withNoise>
class DiffusedBlock {
 public:
  static void run(const Diffusion& all, Vemi16u* line, Vemi32s* above) { DiffusedBlock(all, above).decide(line); }

 private:
  static constexpr ptrdiff_t rows = Diffusion::rows, lag = Diffusion::lag, reach = Weights::reach;
  static constexpr ptrdiff_t last = (rows - 1) * lag;  // columns from the first row to the last
  static_assert(2 * lag - reach < 16);

  const Diffusion& all_;
  Vemi32s*
      above_[3];  // what the row above leaves to the next one, the row two above, the row above to the next but one
  SumRing next_, nextButOne_;
  Errors errors_[vectors];

  DiffusedBlock(const Diffusion& all, Vemi32s* above) : all_(all) {
    for (int n = 0; n < 3; ++n) above_[n] = above + n * static_cast<ptrdiff_t>(all.aboveLength_) + last + 2;
    for (Errors& each : errors_) unrolled<5>([&](auto k) HWY_ATTR { each.v[k] = hn::Zero(D()); });
    for (ptrdiff_t i = reach - 2 * lag; i < 0; ++i) takeAbove(i);
  }

  /// Beside the sums of step i those that the block's first rows want together with them.
  HWY_INLINE void takeAbove(ptrdiff_t i) {
    next_.ofStep(i)[-1] = above_[0][i + lag - reach];
    if constexpr (Weights::twoRows) {
      nextButOne_.ofStep(i)[-2] = above_[1][i + 2 * lag - reach];
      nextButOne_.ofStep(i)[-1] = above_[2][i + lag - reach];
    }
  }

  /// The sums of the last rows, of step i, for the next block: these columns have been read.
  HWY_INLINE void leaveBelow(ptrdiff_t i) {
    above_[0][i - reach - last] = next_.ofStep(i)[rows - 1];
    if constexpr (Weights::twoRows) {
      above_[1][i - reach - last + lag] = nextButOne_.ofStep(i)[rows - 2];
      above_[2][i - reach - last] = nextButOne_.ofStep(i)[rows - 1];
    }
  }

  /// Step i of the rows of vector v: their pixels become levels.
  template <bool atEdge>
  HWY_INLINE void step(ptrdiff_t i, int v, Errors& e, Vemi16u* pixels, const Vemi16s* noise) {
    const D d;
    const hn::Rebind<Vemi16u, D> dPixels;
    const hn::Rebind<Vemi16s, D> dNoise;
    const V highest = hn::Set(d, all_.highest_);
    const V exact = hn::Mul(hn::PromoteTo(d, hn::LoadU(dPixels, pixels + v * N)), highest);
    V sum = hn::LoadU(d, next_.ofStep(i - lag + reach) - 1 + v * N);
    if constexpr (Weights::twoRows) {
      sum = hn::Add(sum, hn::LoadU(d, nextButOne_.ofStep(i - 2 * lag + reach) - 2 + v * N));
    }
    const V value = hn::Add(exact, Weights::share(hn::Add(sum, Weights::ofRow(e.v[0], e.v[1]))));

    // floor((value + n + 32767) / 65535), limited: below 0 by whatever is negative.
    V moved = hn::Add(value, hn::Set(d, 32768));
    if constexpr (withNoise) moved = hn::Add(moved, hn::PromoteTo(d, hn::LoadU(dNoise, noise + v * N)));
    V level = hn::ShiftRight<16>(hn::Add(moved, hn::ShiftRight<16>(moved)));
    level = hn::Min(hn::Max(level, hn::Zero(d)), highest);
    hn::StoreU(hn::DemoteTo(dPixels, level), dPixels, pixels + v * N);

    V error = hn::Add(hn::Sub(value, hn::ShiftLeft<16>(level)), level);
    if constexpr (atEdge) {  // lanes beside their rows have no errors
      const V lane = hn::Iota(d, static_cast<Vemi32s>(v * N));
      const V column = hn::Sub(hn::Set(d, static_cast<Vemi32s>(i)), hn::Mul(lane, hn::Set(d, Vemi32s{lag})));
      const auto isInside =
          hn::AndNot(hn::Lt(column, hn::Zero(d)), hn::Lt(column, hn::Set(d, static_cast<Vemi32s>(all_.width_))));
      error = hn::IfThenElseZero(isInside, error);
    }
    e = {{error, e.v[0], e.v[1], e.v[2], e.v[3]}};
    const V below = Weights::below(e);
    hn::StoreU(below, d, next_.ofStep(i) + v * N);
    if constexpr (Weights::twoRows) hn::StoreU(Weights::twoBelow(e, below), d, nextButOne_.ofStep(i) + v * N);
  }

  template <bool atEdge>
  HWY_NOINLINE void steps(ptrdiff_t first, Vemi16u* pixels, const Vemi16s* noise) {
    Vectors<Errors, vectors> e;
    unrolled<vectors>([&](auto v) HWY_ATTR { e.v[v] = errors_[v]; });
    for (ptrdiff_t j = 0; j < 8; ++j) {
      unrolled<vectors>([&](auto v)
                            HWY_ATTR { step<atEdge>(first + j, v, e.v[v], pixels + j * rows, noise + j * rows); });
      takeAbove(first + j);
      leaveBelow(first + j);
    }
    unrolled<vectors>([&](auto v) HWY_ATTR { errors_[v] = e.v[v]; });
  }

  void decide(Vemi16u* line) {
    const ptrdiff_t rowStep = all_.length_ - lag;
    for (ptrdiff_t i = 0; i < all_.steps(); i += 8) {
      alignas(laneAlignment) Vemi16u pixels[8 * rows];
      alignas(laneAlignment) Vemi16s noise[8 * rows];
      for (ptrdiff_t row = 0; row < rows; row += 8) {
        transpose(line + i + row * rowStep, rowStep, pixels + row, rows);
        if constexpr (withNoise) transpose(all_.noise(0) + i + row * rowStep, rowStep, noise + row, rows);
      }
      if (i < last || i + 8 > all_.width_) {
        steps<true>(i, pixels, noise);
      } else {
        steps<false>(i, pixels, noise);
      }
      for (ptrdiff_t row = 0; row < rows; row += 8) transpose(pixels + row, rows, line + i + row * rowStep, rowStep);
    }
  }
};

namespace {

template <class Weights>
auto channelRunner(bool withNoise) {
  return withNoise ? DiffusedBlock<Weights, true>::run : DiffusedBlock<Weights, false>::run;
}

}  // namespace

Diffusion::Diffusion(vemiDitherType type, int channels, ptrdiff_t width, int highest, bool withNoise)
    : channels_(channels), highest_(highest), width_(width) {
  const Vemi64s behind = (rows - 1) * lag + 2 + 7;  // what the first row has left when the last one ends
  const Vemi64s length = (front + width + behind + 32 + 15) & -16;
  Pieces pieces;
  const auto lines = pieces.add<Vemi16u>(channels * rows * length);
  const auto noise = pieces.add<Vemi16s>(withNoise ? rows * length : 0);
  aboveLength_ = behind + width + behind + 2 * lag;
  const auto above = pieces.add<Vemi32s>(Vemi64s{channels} * 3 * aboveLength_);
  scratch_ = Scratch(pieces);
  if (failed()) return;
  length_ = static_cast<ptrdiff_t>(length);
  lines_ = scratch_[lines];
  noise_ = scratch_[noise];
  above_ = scratch_[above];
  std::memset(above_, 0, static_cast<size_t>(ptrdiff_t{channels} * 3 * aboveLength_) * sizeof(Vemi32s));
  runChannel_ = type == vemiDitherFloydSteinberg      ? channelRunner<FloydSteinberg>(withNoise)
                : type == vemiDitherJarvisJudiceNinke ? channelRunner<JarvisJudiceNinke>(withNoise)
                                                      : channelRunner<Stucki>(withNoise);
}

void Diffusion::run() const {
  for (int channel = 0; channel < channels_; ++channel) {
    runChannel_(*this, line(channel, 0), above_ + ptrdiff_t{channel} * 3 * aboveLength_);
  }
}

}  // namespace vemi::map
