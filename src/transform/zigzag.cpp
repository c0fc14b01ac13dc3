// vemiZigzagFwd8x8, vemiZigzagInv8x8: rows of the result out of the rows of the source by shuffles. Checks: null.

#include "core/checks.h"
#include "core/exports.h"
#include "transform/block_rows.h"
#include "vemi/transform.h"

namespace vemi::transform {
namespace {

/// The scan goes along the diagonals, on even ones upwards.
struct Scan {
  uint8_t place[64];

  constexpr explicit Scan(bool isForward) : place() {
    int i = 0;
    for (int diagonal = 0; diagonal < 15; ++diagonal) {
      for (int step = 0; step <= diagonal; ++step, ++i) {
        const int x = diagonal % 2 == 0 ? step : diagonal - step, y = diagonal - x;
        if (x > 7 || y > 7) {
          --i;
        } else if (isForward) {
          place[i] = static_cast<uint8_t>(8 * y + x);
        } else {
          place[8 * y + x] = static_cast<uint8_t>(i);
        }
      }
    }
  }
};

/// For rows y of the result, the bytes that they take out of a row of the source; no byte where they take none.
template <bool isForward>
struct Shuffles {
  alignas(laneAlignment) uint8_t bytes[8][rowGroups][16 * rowsAtOnce];

  static constexpr Scan scan{isForward};

  static constexpr bool takes(int group, int from) {
    for (int i = 0; i < 8 * rowsAtOnce; ++i) {
      if (scan.place[8 * rowsAtOnce * group + i] / 8 == from) return true;
    }
    return false;
  }

  constexpr Shuffles() : bytes() {
    for (int from = 0; from < 8; ++from) {
      for (int i = 0; i < 64; ++i) {
        const int at = scan.place[i], place = i % (8 * rowsAtOnce);
        for (int byte = 0; byte < 2; ++byte) {
          bytes[from][i / (8 * rowsAtOnce)][2 * place + byte] =
              static_cast<uint8_t>(at / 8 == from ? 2 * (at % 8) + byte : 0x80);
        }
      }
    }
  }
};

template <bool isForward>
VemiStatus scan(const Vemi16s* src, Vemi16s* dst) {
  if (const VemiStatus bad = checkNull(src, dst)) return bad;
  static constexpr Shuffles<isForward> shuffles;
  const SomeRows d;
  const hn::Repartition<uint8_t, SomeRows> dBytes;
  RowsVector result[rowGroups];
  unrolled<8>([&](auto from) HWY_ATTR {
    const auto row = hn::BitCast(dBytes, hn::LoadDup128(d, src + 8 * from));
    unrolled<rowGroups>([&](auto group) HWY_ATTR {
      if constexpr (Shuffles<isForward>::takes(group, from)) {
        const auto taken = hn::BitCast(d, hn::TableLookupBytesOr0(row, hn::Load(dBytes, shuffles.bytes[from][group])));
        constexpr bool isFirst = [&] {
          for (int before = 0; before < from; ++before) {
            if (Shuffles<isForward>::takes(group, before)) return false;
          }
          return true;
        }();
        result[group] = isFirst ? taken : hn::Or(result[group], taken);
      }
    });
  });
  unrolled<rowGroups>([&](auto group) HWY_ATTR { hn::StoreU(result[group], d, dst + 8 * rowsAtOnce * group); });
  return vemiOk;
}

}  // namespace
}  // namespace vemi::transform

using namespace vemi;
using namespace vemi::transform;

#define BLOCK_BLOCK ((const Vemi16s* pSrc, Vemi16s* pDst), (pSrc, pDst))

VEMI_DEFINE(vemiZigzagFwd8x8_16s_C1, BLOCK_BLOCK, scan<true>)
VEMI_DEFINE(vemiZigzagInv8x8_16s_C1, BLOCK_BLOCK, scan<false>)
