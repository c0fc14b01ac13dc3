// vemiReduceBits: a few levels, evenly spread over the range of the result, by the nearest one, with noise, with an
// ordered dither or with error diffusion. Checks: null, size, step, noise, levels.
//
// The nearest level of a pixel x with a threshold b = 0..65534, which is 32767 without a dither and without noise, is
// floor((x N + b) / 65535). Thresholds stand in rows, one for each element, so that all layouts are rows of elements.

#include <algorithm>
#include <cstring>
#include <type_traits>
#include <utility>

#include "core/checks.h"
#include "core/exports.h"
#include "core/float_control.h"
#include "core/image.h"
#include "core/map_row.h"
#include "core/parallel.h"
#include "core/pixels.h"
#include "core/row_pieces.h"
#include "map/diffusion.h"
#include "map/dither.h"
#include "vemi/map.h"

namespace vemi::map {
namespace {

VemiStatus checkNoise(int noise) { return noise < 0 || noise > 100 ? vemiErrNoiseRange : vemiOk; }
VemiStatus checkLevels(int levels) { return levels < 2 || levels > 256 ? vemiErrDitherLevels : vemiOk; }

// ---- Each pixel by itself -------------------------------------------------------------------------------------------

/// Bytes v are x / 257, and so they have floor(b / 257) for a threshold: floor((v N + that) / 255).
template <class S>
using Threshold = std::conditional_t<sizeof(S) == 1, Vemi8u, Vemi16u>;

template <class S, class T>
struct NearestLevel {
  Vemi16u highest;
  LevelValue<T> value;

  /// Of bytes.
  template <class D, class V>
  requires std::is_same_v<S, Vemi8u> HWY_INLINE V operator()(D d, V pixels, V thresholds) const {
    return inWideLanes(
        d,
        [&](auto dWide, auto x, auto threshold) HWY_ATTR {
          const auto sum = hn::Add(hn::Mul(x, hn::Set(dWide, highest)), threshold);
          const auto one = hn::Set(dWide, 1);
          return value(dWide, hn::ShiftRight<8>(hn::Add(hn::Add(sum, one), hn::ShiftRight<8>(sum))));
        },
        pixels, thresholds);
  }

  /// Of all others: lanes of elements and thresholds, or, where these have another type than the result, their address.
  template <class D, class Pixels, class Thresholds>
  requires(!std::is_same_v<S, Vemi8u>) HWY_INLINE hn::Vec<D>
  operator()(D d, Pixels in, Thresholds thresholds) const {
    const Lanes<Vemi16u> d16;
    if constexpr (sizeof(T) == 1) {
      return packEach<Vemi16u>(d, [&](auto k) HWY_ATTR {
        constexpr ptrdiff_t N = laneCount<Vemi16u>;
        const auto level = ofWords(d16, in + k * N, hn::LoadU(d16, thresholds + k * N));
        return hn::BitCast(Lanes<Vemi16s>(), level);
      });
    } else if constexpr (std::is_pointer_v<Thresholds>) {
      return hn::BitCast(d, ofWords(d16, in, hn::LoadU(d16, thresholds)));
    } else {
      return ofWords(d16, in, thresholds);
    }
  }

 private:
  /// x N is q 65536 + r, and so q 65535 + (q + r).
  template <class D, class Pixels, class V = hn::Vec<D>>
  HWY_INLINE V ofWords(D d, Pixels in, V threshold) const {
    const V x = OnOneScale()(d, in), steps = hn::Set(d, highest);
    const V q = hn::MulHigh(x, steps), r = hn::Mul(x, steps);
    const V first = reachesWhite(q, r), rest = hn::Add(hn::Add(q, r), first);
    return value(d, hn::Add(hn::Add(q, first), reachesWhite(rest, threshold)));
  }
};

/// Of the pixel in column x and row y of 8 x 8: 32767 + ((63 - 2 B) 65535 >> 7), where each pair of bits of x and y,
/// from the lowest on, is the next digit of B to the base 4.
constexpr Vemi16u bayerThreshold(int x, int y) {
  constexpr int digit[2][2] = {{0, 2}, {3, 1}};
  int rank = 0;
  for (int bit = 0; bit < 3; ++bit) rank = 4 * rank + digit[y >> bit & 1][x >> bit & 1];
  return static_cast<Vemi16u>(32767 + ((63 - 2 * rank) * 65535 >> 7));
}

constexpr ptrdiff_t bayerSize = 8;

/// The thresholds of eight rows, or of one that serves for all, without noise, from any multiple of 8 columns on.
class Thresholds {
 public:
  explicit Thresholds(bool ordered) : rows_(ordered ? bayerSize : 1) {
    for (int y = 0; y < rows_; ++y) {
      for (int x = 0; x < columns; ++x)
        row_[y][x] = ordered ? bayerThreshold(static_cast<int>(x % bayerSize), y) : 32767;
    }
  }

  static constexpr ptrdiff_t columns = laneCount<Vemi16u> > bayerSize ? laneCount<Vemi16u> : bayerSize;

  int rows() const { return rows_; }
  const Vemi16u* row(ptrdiff_t y) const { return row_[y & (rows_ - 1)]; }

 private:
  int rows_;
  alignas(laneAlignment) Vemi16u row_[bayerSize][columns];
};

/// Columns of a row that are done together.
constexpr ptrdiff_t pieceColumns = 256;

template <class T>
using PieceRow = T[pieceColumns];

/// A piece of thresholds for source elements S, moved by noise, modulo 65535.
template <class S>
void moveThresholds(ptrdiff_t count, const Vemi16u* repeated, const Vemi16s* noise, Threshold<S>* out) {
  const Lanes<Vemi16u> d;
  const hn::Rebind<Threshold<S>, decltype(d)> dOut;
  const auto start = hn::Load(d, repeated);
  for (ptrdiff_t x = 0; x < count; x += laneCount<Vemi16u>) {
    const auto n = hn::LoadU(Lanes<Vemi16s>(), noise + x);
    const auto shift = hn::BitCast(d, hn::Add(n, hn::BroadcastSignBit(n)));  // a negative one more, and 65536
    const auto b = hn::Add(hn::Add(start, shift), reachesWhite(start, shift));
    if constexpr (sizeof(Threshold<S>) == 1) {
      const auto byte = hn::ShiftRight<8>(hn::Sub(b, hn::ShiftRight<8>(b)));  // floor(b / 257)
      hn::StoreU(hn::DemoteTo(dOut, hn::BitCast(Lanes<Vemi16s>(), byte)), dOut, out + x);
    } else {
      hn::StoreU(b, dOut, out + x);
    }
  }
}

template <class L, class S, class T>
class PixelsApart {
 public:
  PixelsApart(Image<const S> src, Image<T> dst, VemiSize roiSize, int noise, bool ordered, int levels)
      : src_(src),
        dst_(dst),
        roiSize_(roiSize),
        noise_(noise),
        thresholds_(ordered),
        op_{static_cast<Vemi16u>(levels - 1), LevelValue<T>(levels)} {}

  void run() {
    if (noise_ > 0) return TeamRows{false}.run(roiSize_.height, [&](ptrdiff_t y) { noisyRow(y); });
    for (int y = 0; y < thresholds_.rows(); ++y) {
      PieceRow<Threshold<S>> ofPixels;
      const Vemi16s nothing[pieceColumns] = {};
      moveThresholds<S>(pieceColumns, thresholds_.row(y), nothing, ofPixels);
      spread(pieceColumns, ofPixels, repeated_[y]);
    }
    TeamRows{false}.run(roiSize_.height, [&](ptrdiff_t y) {
      forPieces([&](ptrdiff_t x, ptrdiff_t count) { mapPiece(x, y, count, repeated_[y & (thresholds_.rows() - 1)]); });
    });
  }

 private:
  using ElementRow = Threshold<S>[pieceColumns * L::elements];

  const Image<const S> src_;
  const Image<T> dst_;
  const VemiSize roiSize_;
  const int noise_;
  const Thresholds thresholds_;
  const NearestLevel<S, T> op_;
  alignas(laneAlignment) ElementRow repeated_[bayerSize];

  template <class F>
  void forPieces(const F& f) const {
    for (ptrdiff_t x = 0; x < roiSize_.width; x += pieceColumns) f(x, std::min(pieceColumns, roiSize_.width - x));
  }

  void mapPiece(ptrdiff_t x, ptrdiff_t y, ptrdiff_t count, const Threshold<S>* thresholds) const {
    mapRow<L>(count, eachVector(op_), dst_.row(y) + x * L::elements, src_.row(y) + x * L::elements, thresholds);
  }

  void noisyRow(ptrdiff_t y) const {
    RowNoise noise(y, noise_);
    forPieces([&](ptrdiff_t x, ptrdiff_t count) {
      alignas(laneAlignment) PieceRow<Vemi16s> n;
      alignas(laneAlignment) PieceRow<Threshold<S>> ofPixels;
      noise.draw(count, n);
      moveThresholds<S>(count, thresholds_.row(y), n, ofPixels);
      if constexpr (L::elements == 1) {
        mapPiece(x, y, count, ofPixels);
      } else {
        alignas(laneAlignment) ElementRow ofElements;
        spread(count, ofPixels, ofElements);
        mapPiece(x, y, count, ofElements);
      }
    });
  }

  static void spread(ptrdiff_t count, const Threshold<S>* ofPixels, Threshold<S>* ofElements) {
    mapPixels(count, RepeatedChannel<L::elements>(), pixelRow<Interleaved<L::elements>>(ofElements),
              planeRow(ofPixels));
  }
};

// ---- Error diffusion ------------------------------------------------------------------------------------------------

/// Levels as pixels of T.
template <class T>
struct LevelPixels {
  LevelValue<T> value;

  template <class D, class... V>
  HWY_INLINE auto operator()(D d, V... levels) const {
    return std::tuple(element(d, levels)...);
  }

 private:
  template <class D, class V>
  HWY_INLINE auto element(D d, V level) const {
    const hn::Rebind<T, D> dOut;
    if constexpr (sizeof(T) == 1) {
      return hn::DemoteTo(dOut, hn::BitCast(hn::RebindToSigned<D>(), value(d, level)));
    } else {
      return hn::BitCast(dOut, value(d, level));
    }
  }
};

template <class L, class S, class T>
VemiStatus diffuse(Image<const S> src, Image<T> dst, VemiSize roiSize, int noise, vemiDitherType type, int levels) {
  const ptrdiff_t width = roiSize.width;
  const Diffusion diffusion(type, L::channels, width, levels - 1, noise > 0);
  if (diffusion.failed()) return vemiErrMemAlloc;
  const LevelPixels<T> pixels = {LevelValue<T>(levels)};
  for (ptrdiff_t y = 0; y < roiSize.height; y += Diffusion::rows) {
    const ptrdiff_t rows = std::min(Diffusion::rows, roiSize.height - y);
    for (ptrdiff_t row = 0; row < rows; ++row) {
      if (noise > 0) RowNoise(y + row, noise).draw(width, diffusion.noise(row));
      forEachPiece<L, pieceColumns>(
          src.row(y + row), width, [&](int channel, ptrdiff_t x, const S* values, ptrdiff_t n) {
            mapElements<Alpha::none>(n, eachVector(OnOneScale()), diffusion.line(channel, row) + x, values);
          });
    }
    diffusion.run();
    for (ptrdiff_t row = 0; row < rows; ++row) {
      [&]<int... channel>(std::integer_sequence<int, channel...>) {
        mapPixels(width, pixels, pixelRow<L>(dst.row(y + row)),
                  planeRow(static_cast<const Vemi16u*>(diffusion.line(channel, row))...));
      }
      (std::make_integer_sequence<int, L::channels>());
    }
  }
  return vemiOk;
}

bool diffuses(vemiDitherType type) {
  return type == vemiDitherFloydSteinberg || type == vemiDitherJarvisJudiceNinke || type == vemiDitherStucki;
}

template <class L, class S, class T>
VemiStatus reduceBits(Image<const S> src, Image<T> dst, VemiSize roiSize, int noise, vemiDitherType ditherType,
                      int levels) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst), checkNoise(noise),
                                     checkLevels(levels))) {
    return bad;
  }
  return roundingToNearest([&] {
    if (diffuses(ditherType)) return diffuse<L>(src, dst, roiSize, noise, ditherType, levels);
    PixelsApart<L, S, T>(src, dst, roiSize, noise, ditherType == vemiDitherBayer, levels).run();
    return VemiStatus{vemiOk};
  });
}

}  // namespace
}  // namespace vemi::map

using namespace vemi;
using namespace vemi::map;

#define LEVELS ((int noise, vemiDitherType ditherType, int levels), (noise, ditherType, levels))

VEMI_DEFINE(vemiReduceBits_8u_C1R, VEMI_SRC_DST(Vemi8u, LEVELS), reduceBits<C1>)
VEMI_DEFINE(vemiReduceBits_8u_C3R, VEMI_SRC_DST(Vemi8u, LEVELS), reduceBits<C3>)
VEMI_DEFINE(vemiReduceBits_8u_C4R, VEMI_SRC_DST(Vemi8u, LEVELS), reduceBits<C4>)
VEMI_DEFINE(vemiReduceBits_8u_AC4R, VEMI_SRC_DST(Vemi8u, LEVELS), reduceBits<AC4>)

VEMI_DEFINE(vemiReduceBits_16u_C1R, VEMI_SRC_DST(Vemi16u, LEVELS), reduceBits<C1>)
VEMI_DEFINE(vemiReduceBits_16u_C3R, VEMI_SRC_DST(Vemi16u, LEVELS), reduceBits<C3>)
VEMI_DEFINE(vemiReduceBits_16u_C4R, VEMI_SRC_DST(Vemi16u, LEVELS), reduceBits<C4>)
VEMI_DEFINE(vemiReduceBits_16u_AC4R, VEMI_SRC_DST(Vemi16u, LEVELS), reduceBits<AC4>)

VEMI_DEFINE(vemiReduceBits_16s_C1R, VEMI_SRC_DST(Vemi16s, LEVELS), reduceBits<C1>)
VEMI_DEFINE(vemiReduceBits_16s_C3R, VEMI_SRC_DST(Vemi16s, LEVELS), reduceBits<C3>)
VEMI_DEFINE(vemiReduceBits_16s_C4R, VEMI_SRC_DST(Vemi16s, LEVELS), reduceBits<C4>)
VEMI_DEFINE(vemiReduceBits_16s_AC4R, VEMI_SRC_DST(Vemi16s, LEVELS), reduceBits<AC4>)

VEMI_DEFINE(vemiReduceBits_16u8u_C1R, VEMI_CONVERSION(Vemi16u, Vemi8u, LEVELS), reduceBits<C1>)
VEMI_DEFINE(vemiReduceBits_16u8u_C3R, VEMI_CONVERSION(Vemi16u, Vemi8u, LEVELS), reduceBits<C3>)
VEMI_DEFINE(vemiReduceBits_16u8u_C4R, VEMI_CONVERSION(Vemi16u, Vemi8u, LEVELS), reduceBits<C4>)
VEMI_DEFINE(vemiReduceBits_16u8u_AC4R, VEMI_CONVERSION(Vemi16u, Vemi8u, LEVELS), reduceBits<AC4>)

VEMI_DEFINE(vemiReduceBits_16s8u_C1R, VEMI_CONVERSION(Vemi16s, Vemi8u, LEVELS), reduceBits<C1>)
VEMI_DEFINE(vemiReduceBits_16s8u_C3R, VEMI_CONVERSION(Vemi16s, Vemi8u, LEVELS), reduceBits<C3>)
VEMI_DEFINE(vemiReduceBits_16s8u_C4R, VEMI_CONVERSION(Vemi16s, Vemi8u, LEVELS), reduceBits<C4>)
VEMI_DEFINE(vemiReduceBits_16s8u_AC4R, VEMI_CONVERSION(Vemi16s, Vemi8u, LEVELS), reduceBits<AC4>)

VEMI_DEFINE(vemiReduceBits_32f8u_C1R, VEMI_CONVERSION(Vemi32f, Vemi8u, LEVELS), reduceBits<C1>)
VEMI_DEFINE(vemiReduceBits_32f8u_C3R, VEMI_CONVERSION(Vemi32f, Vemi8u, LEVELS), reduceBits<C3>)
VEMI_DEFINE(vemiReduceBits_32f8u_C4R, VEMI_CONVERSION(Vemi32f, Vemi8u, LEVELS), reduceBits<C4>)
VEMI_DEFINE(vemiReduceBits_32f8u_AC4R, VEMI_CONVERSION(Vemi32f, Vemi8u, LEVELS), reduceBits<AC4>)

VEMI_DEFINE(vemiReduceBits_32f16u_C1R, VEMI_CONVERSION(Vemi32f, Vemi16u, LEVELS), reduceBits<C1>)
VEMI_DEFINE(vemiReduceBits_32f16u_C3R, VEMI_CONVERSION(Vemi32f, Vemi16u, LEVELS), reduceBits<C3>)
VEMI_DEFINE(vemiReduceBits_32f16u_C4R, VEMI_CONVERSION(Vemi32f, Vemi16u, LEVELS), reduceBits<C4>)
VEMI_DEFINE(vemiReduceBits_32f16u_AC4R, VEMI_CONVERSION(Vemi32f, Vemi16u, LEVELS), reduceBits<AC4>)

VEMI_DEFINE(vemiReduceBits_32f16s_C1R, VEMI_CONVERSION(Vemi32f, Vemi16s, LEVELS), reduceBits<C1>)
VEMI_DEFINE(vemiReduceBits_32f16s_C3R, VEMI_CONVERSION(Vemi32f, Vemi16s, LEVELS), reduceBits<C3>)
VEMI_DEFINE(vemiReduceBits_32f16s_C4R, VEMI_CONVERSION(Vemi32f, Vemi16s, LEVELS), reduceBits<C4>)
VEMI_DEFINE(vemiReduceBits_32f16s_AC4R, VEMI_CONVERSION(Vemi32f, Vemi16s, LEVELS), reduceBits<AC4>)
