// vemiDCT8x8Inv of integers, vemiDCT8x8InvLSClip, vemiDCT8x8Inv_4x4, vemiDCT8x8Inv_2x2: rows by pairs of products, then
// columns in saturating 16-bit arithmetic. Checks: null, step.

#include <type_traits>

#include "core/checks.h"
#include "core/exports.h"
#include "core/numbers.h"
#include "transform/block_rows.h"
#include "vemi/transform.h"

namespace vemi::transform {
namespace {

/// For the pairs of elements (0, 2), (4, 6), (1, 3) and (5, 7), four times each: of the even and of the odd parts of
/// results 0 to 3.
constexpr PairFactors<4> inverseFactors([](RowFactors f) {
  return std::array<int, 32>{f.b,  f.c2, f.b,   f.c6,  f.b,  -f.c6, f.b,  -f.c2,   //
                             f.b,  f.c6, -f.b,  -f.c2, -f.b, f.c2,  f.b,  -f.c6,   //
                             f.c1, f.c3, f.c3,  -f.c7, f.c5, -f.c1, f.c7, -f.c5,   //
                             f.c5, f.c7, -f.c1, -f.c5, f.c7, f.c3,  f.c3, -f.c1};  //
});

/// For the pair (0, 1) eight times: of all results.
constexpr PairFactors<2> factorsOfTwo([](RowFactors f) {
  return std::array<int, 16>{f.b, f.c1,  f.b, f.c3,  f.b, f.c5,  f.b, f.c7,
                             f.b, -f.c7, f.b, -f.c5, f.b, -f.c3, f.b, -f.c1};
});

/// What the sums of a row are rounded by; that of row 0 rounds the final shift too.
struct Roundings {
  alignas(laneAlignment) int32_t value[8][4];
  constexpr Roundings() : value() {
    constexpr int32_t ofRow[8] = {65536, 5802, 4520, 3408, 2048, 910, 1024, 746};
    for (int row = 0; row < 8; ++row) {
      for (int i = 0; i < 4; ++i) value[row][i] = ofRow[row];
    }
  }
};
constexpr Roundings roundings;

/// Elements i and j of each row, four times.
template <int i, int j>
HWY_INLINE RowsVector pairOf(RowsVector x) {
  constexpr uint8_t a = 2 * i, b = 2 * j;
  alignas(16) static constexpr uint8_t bytes[16] = {a, a + 1, b, b + 1, a, a + 1, b, b + 1,
                                                    a, a + 1, b, b + 1, a, a + 1, b, b + 1};
  return hn::TableLookupBytes(x, hn::BitCast(SomeRows(), hn::LoadDup128(hn::Repartition<uint8_t, SomeRows>(), bytes)));
}

/// Of rows whose elements from `count` on are 0: 8, 4 or 2.
template <int count>
HWY_INLINE RowsVector inverseRows(RowsVector x, int group) {
  const SomeRows d;
  const SomeSums dSums;
  const auto rounding = hn::Load(dSums, roundings.value[ptrdiff_t{group} * rowsAtOnce]);
  const auto shifted = [](SumsVector v) HWY_ATTR { return hn::ShiftRight<12>(v); };
  if constexpr (count == 2) {
    const auto pair = pairOf<0, 1>(x);
    const auto half = [&](int vector) HWY_ATTR {
      return shifted(hn::Add(pairsOfProducts(pair, factorsOfTwo.of(group, vector)), rounding));
    };
    return packHalves(d, half(0), half(1));
  } else {
    auto even = hn::Add(pairsOfProducts(pairOf<0, 2>(x), inverseFactors.of(group, 0)), rounding);
    auto odd = pairsOfProducts(pairOf<1, 3>(x), inverseFactors.of(group, 2));
    if constexpr (count == 8) {
      even = hn::Add(even, pairsOfProducts(pairOf<4, 6>(x), inverseFactors.of(group, 1)));
      odd = hn::Add(odd, pairsOfProducts(pairOf<5, 7>(x), inverseFactors.of(group, 3)));
    }
    const auto upper = hn::Shuffle0123(shifted(hn::Sub(even, odd)));
    return packHalves(d, shifted(hn::Add(even, odd)), upper);
  }
}

/// Times 2^16: tan(pi / 16) is 13036, tan(pi / 8) 27146, tan(3 pi / 16) 1 more than -21746, cos(pi / 4) 1 more than
/// -19195. Rows from `count` on are 0, except row 2 behind two rows, which is 1: what it is rounded by.
template <int count>
HWY_INLINE void inverseColumns(Row* r) {
  const auto tan3 = [](Row x) HWY_ATTR { return scaled(x, -21746) + x; };
  Row p = r[1], q = r[1], s = scaled(r[1], 13036), u = s;
  Row j = r[0], k = r[0], g = rowOf(1), i = rowOf(0);
  if constexpr (count == 8) {
    const Row a = r[3] + tan3(r[5]), c = r[5] - tan3(r[3]);
    const Row d = r[1] + scaled(r[7], 13036), e = s - r[7];
    p = a + d;
    q = d - a;
    s = e - c;
    u = e + c;
    j = r[0] + r[4];
    k = r[0] - r[4];
    g = r[2] + scaled(r[6], 27146);
    i = scaled(r[2], 27146) - r[6];
  } else if constexpr (count == 4) {
    const Row c = rowOf(0) - tan3(r[3]);
    p = r[3] + r[1];
    q = r[1] - r[3];
    u = s + c;
    s = s - c;
    g = r[2];
    i = scaled(r[2], 27146);
  }
  const auto turned = [](Row x) HWY_ATTR { return x + scaled(x, -19195); };
  const Row f = turned(q + s), h = turned(q - s);
  const Row l = j + g, n = j - g, v = k + i, w = k - i;
  const auto shifted = [](Row x) HWY_ATTR { return Row{hn::ShiftRight<5>(x.v)}; };
  r[0] = shifted(l + p);
  r[1] = shifted(v + f);
  r[2] = shifted(w + h);
  r[3] = shifted(n + u);
  r[4] = shifted(n - u);
  r[5] = shifted(w - h);
  r[6] = shifted(v - f);
  r[7] = shifted(l - p);
}

/// Of the first `count` coefficients of the first `count` rows; store(y, row) takes the results when all are known.
template <int count, class Store>
HWY_INLINE void inverse(const Vemi16s* src, const Store& store) {
  Row r[8];
  unrolled<count / rowsAtOnce>([&](auto group) HWY_ATTR {
    constexpr int y = group * rowsAtOnce;
    separate(inverseRows<count>(hn::LoadU(SomeRows(), src + ptrdiff_t{8} * y), group), r + y);
  });
  inverseColumns<count>(r);
  unrolled<8>([&](auto y) HWY_ATTR { store(y, r[y].v); });
}

HWY_INLINE auto saturatedBytes(hn::Vec<OneRow> v) { return hn::DemoteTo(hn::Rebind<uint8_t, OneRow>(), v); }

template <int count>
VemiStatus toBlock(const Vemi16s* src, Vemi16s* dst) {
  if (const VemiStatus bad = checkNull(src, dst)) return bad;
  inverse<count>(src, [&](ptrdiff_t y, hn::Vec<OneRow> v) HWY_ATTR { hn::StoreU(v, OneRow(), dst + 8 * y); });
  return vemiOk;
}

VemiStatus toImage(const Vemi16s* src, Image<Vemi16s> dst) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkStep(dst))) return bad;
  inverse<8>(src, [&](ptrdiff_t y, hn::Vec<OneRow> v) HWY_ATTR { hn::StoreU(v, OneRow(), dst.row(y)); });
  return vemiOk;
}

VemiStatus toBytes(const Vemi16s* src, Image<Vemi8u> dst) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkStep(dst))) return bad;
  const hn::Rebind<uint8_t, OneRow> d;
  inverse<8>(src, [&](ptrdiff_t y, hn::Vec<OneRow> v) HWY_ATTR { hn::StoreU(saturatedBytes(v), d, dst.row(y)); });
  return vemiOk;
}

/// Bounds in the wrong order give the upper one.
VemiStatus toShiftedBytes(const Vemi16s* src, Image<Vemi8u> dst, Vemi16s addVal, Vemi8u clipMin, Vemi8u clipMax) {
  if (const VemiStatus bad = firstOf(checkNull(src, dst), checkStep(dst))) return bad;
  const hn::Rebind<uint8_t, OneRow> d;
  const auto shift = hn::Set(OneRow(), addVal);
  const auto lowest = hn::Set(d, clipMin), highest = hn::Set(d, clipMax);
  inverse<8>(src, [&](ptrdiff_t y, hn::Vec<OneRow> v) HWY_ATTR {
    hn::StoreU(hn::Min(hn::Max(saturatedBytes(hn::Add(v, shift)), lowest), highest), d, dst.row(y));
  });
  return vemiOk;
}

}  // namespace
}  // namespace vemi::transform

using namespace vemi;
using namespace vemi::transform;

#define BLOCK_BLOCK ((const Vemi16s* pSrc, Vemi16s* pDst), (pSrc, pDst))
#define BLOCK ((Vemi16s * pSrcDst), (pSrcDst, pSrcDst))
#define BLOCK_IMAGE(T, ...) \
  VEMI_HEAD((const Vemi16s* pSrc, T* pDst, int dstStep), (pSrc, Image<T>{pDst, dstStep}), __VA_ARGS__)
#define SHIFT_CLIP ((Vemi16s addVal, Vemi8u clipMin, Vemi8u clipMax), (addVal, clipMin, clipMax))

VEMI_DEFINE(vemiDCT8x8Inv_16s_C1, BLOCK_BLOCK, toBlock<8>)
VEMI_DEFINE(vemiDCT8x8Inv_16s_C1I, BLOCK, toBlock<8>)
VEMI_DEFINE(vemiDCT8x8Inv_16s_C1R, BLOCK_IMAGE(Vemi16s), toImage)
VEMI_DEFINE(vemiDCT8x8Inv_16s8u_C1R, BLOCK_IMAGE(Vemi8u), toBytes)
VEMI_DEFINE(vemiDCT8x8InvLSClip_16s8u_C1R, BLOCK_IMAGE(Vemi8u, SHIFT_CLIP), toShiftedBytes)

VEMI_DEFINE(vemiDCT8x8Inv_4x4_16s_C1, BLOCK_BLOCK, toBlock<4>)
VEMI_DEFINE(vemiDCT8x8Inv_4x4_16s_C1I, BLOCK, toBlock<4>)
VEMI_DEFINE(vemiDCT8x8Inv_2x2_16s_C1, BLOCK_BLOCK, toBlock<2>)
VEMI_DEFINE(vemiDCT8x8Inv_2x2_16s_C1I, BLOCK, toBlock<2>)
