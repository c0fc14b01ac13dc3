// vemiMinIndx and vemiMaxIndx: the extremes of each channel and where they are met first. Checks: null, size, step.
//
// Extremes are taken of bands of rows. The first band that has the best value of all is looked through again for its
// place, so that the pixels are read only once.

#include <algorithm>
#include <cstring>

#include "core/checks.h"
#include "core/element.h"
#include "core/exports.h"
#include "core/map_row.h"
#include "measure/keep_best.h"
#include "vemi/measure.h"

namespace vemi::measure {
namespace {

/// Small enough that a second look costs little, and large enough that a band's own costs do not show.
constexpr ptrdiff_t bandBytes = 8192;

/// Looks for the elements of one channel that are equal to a value.
template <class L, class T>
class Search {
 public:
  Search(T value, int channel) : value_(value), channel_(channel) {
    T pixel[L::elements] = {};
    std::memset(pixel + channel, 0xff, sizeof(T));
    ofChannel_ = channelConstants<L>(pixel);
  }

  /// The first pixel that has the value, or `width`.
  ptrdiff_t firstIn(const T* row, ptrdiff_t width) const {
    constexpr ptrdiff_t pixels = vectors * laneCount<T> / L::elements;
    ptrdiff_t x = 0;
    while (x + pixels <= width && !isIn(row + x * L::elements)) x += pixels;
    const bool isRest = x + pixels > width && pixels <= width;
    if (isRest && !isIn(row + (width - pixels) * L::elements)) return width;
    while (x < width && at(row, x) != value_) ++x;
    return x;
  }

  T at(const T* row, ptrdiff_t x) const { return elementOf(row + x * L::elements + channel_); }

 private:
  static constexpr int vectors = L::elements == 3 ? 3 : 1;

  bool isIn(const T* block) const {
    const Lanes<T> d;
    auto found = hn::Zero(d);
    unrolled<vectors>([&](auto k) HWY_ATTR {
      const auto equal = hn::VecFromMask(d, hn::Eq(hn::LoadU(d, block + k * laneCount<T>), hn::Set(d, value_)));
      found = hn::Or(found, hn::And(equal, ofChannel_.v[k]));
    });
    return !hn::AllFalse(d, hn::MaskFromVec(found));
  }

  T value_;
  int channel_;
  Vectors<hn::Vec<Lanes<T>>, pixelVectors<L>> ofChannel_;
};

/// As long as only the band is known, y is its first row and x is below 0.
template <class T>
struct BestPixel {
  T value;
  ptrdiff_t x, y;
};

/// The band of each channel's best value, where that is better than the one in `best`.
template <class L, class Extreme, class T>
void findBands(Image<const T> src, VemiSize roiSize, BestPixel<T> (&best)[L::elements]) {
  const ptrdiff_t rowBytes = roiSize.width * pixelBytes<T, L>;
  const int rows = static_cast<int>(std::max<ptrdiff_t>(1, bandBytes / rowBytes));
  for (ptrdiff_t y = 0; y < roiSize.height; y += rows) {
    const VemiSize band = {roiSize.width, static_cast<int>(std::min<ptrdiff_t>(rows, roiSize.height - y))};
    const auto ofBand = bestOf<L>(KeepBest<T, T, Identity, Extreme>(), band, Image<const T>{src.row(y), src.step});
    bool canGetBetter = false;
    for (int c = 0; c < L::elements; ++c) {
      const T value = ofBand.best[0][c];
      if (Extreme::isBetter(value, best[c].value)) best[c] = {value, -1, y};
      canGetBetter |= Extreme::isBetter(Extreme::template best<T>, best[c].value);
    }
    if (std::is_integral_v<T> && !canGetBetter) return;
  }
}

template <class L, class Extreme, class T>
VemiStatus extremeIndex(Image<const T> src, VemiSize roiSize, T* pValue, int* pIndexX, int* pIndexY) {
  if (const VemiStatus bad = firstOf(checkNull(src, pValue, pIndexX, pIndexY), checkSize(roiSize), checkStep(src))) {
    return bad;
  }
  using Pixel = Interleaved<L::elements>;
  BestPixel<T> best[L::elements];
  for (auto& each : best) each = {Extreme::template worstFinite<T>, 0, 0};
  findBands<Pixel, Extreme>(src, roiSize, best);
  for (int c = 0; c < L::channels; ++c) {
    auto& [value, x, y] = best[c];
    if (x < 0) {
      const Search<Pixel, T> search(value, c);
      while ((x = search.firstIn(src.row(y), roiSize.width)) == roiSize.width) ++y;
      value = search.at(src.row(y), x);  // of two zeros the one that stands there
    }
    pValue[c] = value;
    pIndexX[c] = static_cast<int>(x);
    pIndexY[c] = static_cast<int>(y);
  }
  return vemiOk;
}

}  // namespace
}  // namespace vemi::measure

using namespace vemi;
using namespace vemi::measure;

#define INDEX(T, name) ((T * name, int* pIndexX, int* pIndexY), (name, pIndexX, pIndexY))

VEMI_DEFINE(vemiMinIndx_8u_C1R, VEMI_SRC(Vemi8u, INDEX(Vemi8u, pMin)), extremeIndex<C1, Lowest>)
VEMI_DEFINE(vemiMinIndx_8u_C3R, VEMI_SRC(Vemi8u, INDEX(Vemi8u, pMin)), extremeIndex<C3, Lowest>)
VEMI_DEFINE(vemiMinIndx_8u_C4R, VEMI_SRC(Vemi8u, INDEX(Vemi8u, pMin)), extremeIndex<C4, Lowest>)
VEMI_DEFINE(vemiMinIndx_8u_AC4R, VEMI_SRC(Vemi8u, INDEX(Vemi8u, pMin)), extremeIndex<AC4, Lowest>)
VEMI_DEFINE(vemiMinIndx_16s_C1R, VEMI_SRC(Vemi16s, INDEX(Vemi16s, pMin)), extremeIndex<C1, Lowest>)
VEMI_DEFINE(vemiMinIndx_16s_C3R, VEMI_SRC(Vemi16s, INDEX(Vemi16s, pMin)), extremeIndex<C3, Lowest>)
VEMI_DEFINE(vemiMinIndx_16s_C4R, VEMI_SRC(Vemi16s, INDEX(Vemi16s, pMin)), extremeIndex<C4, Lowest>)
VEMI_DEFINE(vemiMinIndx_16s_AC4R, VEMI_SRC(Vemi16s, INDEX(Vemi16s, pMin)), extremeIndex<AC4, Lowest>)
VEMI_DEFINE(vemiMinIndx_32f_C1R, VEMI_SRC(Vemi32f, INDEX(Vemi32f, pMin)), extremeIndex<C1, Lowest>)
VEMI_DEFINE(vemiMinIndx_32f_C3R, VEMI_SRC(Vemi32f, INDEX(Vemi32f, pMin)), extremeIndex<C3, Lowest>)
VEMI_DEFINE(vemiMinIndx_32f_C4R, VEMI_SRC(Vemi32f, INDEX(Vemi32f, pMin)), extremeIndex<C4, Lowest>)
VEMI_DEFINE(vemiMinIndx_32f_AC4R, VEMI_SRC(Vemi32f, INDEX(Vemi32f, pMin)), extremeIndex<AC4, Lowest>)

VEMI_DEFINE(vemiMaxIndx_8u_C1R, VEMI_SRC(Vemi8u, INDEX(Vemi8u, pMax)), extremeIndex<C1, Highest>)
VEMI_DEFINE(vemiMaxIndx_8u_C3R, VEMI_SRC(Vemi8u, INDEX(Vemi8u, pMax)), extremeIndex<C3, Highest>)
VEMI_DEFINE(vemiMaxIndx_8u_C4R, VEMI_SRC(Vemi8u, INDEX(Vemi8u, pMax)), extremeIndex<C4, Highest>)
VEMI_DEFINE(vemiMaxIndx_8u_AC4R, VEMI_SRC(Vemi8u, INDEX(Vemi8u, pMax)), extremeIndex<AC4, Highest>)
VEMI_DEFINE(vemiMaxIndx_16s_C1R, VEMI_SRC(Vemi16s, INDEX(Vemi16s, pMax)), extremeIndex<C1, Highest>)
VEMI_DEFINE(vemiMaxIndx_16s_C3R, VEMI_SRC(Vemi16s, INDEX(Vemi16s, pMax)), extremeIndex<C3, Highest>)
VEMI_DEFINE(vemiMaxIndx_16s_C4R, VEMI_SRC(Vemi16s, INDEX(Vemi16s, pMax)), extremeIndex<C4, Highest>)
VEMI_DEFINE(vemiMaxIndx_16s_AC4R, VEMI_SRC(Vemi16s, INDEX(Vemi16s, pMax)), extremeIndex<AC4, Highest>)
VEMI_DEFINE(vemiMaxIndx_32f_C1R, VEMI_SRC(Vemi32f, INDEX(Vemi32f, pMax)), extremeIndex<C1, Highest>)
VEMI_DEFINE(vemiMaxIndx_32f_C3R, VEMI_SRC(Vemi32f, INDEX(Vemi32f, pMax)), extremeIndex<C3, Highest>)
VEMI_DEFINE(vemiMaxIndx_32f_C4R, VEMI_SRC(Vemi32f, INDEX(Vemi32f, pMax)), extremeIndex<C4, Highest>)
VEMI_DEFINE(vemiMaxIndx_32f_AC4R, VEMI_SRC(Vemi32f, INDEX(Vemi32f, pMax)), extremeIndex<AC4, Highest>)
