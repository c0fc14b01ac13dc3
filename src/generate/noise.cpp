// vemiAddRandUniform_Direct, vemiAddRandGauss_Direct: pixels plus noise that the caller's seed determines.
// Checks: null (the seed's pointer too), size, step.
//
// Noise comes as a stream: a source turns a block of random integers into values, and the values are added to the
// worked elements in the order of memory, whatever the rows. Integer elements take rounded noise, floats take doubles.

#include <algorithm>
#include <cstring>
#include <type_traits>

#include "core/blocks.h"
#include "core/checks.h"
#include "core/exports.h"
#include "core/float_control.h"
#include "core/image.h"
#include "core/map_row.h"
#include "core/rounding.h"
#include "signal/ln.h"
#include "signal/random.h"
#include "vemi/generate.h"

namespace vemi::generate {
namespace {

template <class T>
using NoiseFor = std::conditional_t<std::is_integral_v<T>, int32_t, double>;

/// Steps of a block, and of the chunks in which it is drawn: x of a chunk is drawn while lanes work on the one before.
/// Whole vectors and whole pixels of three channels.
constexpr ptrdiff_t blockSteps = 384, chunkSteps = signal::BorrowingSequence::steps;

/// Calls onChunk(its first step) for all chunks of a block, with x of the chunk drawn.
template <class OnChunk>
HWY_INLINE void drawBlock(signal::BorrowingSequence& sequence, uint32_t* x, const OnChunk& onChunk) {
  signal::BorrowingSequence local = sequence;  // whose lanes no store can change
  local.draw(x);
  for (ptrdiff_t i = 0; i < blockSteps; i += chunkSteps) {
    if (i + chunkSteps < blockSteps) local.draw(x + i + chunkSteps);
    onChunk(i);
  }
  sequence = local;
}

/// Two vectors of values, one behind the other.
template <class V, class Noise>
HWY_INLINE void storeNoise(V first, V second, Noise* out) {
  if constexpr (std::is_same_v<Noise, double>) {
    const Lanes<double> d;
    hn::StoreU(first, d, out);
    hn::StoreU(second, d, out + laneCount<double>);
  } else {
    const Lanes<int32_t> d;
    hn::StoreU(nearestIntegers(d, first, second), d, out);
  }
}

/// Two vectors of values, by turns.
template <class V, class Noise>
HWY_INLINE void storeNoisePairs(V first, V second, Noise* out) {
  if constexpr (std::is_same_v<Noise, double>) {
    hn::StoreInterleaved2(first, second, Lanes<double>(), out);
  } else {
    const Lanes<int32_t> d;
    hn::StoreU(nearestIntegerPairs(d, first, second), d, out);
  }
}

/// r ((high - low) / 2^32) + (low + high) / 2, one step a value.
class UniformSource {
 public:
  static constexpr ptrdiff_t capacity = blockSteps;

  template <class T>
  UniformSource(T low, T high, uint32_t seed)
      : scale_((static_cast<double>(high) - static_cast<double>(low)) * 2.3283064365387e-10),
        middle_((static_cast<double>(low) + static_cast<double>(high)) * 0.5),
        x_(seed) {}

  template <class Noise>
  ptrdiff_t fill(Noise* values) {
    const Lanes<int32_t> dInt;
    const Lanes<double> d;
    const auto scale = hn::Set(d, scale_), middle = hn::Set(d, middle_);
    const auto value = [&](auto r) HWY_ATTR { return hn::Add(hn::Mul(hn::PromoteTo(d, r), scale), middle); };
    signal::CongruentialSequence g = g_;
    drawBlock(x_, drawn_, [&](ptrdiff_t chunk) HWY_ATTR {
      for (ptrdiff_t i = chunk; i < chunk + chunkSteps; i += laneCount<int32_t>) {
        const auto r = hn::BitCast(dInt, hn::Add(hn::Load(Lanes<uint32_t>(), drawn_ + i), g.next()));
        storeNoise(value(hn::LowerHalf(r)), value(hn::UpperHalf(hn::Half<decltype(dInt)>(), r)), values + i);
      }
    });
    g_ = g;
    return capacity;
  }

  /// x after the `used` first values of the latest block.
  uint32_t seedAfter(ptrdiff_t used) const { return drawn_[used - 1]; }

 private:
  double scale_, middle_;
  signal::BorrowingSequence x_;
  signal::CongruentialSequence g_;
  alignas(laneAlignment) uint32_t drawn_[blockSteps];
};

/// The polar method: a pair of steps is a point of the square from -1 to 1; one inside of the unit circle gives two
/// values, others none.
class GaussSource {
 public:
  static constexpr ptrdiff_t capacity = blockSteps;

  template <class T>
  GaussSource(T mean, T stDev, uint32_t seed)
      : mean_(static_cast<double>(mean)), stDev_(static_cast<double>(stDev)), x_(seed) {}

  template <class Noise>
  ptrdiff_t fill(Noise* values) {
    const ptrdiff_t count = drawPoints();
    const Lanes<double> d;
    // In two passes: a processor looks ahead as far as the next vectors of a short pass.
    for (ptrdiff_t i = 0; i < count; i += N) {
      const auto s = hn::Load(d, s_ + i);
      hn::Store(hn::Div(hn::Mul(hn::Set(d, -2.0), signal::Ln64f()(d, s)), s), d, s_ + i);
    }
    for (ptrdiff_t i = 0; i < count; i += N) {
      const auto scaled = hn::Mul(hn::Set(d, stDev_), hn::Sqrt(hn::Load(d, s_ + i)));
      const auto first = hn::Add(hn::Mul(scaled, hn::Load(d, u_ + i)), hn::Set(d, mean_));
      const auto second = hn::Add(hn::Mul(scaled, hn::Load(d, v_ + i)), hn::Set(d, mean_));
      storeNoisePairs(first, second, values + 2 * i);
    }
    return 2 * count;
  }

  uint32_t seedAfter(ptrdiff_t used) const { return drawn_[lastStep_[(used - 1) / 2]]; }

 private:
  static constexpr ptrdiff_t N = laneCount<double>;

  double mean_, stDev_;
  signal::BorrowingSequence x_;
  signal::CongruentialSequence g_;
  alignas(laneAlignment) uint32_t drawn_[blockSteps];
  // Of the points inside: coordinates, squared distance, and place of the second step in the block. A vector of points
  // may be read behind the last one.
  alignas(laneAlignment) double u_[blockSteps / 2 + N] = {}, v_[blockSteps / 2 + N] = {}, s_[blockSteps / 2 + N] = {};
  uint16_t lastStep_[blockSteps / 2 + 1];

  /// The number of points of a block that lie inside.
  ptrdiff_t drawPoints() {
    signal::CongruentialSequence g = g_;
    ptrdiff_t count = 0;
    drawBlock(x_, drawn_, [&](ptrdiff_t chunk) HWY_ATTR {
      for (ptrdiff_t i = chunk; i < chunk + chunkSteps; i += laneCount<uint32_t>) count = collect(i, g.next(), count);
    });
    g_ = g;
    return count;
  }

  /// Adds the points inside, out of a vector of steps, to the `count` ones that there are.
  HWY_INLINE ptrdiff_t collect(ptrdiff_t step, signal::CongruentialSequence::V g, ptrdiff_t count) {
    const Lanes<double> d;
    const Lanes<uint64_t> dBits;
    const auto steps = hn::BitCast(dBits, hn::Add(hn::Load(Lanes<uint32_t>(), drawn_ + step), g));
    // A double of 2^52 + 2^31 plus a signed integer has the integer, its sign bit inverted, in its lower half.
    const auto bias = hn::Set(dBits, 0x4330000080000000);
    const auto coordinate = [&](auto signedInLower) HWY_ATTR {
      const auto r = hn::Sub(hn::BitCast(d, hn::Xor(signedInLower, bias)), hn::BitCast(d, bias));
      return hn::Mul(r, hn::Set(d, 4.656612873077e-10));
    };
    const auto u = coordinate(hn::And(steps, hn::Set(dBits, 0xffffffff)));
    const auto v = coordinate(hn::ShiftRight<32>(steps));
    const auto s = hn::Add(hn::Mul(u, u), hn::Mul(v, v));
    const auto isInside = hn::And(hn::Lt(s, hn::Set(d, 1.0)), hn::Ne(s, hn::Zero(d)));
    alignas(laneAlignment) double ofU[N], ofV[N], ofS[N];
    alignas(laneAlignment) uint64_t inside[N];
    hn::Store(u, d, ofU);
    hn::Store(v, d, ofV);
    hn::Store(s, d, ofS);
    hn::Store(hn::BitCast(dBits, hn::VecFromMask(d, isInside)), dBits, inside);
    for (ptrdiff_t j = 0; j < N; ++j) {
      u_[count] = ofU[j];
      v_[count] = ofV[j];
      s_[count] = ofS[j];
      lastStep_[count] = static_cast<uint16_t>(step + 2 * j + 1);
      count += static_cast<ptrdiff_t>(inside[j] & 1);
    }
    return count;
  }
};

/// The values of a source, to be taken in pixels of one or three. Those at the end of a block that make no whole pixel
/// wait for the next block, so the last value taken is always one of the latest block.
template <ptrdiff_t channels, class Noise, class Source>
class NoiseStream {
 public:
  explicit NoiseStream(Source& source) : source_(source) {}

  /// In pixels, one at least.
  ptrdiff_t available() {
    while (end_ - first_ < channels) {
      const ptrdiff_t kept = end_ - first_;
      std::copy_n(values_ + first_, kept, values_);
      blockStart_ = kept;
      first_ = 0;
      end_ = kept + source_.fill(values_ + kept);
    }
    return (end_ - first_) / channels;
  }

  /// The next ones of the available; a vector more may be read behind them.
  const Noise* take(ptrdiff_t pixels) {
    const Noise* const taken = values_ + first_;
    first_ += pixels * channels;
    return taken;
  }

  uint32_t seed() const { return source_.seedAfter(first_ - blockStart_); }

 private:
  Source& source_;
  ptrdiff_t first_ = 0, end_ = 0, blockStart_ = 0;
  Noise values_[2 + Source::capacity + 2 * laneCount<double>];
};

/// element += noise, saturated or rounded. With an alpha, every fourth noise value is ignored.
template <Alpha alpha, class T, class Noise>
void addRow(ptrdiff_t count, const Noise* noise, T* elements) {
  const Lanes<Noise> dNoise;
  const hn::Rebind<T, decltype(dNoise)> d;
  constexpr ptrdiff_t N = laneCount<Noise>;
  constexpr int vectors = 4;
  const auto kernel = [&](T* out, const T* in, const Noise* values) HWY_ATTR {
    unrolled<vectors>([&](auto k) HWY_ATTR {
      const auto old = hn::LoadU(d, in + k * N);
      auto sum = hn::DemoteTo(d, hn::Add(hn::PromoteTo(dNoise, old), hn::LoadU(dNoise, values + k * N)));
      if constexpr (alpha == Alpha::kept) sum = hn::IfThenElse(colourLanes(d, k * N % 4), sum, old);
      hn::StoreU(sum, d, out + k * N);
    });
  };
  forBlocks<vectors * N>(count, kernel, Strand<T>{elements}, Strand<const T>{elements}, Strand<const Noise>{noise});
}

/// The noise of three channels at the places of four; the fourth one has any.
template <class Noise>
void spreadPixels(ptrdiff_t pixels, const Noise* noise, Noise* spread) {
  for (ptrdiff_t x = 0; x < pixels; ++x) std::memcpy(spread + 4 * x, noise + 3 * x, 4 * sizeof(Noise));
}

/// A row of `width` pixels with an alpha, or of single elements.
template <Alpha alpha, class T, class Stream>
void addStream(ptrdiff_t width, Stream& stream, T* row) {
  for (ptrdiff_t x = 0; x < width;) {
    const ptrdiff_t pixels = std::min(width - x, stream.available());
    const NoiseFor<T>* const noise = stream.take(pixels);
    if constexpr (alpha == Alpha::kept) {
      NoiseFor<T> spread[(blockSteps / 3 + 1) * 4];
      spreadPixels(pixels, noise, spread);
      addRow<alpha>(4 * pixels, spread, row + 4 * x);
    } else {
      addRow<alpha>(pixels, noise, row + x);
    }
    x += pixels;
  }
}

template <class Source, class L, class T>
VemiStatus addNoise(Image<T> dst, VemiSize roiSize, T first, T second, Vemi32u* pSeed) {
  if (const VemiStatus bad = firstOf(checkNull(dst, pSeed), checkSize(roiSize), checkStep(dst))) return bad;
  return roundingToNearest([&] {
    constexpr Alpha alpha = alphaOf<L>;
    Source source(first, second, *pSeed);
    NoiseStream<alpha == Alpha::kept ? 3 : 1, NoiseFor<T>, Source> stream(source);
    const Extent extent = mergedExtent(roiSize, isContiguous<L>(dst, roiSize));
    const ptrdiff_t width = extent.width * (alpha == Alpha::kept ? 1 : L::elements);
    for (ptrdiff_t y = 0; y < extent.height; ++y) addStream<alpha>(width, stream, dst.row(y));
    *pSeed = stream.seed();
    return vemiOk;
  });
}

}  // namespace
}  // namespace vemi::generate

using namespace vemi;
using namespace vemi::generate;

#define NOISE(T, first, second)                                                        \
  ((T * pSrcDst, int srcDstStep, VemiSize roiSize, T first, T second, Vemi32u* pSeed), \
   (Image<T>{pSrcDst, srcDstStep}, roiSize, first, second, pSeed))

VEMI_DEFINE(vemiAddRandUniform_Direct_8u_C1IR, NOISE(Vemi8u, low, high), addNoise<UniformSource, C1>)
VEMI_DEFINE(vemiAddRandUniform_Direct_8u_C3IR, NOISE(Vemi8u, low, high), addNoise<UniformSource, C3>)
VEMI_DEFINE(vemiAddRandUniform_Direct_8u_C4IR, NOISE(Vemi8u, low, high), addNoise<UniformSource, C4>)
VEMI_DEFINE(vemiAddRandUniform_Direct_8u_AC4IR, NOISE(Vemi8u, low, high), addNoise<UniformSource, AC4>)
VEMI_DEFINE(vemiAddRandUniform_Direct_16s_C1IR, NOISE(Vemi16s, low, high), addNoise<UniformSource, C1>)
VEMI_DEFINE(vemiAddRandUniform_Direct_16s_C3IR, NOISE(Vemi16s, low, high), addNoise<UniformSource, C3>)
VEMI_DEFINE(vemiAddRandUniform_Direct_16s_C4IR, NOISE(Vemi16s, low, high), addNoise<UniformSource, C4>)
VEMI_DEFINE(vemiAddRandUniform_Direct_16s_AC4IR, NOISE(Vemi16s, low, high), addNoise<UniformSource, AC4>)
VEMI_DEFINE(vemiAddRandUniform_Direct_32f_C1IR, NOISE(Vemi32f, low, high), addNoise<UniformSource, C1>)
VEMI_DEFINE(vemiAddRandUniform_Direct_32f_C3IR, NOISE(Vemi32f, low, high), addNoise<UniformSource, C3>)
VEMI_DEFINE(vemiAddRandUniform_Direct_32f_C4IR, NOISE(Vemi32f, low, high), addNoise<UniformSource, C4>)
VEMI_DEFINE(vemiAddRandUniform_Direct_32f_AC4IR, NOISE(Vemi32f, low, high), addNoise<UniformSource, AC4>)

VEMI_DEFINE(vemiAddRandGauss_Direct_8u_C1IR, NOISE(Vemi8u, mean, stDev), addNoise<GaussSource, C1>)
VEMI_DEFINE(vemiAddRandGauss_Direct_8u_C3IR, NOISE(Vemi8u, mean, stDev), addNoise<GaussSource, C3>)
VEMI_DEFINE(vemiAddRandGauss_Direct_8u_C4IR, NOISE(Vemi8u, mean, stDev), addNoise<GaussSource, C4>)
VEMI_DEFINE(vemiAddRandGauss_Direct_8u_AC4IR, NOISE(Vemi8u, mean, stDev), addNoise<GaussSource, AC4>)
VEMI_DEFINE(vemiAddRandGauss_Direct_16s_C1IR, NOISE(Vemi16s, mean, stDev), addNoise<GaussSource, C1>)
VEMI_DEFINE(vemiAddRandGauss_Direct_16s_C3IR, NOISE(Vemi16s, mean, stDev), addNoise<GaussSource, C3>)
VEMI_DEFINE(vemiAddRandGauss_Direct_16s_C4IR, NOISE(Vemi16s, mean, stDev), addNoise<GaussSource, C4>)
VEMI_DEFINE(vemiAddRandGauss_Direct_16s_AC4IR, NOISE(Vemi16s, mean, stDev), addNoise<GaussSource, AC4>)
VEMI_DEFINE(vemiAddRandGauss_Direct_32f_C1IR, NOISE(Vemi32f, mean, stDev), addNoise<GaussSource, C1>)
VEMI_DEFINE(vemiAddRandGauss_Direct_32f_C3IR, NOISE(Vemi32f, mean, stDev), addNoise<GaussSource, C3>)
VEMI_DEFINE(vemiAddRandGauss_Direct_32f_C4IR, NOISE(Vemi32f, mean, stDev), addNoise<GaussSource, C4>)
VEMI_DEFINE(vemiAddRandGauss_Direct_32f_AC4IR, NOISE(Vemi32f, mean, stDev), addNoise<GaussSource, AC4>)
