// vemiDCT8x8Fwd of integers, vemiDCT8x8FwdLS: columns in saturating 16-bit arithmetic, then rows by pairs of products.
// Checks: null, step.

#include "core/checks.h"
#include "core/exports.h"
#include "core/numbers.h"
#include "transform/block_rows.h"
#include "vemi/transform.h"

namespace vemi::transform {
namespace {

/// Times 2^16: cos(pi / 4) / 2 is 23170, tan(pi / 16) 13036, tan(pi / 8) 27146, and tan(3 pi / 16) 1 more than -21746.
/// Results that are made odd are so instead of being rounded.
HWY_INLINE void forwardColumns(Row* x) {
  const Row t0 = shiftedLeft<3>(x[0] + x[7]), t1 = shiftedLeft<3>(x[1] + x[6]);
  const Row t2 = shiftedLeft<3>(x[2] + x[5]), t3 = shiftedLeft<3>(x[3] + x[4]);
  const Row d4 = shiftedLeft<3>(x[3] - x[4]), d7 = shiftedLeft<3>(x[0] - x[7]);
  const Row p = shiftedLeft<4>(x[1] - x[6]), q = shiftedLeft<4>(x[2] - x[5]);
  const Row outerSum = t0 + t3, outer = t0 - t3, innerSum = t1 + t2, inner = t1 - t2;
  const Row r = odd(scaled(p + q, 23170)), s = scaled(p - q, 23170);
  const Row a = d4 + s, b = d4 - s, c = d7 + r, d = d7 - r;
  x[0] = outerSum + innerSum;
  x[1] = odd(scaled(a, 13036) + c);
  x[2] = odd(scaled(inner, 27146) + outer);
  x[3] = d - (scaled(b, -21746) + b);
  x[4] = outerSum - innerSum;
  x[5] = (scaled(d, -21746) + d) + b;
  x[6] = odd(scaled(outer, 27146) - inner);
  x[7] = scaled(c, 13036) - a;
}

/// For the pairs (e0, e1), (o0, o1), (e0, e1), (o0, o1) and for (e2, e3), (o2, o3), ...: of results 0 to 3, then 4
/// to 7.
constexpr PairFactors<4> forwardFactors([](RowFactors f) {
  return std::array<int, 32>{f.b,  f.b,  f.c1, f.c3,  f.c2,  f.c6,  f.c3,  -f.c7,   //
                             f.b,  f.b,  f.c5, f.c7,  -f.c6, -f.c2, -f.c1, -f.c5,   //
                             f.b,  -f.b, f.c5, -f.c1, f.c6,  -f.c2, f.c7,  -f.c5,   //
                             -f.b, f.b,  f.c7, f.c3,  f.c2,  -f.c6, f.c3,  -f.c1};  //
});

HWY_INLINE RowsVector forwardRows(RowsVector y, int group) {
  const SomeRows d;
  const SomeSums dSums;
  const hn::RepartitionToWide<SomeSums> dPairs;
  const auto mirrored = hn::Reverse8(d, y);
  const auto even = hn::BitCast(dSums, hn::SaturatedAdd(y, mirrored));
  const auto odd = hn::BitCast(dSums, hn::SaturatedSub(y, mirrored));
  const auto pairs = hn::BitCast(dPairs, hn::InterleaveLower(dSums, even, odd));
  const auto first = hn::BitCast(d, hn::InterleaveLower(dPairs, pairs, pairs));
  const auto second = hn::BitCast(d, hn::InterleaveUpper(dPairs, pairs, pairs));
  const auto half = [&](int vector) HWY_ATTR {
    const auto sum = hn::Add(pairsOfProducts(first, forwardFactors.of(group, vector)),
                             pairsOfProducts(second, forwardFactors.of(group, vector + 1)));
    return hn::ShiftRight<20>(hn::Add(sum, hn::Set(dSums, 524288)));
  };
  return packHalves(d, half(0), half(2));
}

/// load(y) gives the rows; all are read before the first result is written.
template <class Load>
HWY_INLINE void forward(const Load& load, Vemi16s* dst) {
  Row x[8];
  unrolled<8>([&](auto y) HWY_ATTR { x[y] = {load(y)}; });
  forwardColumns(x);
  unrolled<rowGroups>([&](auto group) HWY_ATTR {
    constexpr int y = group * rowsAtOnce;
    hn::StoreU(forwardRows(groupOf(x + y), group), SomeRows(), dst + ptrdiff_t{8} * y);
  });
}

HWY_INLINE hn::Vec<OneRow> bytesOf(const Vemi8u* row) {
  return hn::PromoteTo(OneRow(), hn::LoadU(hn::Rebind<uint8_t, OneRow>(), row));
}

VemiStatus ofBlock(const Vemi16s* src, Vemi16s* dst) {
  if (const VemiStatus bad = checkNull(src, dst)) return bad;
  forward([&](ptrdiff_t y) HWY_ATTR { return hn::LoadU(OneRow(), src + 8 * y); }, dst);
  return vemiOk;
}

VemiStatus ofImage(Image<const Vemi16s> src, Vemi16s* dst) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkStep(src))) return bad;
  forward([&](ptrdiff_t y) HWY_ATTR { return hn::LoadU(OneRow(), src.row(y)); }, dst);
  return vemiOk;
}

VemiStatus ofBytes(Image<const Vemi8u> src, Vemi16s* dst) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkStep(src))) return bad;
  forward([&](ptrdiff_t y) HWY_ATTR { return bytesOf(src.row(y)); }, dst);
  return vemiOk;
}

VemiStatus ofShiftedBytes(Image<const Vemi8u> src, Vemi16s* dst, Vemi16s addVal) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkStep(src))) return bad;
  const auto shift = hn::Set(OneRow(), addVal);
  forward([&](ptrdiff_t y) HWY_ATTR { return hn::Add(bytesOf(src.row(y)), shift); }, dst);
  return vemiOk;
}

}  // namespace
}  // namespace vemi::transform

using namespace vemi;
using namespace vemi::transform;

#define IMAGE_BLOCK(S, ...) \
  VEMI_HEAD((const S* pSrc, int srcStep, Vemi16s* pDst), (Image<const S>{pSrc, srcStep}, pDst), __VA_ARGS__)

VEMI_DEFINE(vemiDCT8x8Fwd_16s_C1, ((const Vemi16s* pSrc, Vemi16s* pDst), (pSrc, pDst)), ofBlock)
VEMI_DEFINE(vemiDCT8x8Fwd_16s_C1I, ((Vemi16s * pSrcDst), (pSrcDst, pSrcDst)), ofBlock)
VEMI_DEFINE(vemiDCT8x8Fwd_16s_C1R, IMAGE_BLOCK(Vemi16s), ofImage)
VEMI_DEFINE(vemiDCT8x8Fwd_8u16s_C1R, IMAGE_BLOCK(Vemi8u), ofBytes)
VEMI_DEFINE(vemiDCT8x8FwdLS_8u16s_C1R, IMAGE_BLOCK(Vemi8u, ((Vemi16s addVal), (addVal))), ofShiftedBytes)
