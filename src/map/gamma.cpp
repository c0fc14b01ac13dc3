// vemiGammaFwd, vemiGammaInv: the transfer curve of ITU-R BT.709 and its inverse. The results of bytes are constants;
// 16-bit elements are computed, by way of a table where that is less work; floats are computed in double lanes.
// Checks: null, size, step; of floats, the range ahead of all.

#include <algorithm>
#include <limits>
#include <numeric>

#include "core/byte_table.h"
#include "core/checks.h"
#include "core/exports.h"
#include "core/float_control.h"
#include "core/map_region.h"
#include "core/rounding.h"
#include "core/scratch.h"
#include "core/word_table.h"
#include "signal/near_power.h"
#include "signal/pow.h"
#include "vemi/map.h"

namespace vemi::map {
namespace {

/// From light to signal. Below the breakpoint, t times the slope; from there on,
/// ((t + lift) * factor)^exponent * gain - offset.
struct Forward {
  static constexpr double breakpoint = 0.018, slope = 4.5;
  static constexpr double lift = 0, factor = 1, exponent = 0.45, gain = 1.099, offset = 0.099;
  static constexpr signal::NearPower nearPower{exponent};

  static constexpr ByteTable ofBytes = {
      {0,   4,   9,   14,  18,  23,  27,  30,  34,  37,  40,  43,  46,  48,  51,  53,  55,  58,  60,  62,  64,  66,
       68,  70,  72,  73,  75,  77,  78,  80,  82,  83,  85,  86,  88,  89,  91,  92,  94,  95,  97,  98,  99,  101,
       102, 103, 104, 106, 107, 108, 109, 111, 112, 113, 114, 115, 116, 118, 119, 120, 121, 122, 123, 124, 125, 126,
       127, 128, 129, 130, 131, 132, 133, 134, 135, 136, 137, 138, 139, 140, 141, 142, 143, 144, 145, 146, 147, 147,
       148, 149, 150, 151, 152, 153, 154, 154, 155, 156, 157, 158, 159, 159, 160, 161, 162, 163, 164, 164, 165, 166,
       167, 168, 168, 169, 170, 171, 171, 172, 173, 174, 174, 175, 176, 177, 177, 178, 179, 180, 180, 181, 182, 182,
       183, 184, 185, 185, 186, 187, 187, 188, 189, 189, 190, 191, 191, 192, 193, 193, 194, 195, 195, 196, 197, 197,
       198, 199, 199, 200, 201, 201, 202, 203, 203, 204, 205, 205, 206, 206, 207, 208, 208, 209, 209, 210, 211, 211,
       212, 213, 213, 214, 214, 215, 216, 216, 217, 217, 218, 218, 219, 220, 220, 221, 221, 222, 223, 223, 224, 224,
       225, 225, 226, 227, 227, 228, 228, 229, 229, 230, 230, 231, 232, 232, 233, 233, 234, 234, 235, 235, 236, 236,
       237, 238, 238, 239, 239, 240, 240, 241, 241, 242, 242, 243, 243, 244, 244, 245, 245, 246, 246, 247, 247, 248,
       248, 249, 249, 250, 251, 251, 252, 252, 253, 253, 254, 254, 255, 255}};
};

/// From signal to light.
struct Inverse {
  static constexpr double breakpoint = 0.0812, slope = 0.2222222222222222;
  static constexpr double lift = 0.099, factor = 0.9099181073703366, exponent = 2.2222222222222223, gain = 1,
                          offset = 0;
  static constexpr signal::NearPower nearPower{exponent};

  static constexpr ByteTable ofBytes = {
      {0,   0,   0,   1,   1,   1,   1,   2,   2,   2,   2,   2,   3,   3,   3,   3,   4,   4,   4,   4,   4,   5,
       5,   5,   5,   6,   6,   6,   6,   7,   7,   7,   7,   8,   8,   8,   9,   9,   9,   10,  10,  10,  11,  11,
       11,  12,  12,  13,  13,  13,  14,  14,  15,  15,  15,  16,  16,  17,  17,  18,  18,  19,  19,  20,  20,  21,
       21,  22,  22,  23,  23,  24,  24,  25,  25,  26,  27,  27,  28,  28,  29,  30,  30,  31,  31,  32,  33,  33,
       34,  35,  35,  36,  37,  37,  38,  39,  40,  40,  41,  42,  43,  43,  44,  45,  46,  46,  47,  48,  49,  50,
       51,  51,  52,  53,  54,  55,  56,  57,  57,  58,  59,  60,  61,  62,  63,  64,  65,  66,  67,  68,  69,  70,
       71,  72,  73,  74,  75,  76,  77,  78,  79,  80,  81,  82,  83,  84,  85,  86,  88,  89,  90,  91,  92,  93,
       94,  96,  97,  98,  99,  100, 102, 103, 104, 105, 107, 108, 109, 110, 112, 113, 114, 116, 117, 118, 119, 121,
       122, 124, 125, 126, 128, 129, 130, 132, 133, 135, 136, 138, 139, 140, 142, 143, 145, 146, 148, 149, 151, 152,
       154, 155, 157, 158, 160, 162, 163, 165, 166, 168, 170, 171, 173, 174, 176, 178, 179, 181, 183, 184, 186, 188,
       190, 191, 193, 195, 197, 198, 200, 202, 204, 205, 207, 209, 211, 213, 214, 216, 218, 220, 222, 224, 226, 228,
       229, 231, 233, 235, 237, 239, 241, 243, 245, 247, 249, 251, 253, 255}};
};

/// Which pixels the curve takes for light and signal from 0 to 1.
struct PixelRange {
  double black;    // the pixel of 0
  double length;   // from there to the pixel of 1
  double inverse;  // 1 / length
  double shift;    // what is added to length times the curve
};

/// The curve of floats, with d = pixel - black and t = d * inverse: d * slope + shift, or f(t) * length + shift;
/// computed in double precision and rounded to single. Nearly always a power near the exact one will do: where both
/// ends of its error are rounded to one number, so is the exact result.
template <class Direction>
class TransferCurve {
 public:
  explicit TransferCurve(const PixelRange& range) : range_(range) {}

  template <class D, class V>
  HWY_INLINE V operator()(D d, V pixels) const {
    const auto lower = nearOnes(hn::LowerHalf(pixels)), upper = nearOnes(hn::UpperHalf(hn::Half<D>(), pixels));
    const V least = hn::Combine(d, upper.least, lower.least), most = hn::Combine(d, upper.most, lower.most);
    const hn::RebindToSigned<D> di;  // by bits, which tell zeros apart
    const auto isOne = hn::RebindMask(d, hn::Eq(hn::BitCast(di, least), hn::BitCast(di, most)));
    const auto isKnown = hn::And(isOne, hn::Lt(pixels, hn::Set(d, nearLimit_)));
    if (HWY_LIKELY(hn::AllTrue(d, isKnown))) return least;
    return inHalves(
        d, [&](auto half) HWY_ATTR { return exactOnes(half); }, pixels);
  }

 private:
  PixelRange range_;
  // Below the limit t is less than 3, and the power, with its gain, less than 1.9 (Forward, 2^-41 of it wrong) or 11
  // (Inverse, 2^-44).
  double nearGain_ = Direction::gain * range_.length, nearShift_ = range_.shift - Direction::offset * range_.length;
  double nearError_ = 0x1p-40 * (range_.length + (range_.shift < 0 ? -range_.shift : range_.shift));
  float nearLimit_ =
      static_cast<float>(std::min<double>(range_.black + 3 * range_.length, std::numeric_limits<float>::max()));

  template <class V>
  struct Line {
    V t, value;
    hn::Mask<hn::DFromV<V>> holds;
  };

  template <class D, class V>
  HWY_INLINE Line<hn::Vec<D>> lineOf(D d, V half) const {
    const auto difference = hn::Sub(hn::PromoteTo(d, half), hn::Set(d, range_.black));
    const auto t = hn::Mul(hn::Set(d, range_.inverse), difference);
    const auto value = hn::Add(hn::Mul(difference, hn::Set(d, Direction::slope)), hn::Set(d, range_.shift));
    return {t, value, hn::Lt(t, hn::Set(d, Direction::breakpoint))};
  }

  template <class V>
  HWY_INLINE V exactOnes(V half) const {
    const hn::DFromV<V> dHalf;
    const hn::Rebind<double, decltype(dHalf)> d;
    const auto line = lineOf(d, half);
    const auto isFinite = hn::Lt(line.t, hn::Set(d, std::numeric_limits<double>::infinity()));
    const auto base = hn::Mul(hn::Add(line.t, hn::Set(d, Direction::lift)), hn::Set(d, Direction::factor));
    const auto power =
        hn::IfThenElse(isFinite, signal::Power{Direction::exponent}(d, base), line.t);  // infinity and NaNs stay
    const auto signal = hn::Sub(hn::Mul(power, hn::Set(d, Direction::gain)), hn::Set(d, Direction::offset));
    const auto value = hn::Add(hn::Mul(signal, hn::Set(d, range_.length)), hn::Set(d, range_.shift));
    return hn::DemoteTo(dHalf, hn::IfThenElse(line.holds, line.value, value));
  }

  template <class V>
  struct Bounds {
    V least, most;
  };

  template <class V>
  HWY_INLINE Bounds<V> nearOnes(V half) const {
    const hn::DFromV<V> dHalf;
    const hn::Rebind<double, decltype(dHalf)> d;
    const auto line = lineOf(d, half);
    const auto base =
        hn::MulAdd(line.t, hn::Set(d, Direction::factor), hn::Set(d, Direction::lift * Direction::factor));
    const auto power = Direction::nearPower(d, base);
    const auto curved = hn::MulAdd(power, hn::Set(d, nearGain_), hn::Set(d, nearShift_));
    const auto value = hn::IfThenElse(line.holds, line.value, curved);
    const auto error = hn::IfThenZeroElse(line.holds, hn::Set(d, nearError_));
    return {hn::DemoteTo(dHalf, hn::Sub(value, error)), hn::DemoteTo(dHalf, hn::Add(value, error))};
  }
};

/// 16u: 65535 times the curve and one half, of which the nearest integer below is half less.
template <class Direction>
struct OfWords {
  TransferCurve<Direction> curve{
      PixelRange{.black = 0, .length = 65535, .inverse = 1.5259021896696422e-05, .shift = 0.5}};

  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    const auto element = [&](auto dWide, auto wide) HWY_ATTR {
      const hn::RebindToSigned<decltype(dWide)> di;
      const hn::RebindToFloat<decltype(dWide)> df;
      return hn::BitCast(dWide, nearestBelowSum(di, curve(df, hn::ConvertTo(df, hn::BitCast(di, wide)))));
    };
    return inWideLanes(d, element, v);
  }
};

// ---- Regions: one image of layout L, or three planes of layout C1 ---------------------------------------------------

template <class T, class F>
void forEachImage(Image<const T> src, Image<T> dst, const F& f) {
  f(src, dst);
}

template <class T, class F>
void forEachImage(Planes<const T, 3> src, Planes<T, 3> dst, const F& f) {
  for (int n = 0; n < 3; ++n) f(src[n], dst[n]);
}

template <class L, class Op, class Src, class Dst>
void mapImages(Src src, Dst dst, VemiSize roiSize, const Op& op) {
  const auto indexedOp = eachVector<1>(op);
  forEachImage(src, dst,
               [&](auto from, auto to) { mapRegion<L, Stores::cached>(CallerRows(), roiSize, indexedOp, to, from); });
}

template <class Direction, class L, class Src, class Dst>
VemiStatus gamma8u(Src src, Dst dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  mapImages<L>(src, dst, roiSize, Direction::ofBytes);
  return vemiOk;
}

/// More elements than a table has are looked up in one.
template <class Direction, class L, class Src, class Dst>
VemiStatus gamma16u(Src src, Dst dst, VemiSize roiSize) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  return roundingToNearest([&] {
    const OfWords<Direction> op;
    if (Vemi64s{3} * roiSize.width * roiSize.height <= wordTableSize) {
      mapImages<L>(src, dst, roiSize, op);
      return vemiOk;
    }
    const Scratch scratch(arrayBytes<Vemi16u>(wordTableSize));
    if (scratch.failed()) return vemiErrMemAlloc;
    Vemi16u* const table = scratch.as<Vemi16u>();
    std::iota(table, table + wordTableSize, Vemi16u{0});
    mapElements<Alpha::none>(wordTableSize, eachVector(op), table, static_cast<const Vemi16u*>(table));
    const Vemi16u* const tables[3] = {table, table, table};
    forEachImage(src, dst, [&](auto from, auto to) { mapByWordTables<L>(roiSize, tables, to, from); });
    return vemiOk;
  });
}

template <class Direction, class L, class Src, class Dst>
VemiStatus gamma32f(Src src, Dst dst, VemiSize roiSize, Vemi32f vMin, Vemi32f vMax) {
  const double length = double{vMax} - double{vMin};
  if (!(length > 0)) return vemiErrGammaRange;
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst))) return bad;
  const PixelRange range = {.black = vMin, .length = length, .inverse = 1.0 / length, .shift = vMin};
  mapImages<L>(src, dst, roiSize, TransferCurve<Direction>(range));
  return vemiOk;
}

}  // namespace
}  // namespace vemi::map

using namespace vemi;
using namespace vemi::map;

VEMI_DEFINE(vemiGammaFwd_8u_C3R, VEMI_SRC_DST(Vemi8u), gamma8u<Forward, C3>)
VEMI_DEFINE(vemiGammaFwd_8u_AC4R, VEMI_SRC_DST(Vemi8u), gamma8u<Forward, AC4>)
VEMI_DEFINE(vemiGammaFwd_8u_P3R, VEMI_PLANES_PLANES(Vemi8u, 3), gamma8u<Forward, C1>)
VEMI_DEFINE(vemiGammaFwd_8u_C3IR, VEMI_SRCDST(Vemi8u), gamma8u<Forward, C3>)
VEMI_DEFINE(vemiGammaFwd_8u_AC4IR, VEMI_SRCDST(Vemi8u), gamma8u<Forward, AC4>)
VEMI_DEFINE(vemiGammaFwd_8u_IP3R, VEMI_PLANES_SRCDST(Vemi8u, 3), gamma8u<Forward, C1>)

VEMI_DEFINE(vemiGammaFwd_16u_C3R, VEMI_SRC_DST(Vemi16u), gamma16u<Forward, C3>)
VEMI_DEFINE(vemiGammaFwd_16u_AC4R, VEMI_SRC_DST(Vemi16u), gamma16u<Forward, AC4>)
VEMI_DEFINE(vemiGammaFwd_16u_P3R, VEMI_PLANES_PLANES(Vemi16u, 3), gamma16u<Forward, C1>)
VEMI_DEFINE(vemiGammaFwd_16u_C3IR, VEMI_SRCDST(Vemi16u), gamma16u<Forward, C3>)
VEMI_DEFINE(vemiGammaFwd_16u_AC4IR, VEMI_SRCDST(Vemi16u), gamma16u<Forward, AC4>)
VEMI_DEFINE(vemiGammaFwd_16u_IP3R, VEMI_PLANES_SRCDST(Vemi16u, 3), gamma16u<Forward, C1>)

VEMI_DEFINE(vemiGammaFwd_32f_C3R, VEMI_SRC_DST(Vemi32f, VEMI_RANGE), gamma32f<Forward, C3>)
VEMI_DEFINE(vemiGammaFwd_32f_AC4R, VEMI_SRC_DST(Vemi32f, VEMI_RANGE), gamma32f<Forward, AC4>)
VEMI_DEFINE(vemiGammaFwd_32f_P3R, VEMI_PLANES_PLANES(Vemi32f, 3, VEMI_RANGE), gamma32f<Forward, C1>)
VEMI_DEFINE(vemiGammaFwd_32f_C3IR, VEMI_SRCDST(Vemi32f, VEMI_RANGE), gamma32f<Forward, C3>)
VEMI_DEFINE(vemiGammaFwd_32f_AC4IR, VEMI_SRCDST(Vemi32f, VEMI_RANGE), gamma32f<Forward, AC4>)
VEMI_DEFINE(vemiGammaFwd_32f_IP3R, VEMI_PLANES_SRCDST(Vemi32f, 3, VEMI_RANGE), gamma32f<Forward, C1>)

VEMI_DEFINE(vemiGammaInv_8u_C3R, VEMI_SRC_DST(Vemi8u), gamma8u<Inverse, C3>)
VEMI_DEFINE(vemiGammaInv_8u_AC4R, VEMI_SRC_DST(Vemi8u), gamma8u<Inverse, AC4>)
VEMI_DEFINE(vemiGammaInv_8u_P3R, VEMI_PLANES_PLANES(Vemi8u, 3), gamma8u<Inverse, C1>)
VEMI_DEFINE(vemiGammaInv_8u_C3IR, VEMI_SRCDST(Vemi8u), gamma8u<Inverse, C3>)
VEMI_DEFINE(vemiGammaInv_8u_AC4IR, VEMI_SRCDST(Vemi8u), gamma8u<Inverse, AC4>)
VEMI_DEFINE(vemiGammaInv_8u_IP3R, VEMI_PLANES_SRCDST(Vemi8u, 3), gamma8u<Inverse, C1>)

VEMI_DEFINE(vemiGammaInv_16u_C3R, VEMI_SRC_DST(Vemi16u), gamma16u<Inverse, C3>)
VEMI_DEFINE(vemiGammaInv_16u_AC4R, VEMI_SRC_DST(Vemi16u), gamma16u<Inverse, AC4>)
VEMI_DEFINE(vemiGammaInv_16u_P3R, VEMI_PLANES_PLANES(Vemi16u, 3), gamma16u<Inverse, C1>)
VEMI_DEFINE(vemiGammaInv_16u_C3IR, VEMI_SRCDST(Vemi16u), gamma16u<Inverse, C3>)
VEMI_DEFINE(vemiGammaInv_16u_AC4IR, VEMI_SRCDST(Vemi16u), gamma16u<Inverse, AC4>)
VEMI_DEFINE(vemiGammaInv_16u_IP3R, VEMI_PLANES_SRCDST(Vemi16u, 3), gamma16u<Inverse, C1>)

VEMI_DEFINE(vemiGammaInv_32f_C3R, VEMI_SRC_DST(Vemi32f, VEMI_RANGE), gamma32f<Inverse, C3>)
VEMI_DEFINE(vemiGammaInv_32f_AC4R, VEMI_SRC_DST(Vemi32f, VEMI_RANGE), gamma32f<Inverse, AC4>)
VEMI_DEFINE(vemiGammaInv_32f_P3R, VEMI_PLANES_PLANES(Vemi32f, 3, VEMI_RANGE), gamma32f<Inverse, C1>)
VEMI_DEFINE(vemiGammaInv_32f_C3IR, VEMI_SRCDST(Vemi32f, VEMI_RANGE), gamma32f<Inverse, C3>)
VEMI_DEFINE(vemiGammaInv_32f_AC4IR, VEMI_SRCDST(Vemi32f, VEMI_RANGE), gamma32f<Inverse, AC4>)
VEMI_DEFINE(vemiGammaInv_32f_IP3R, VEMI_PLANES_SRCDST(Vemi32f, 3, VEMI_RANGE), gamma32f<Inverse, C1>)
