// vemiConvert between bytes and bit images, the first pixel in a byte's highest bit: bits to 0 and 255, and bytes to
// bits by a dither.

#include <algorithm>
#include <bit>
#include <cstring>

#include "core/blocks.h"
#include "core/checks.h"
#include "core/image.h"
#include "core/numbers.h"
#include "core/scratch.h"
#include "vemi/map.h"

namespace vemi::map {
namespace {

VemiStatus checkBitOffset(int bitOffset) { return bitOffset < 0 ? vemiErrSize : vemiOk; }

// ---- Bits to bytes -------------------------------------------------------------------------------------------------

/// All eight pixels of each byte.
void expandBytes(ptrdiff_t bytes, const Vemi8u* bits, Vemi8u* dst) {
  const Lanes<Vemi8u> d;
  constexpr ptrdiff_t N = laneCount<Vemi8u>, bytesPerBlock = 16;
  const auto bitOfPixel = hn::BitCast(d, hn::Set(Lanes<uint64_t>(), 0x0102040810204080u));
  const auto byteOfPixel = hn::BitCast(d, hn::ShiftRight<3>(hn::Iota(Lanes<uint8_t>(), 0)));
  const auto kernel = [&](const Vemi8u* in, Vemi8u* out) HWY_ATTR {
    const auto block = hn::LoadDup128(d, in);
    unrolled<8 * bytesPerBlock / N>([&](auto k) HWY_ATTR {
      const auto index = hn::Add(byteOfPixel, hn::Set(d, static_cast<Vemi8u>(k * N / 8)));
      const auto isSet = hn::TestBit(hn::TableLookupBytes(block, index), bitOfPixel);
      hn::StoreU(hn::VecFromMask(d, isSet), d, out + k * N);
    });
  };
  forBlocks<bytesPerBlock>(bytes, kernel, Strand<const Vemi8u>{bits}, Strand<Vemi8u, 8>{dst});
}

/// `count` pixels of one byte, from pixel `first` on.
void expandPart(int first, ptrdiff_t count, const Vemi8u* bits, Vemi8u* dst) {
  Vemi8u pixel[8];
  expandBytes(1, bits, pixel);
  std::memcpy(dst, pixel + first, static_cast<size_t>(count));
}

/// The part of the first byte, whole bytes, the part of the last.
void expandRow(ptrdiff_t width, const Vemi8u* bits, int first, Vemi8u* dst) {
  if (first > 0) {
    const ptrdiff_t count = std::min<ptrdiff_t>(8 - first, width);
    expandPart(first, count, bits, dst);
    ++bits, dst += count, width -= count;
  }
  expandBytes(width / 8, bits, dst);
  if (width % 8 > 0) expandPart(0, width % 8, bits + width / 8, dst + width / 8 * 8);
}

VemiStatus expand(Image<const Vemi8u> src, int bitOffset, Image<Vemi8u> dst, VemiSize roiSize) {
  if (const VemiStatus bad =
          firstOf(checkNull(src, dst), checkSize(roiSize), checkStep(src, dst), checkBitOffset(bitOffset))) {
    return bad;
  }
  for (ptrdiff_t y = 0; y < roiSize.height; ++y) expandRow(roiSize.width, src.row(y), bitOffset % 8, dst.row(y));
  return vemiOk;
}

// ---- Bytes to bits -------------------------------------------------------------------------------------------------
//
// The filter of Stucki: what a pixel's bit leaves of its value goes, in 42 parts, to two pixels on the right and to
// five in each of the next two rows. Values have 13 fraction bits, errors 3, and 23 / 1024 stands for 1 / 42.
//
// Each pixel waits for its left neighbour, so rows run side by side, one in each lane, every row some columns behind
// the row above it, whose errors it needs. A step is one pixel of each row. Errors have at most 2047 of either sign.

class DitheredRows {
  using D = hn::CappedTag<int32_t, 8>;
  using V = hn::Vec<D>;

 public:
  static constexpr ptrdiff_t count = hn::MaxLanes(D());

  DitheredRows(ptrdiff_t width, Vemi8u threshold) : width_(width), limit_(threshold * 8192) {
    Pieces pieces;
    const Vemi64s allSteps = Vemi64s{width} + lastRowStep(0);
    const auto sums = pieces.add<Vemi32s>((2 * lag + allSteps + 1 + lastRowStep(0)) * count);
    const auto lines = pieces.add<Vemi8u>((allSteps + 16) * count);
    const auto pixels = pieces.add<Vemi8u>((allSteps + 16) * count);
    const auto bits = pieces.add<Vemi8u>(8 + allSteps + 16);
    scratch_ = Scratch(pieces);
    if (failed()) return;
    std::memset(scratch_.as<char>(), 0, static_cast<size_t>(pieces.bytes()));
    sums_ = scratch_[sums] + 2 * lag * count;
    lines_ = scratch_[lines];
    pixels_ = scratch_[pixels];
    bits_ = scratch_[bits] + 8;
  }

  bool failed() const { return scratch_.failed(); }

  /// The next rows, `count` of them unless the image ends.
  void run(ptrdiff_t rows, Image<const Vemi8u> src, Image<Vemi8u> dst, int firstBit) {
    for (ptrdiff_t row = 0; row < rows; ++row) {
      std::memcpy(lines_ + row * lineBytes() + row * lag, src.row(row), static_cast<size_t>(width_));
    }
    interleaveLines();
    decide();
    for (ptrdiff_t row = 0; row < rows; ++row) writeBits(row, dst.row(row), firstBit);
  }

 private:
  static constexpr ptrdiff_t lag = 7;  // columns from row to row; three are needed, but more let the rows overlap

  ptrdiff_t width_;
  Vemi32s limit_;
  Scratch scratch_;
  Vemi32s* sums_;   // for each step and row the weighted errors around the column that was decided two steps before
  Vemi8u* lines_;   // the rows' pixels, each row `lag` steps behind the one above it
  Vemi8u* pixels_;  // the same, those of a step side by side
  Vemi8u* bits_;    // of each step, the first row in the lowest bit

  /// The step that completes the sum around column x of the last row.
  static constexpr ptrdiff_t lastRowStep(ptrdiff_t x) { return (count - 1) * lag + x + 2; }
  ptrdiff_t steps() const { return lastRowStep(width_); }
  ptrdiff_t lineBytes() const { return (steps() + 16) & -16; }

  void interleaveLines() {
    const hn::CappedTag<Vemi8u, 16> d;
    for (ptrdiff_t i = 0; i < lineBytes(); i += 16) {
      Vectors<hn::Vec<decltype(d)>, count> v;
      unrolled<count>([&](auto row) HWY_ATTR { v.v[row] = hn::LoadU(d, lines_ + row * lineBytes() + i); });
      unrolled<std::bit_width(size_t{count}) - 1>([&](auto) HWY_ATTR {
        const auto halves = v;
        unrolled<count / 2>([&](auto k) HWY_ATTR {
          v.v[2 * k] = hn::InterleaveLower(d, halves.v[k], halves.v[k + count / 2]);
          v.v[2 * k + 1] = hn::InterleaveUpper(d, halves.v[k], halves.v[k + count / 2]);
        });
      });
      unrolled<count>([&](auto k) HWY_ATTR { hn::StoreU(v.v[k], d, pixels_ + i * count + 16 * k); });
    }
  }

  /// sum + weight v, for v of 16 bits.
  static HWY_INLINE V addWeighted(V sum, int weight, V v) {
    const hn::Repartition<int16_t, D> dHalves;
    return hn::Add(sum, pairsOfProducts(hn::BitCast(dHalves, v), hn::BitCast(dHalves, hn::Set(D(), weight))));
  }

  /// The sums of step i around the columns that its lanes have arrived at, from `rows` rows above. Those of the first
  /// lanes are of the rows that ran before, whose sums are still there.
  template <int rows>
  HWY_INLINE V sumsFromAbove(ptrdiff_t i) const {
    const D d;
    const V earlier = hn::Load(d, sums_ + (i + lastRowStep(0) - (rows - 1) * lag) * count);
    const V own = hn::Load(d, sums_ + (i + 2 - rows * lag) * count);
    const auto isEarlier = hn::Gt(hn::Iota(d, 0), hn::Set(d, int{count - rows - 1}));
    const V place = hn::And(hn::Iota(d, int{count - rows}), hn::Set(d, int{count - 1}));
    return hn::TableLookupLanes(hn::IfThenElse(isEarlier, earlier, own), hn::IndicesFromVec(d, place));
  }

  /// What step i has from its pixels and from the rows above.
  HWY_INLINE V gathered(ptrdiff_t i) const {
    const hn::Rebind<Vemi8u, D> dBytes;
    V value = hn::ShiftLeft<13>(hn::PromoteTo(D(), hn::LoadU(dBytes, pixels_ + i * count)));
    value = addWeighted(value, 2 * 23, sumsFromAbove<1>(i));
    return addWeighted(value, 23, sumsFromAbove<2>(i));
  }

  /// The bits of all rows. From step to step there is one product and a sum: the product of the last value need not
  /// wait for its bit, whose share in the error goes to the rest of the sum.
  void decide() {
    const D d;
    const V limit = hn::Set(d, limit_);
    const V columnOfLane = hn::Mul(hn::Iota(d, 0), hn::Set(d, -int{lag}));
    V e1 = hn::Zero(d), e2 = e1, e3 = e1, e4 = e1;  // the latest errors, the last one first
    V rest = gathered(0), fromLast = hn::Zero(d);
    for (ptrdiff_t i = 0; i < steps(); ++i) {
      const V value = hn::Add(rest, fromLast);
      const auto isWhite = hn::Gt(value, limit);
      hn::StoreMaskBits(d, isWhite, bits_ + i);
      V white = hn::VecFromMask(d, isWhite), error = hn::ShiftRight<10>(value);
      if (HWY_UNLIKELY(i < (count - 1) * lag || i >= width_)) {  // lanes beside their rows have no errors
        const V column = hn::Add(hn::Set(d, static_cast<int>(i)), columnOfLane);
        const auto isInside =
            hn::AndNot(hn::Lt(column, hn::Zero(d)), hn::Lt(column, hn::Set(d, static_cast<int>(width_))));
        white = hn::IfThenElseZero(isInside, white);
        error = hn::IfThenElseZero(isInside, error);
      }
      fromLast = addWeighted(hn::Zero(d), 8 * 23, error);
      rest = hn::Sub(addWeighted(gathered(i + 1), 4 * 23, e1), hn::And(white, hn::Set(d, 8 * 23 * 2047)));
      error = hn::Sub(error, hn::And(white, hn::Set(d, 2047)));
      const V others = hn::Add(hn::ShiftLeft<1>(hn::Add(hn::ShiftLeft<1>(e2), hn::Add(e1, e3))), e4);
      hn::Store(hn::Add(others, error), d, sums_ + i * count);
      e4 = e3, e3 = e2, e2 = e1, e1 = error;
    }
  }

  /// A row's bits, the first pixel in the highest one. What the first and the last byte hold beside the row stays.
  void writeBits(ptrdiff_t row, Vemi8u* dst, int firstBit) const {
    const Vemi8u* const bits = bits_ + row * lag - firstBit;
    const ptrdiff_t end = firstBit + width_;
    for (ptrdiff_t x = 0; x < end; x += 8, ++dst) {
      uint64_t ofSteps;
      std::memcpy(&ofSteps, bits + x, 8);
      const auto byte = static_cast<unsigned>((ofSteps >> row & 0x0101010101010101) * 0x8040201008040201 >> 56);
      const unsigned ahead = x == 0 ? 0xff00u >> firstBit & 0xff : 0, behind = end - x < 8 ? 0xffu >> (end - x) : 0;
      const unsigned kept = ahead | behind;
      *dst = static_cast<Vemi8u>((byte & ~kept) | (*dst & kept));
    }
  }
};

/// Steps are not looked at: a single row needs none, and an image may lie bottom-up.
VemiStatus dither(Image<const Vemi8u> src, Image<Vemi8u> dst, int bitOffset, VemiSize roiSize, Vemi8u threshold) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkSize(roiSize), checkBitOffset(bitOffset))) return bad;
  DitheredRows rows(roiSize.width, threshold);
  if (rows.failed()) return vemiErrMemAlloc;
  for (ptrdiff_t y = 0; y < roiSize.height; y += DitheredRows::count) {
    const ptrdiff_t count = std::min(DitheredRows::count, roiSize.height - y);
    rows.run(count, {src.row(y), src.step}, {dst.row(y), dst.step}, bitOffset % 8);
  }
  return vemiOk;
}

}  // namespace
}  // namespace vemi::map

using namespace vemi;
using namespace vemi::map;

VemiStatus vemiConvert_1u8u_C1R(const Vemi8u* pSrc, int srcStep, int srcBitOffset, Vemi8u* pDst, int dstStep,
                                VemiSize roiSize) {
  return expand({pSrc, srcStep}, srcBitOffset, {pDst, dstStep}, roiSize);
}

VemiStatus vemiConvert_8u1u_C1R(const Vemi8u* pSrc, int srcStep, Vemi8u* pDst, int dstStep, int dstBitOffset,
                                VemiSize roiSize, Vemi8u threshold) {
  return dither({pSrc, srcStep}, {pDst, dstStep}, dstBitOffset, roiSize, threshold);
}
