// vemiHistogramRange, vemiHistogramEven: how many pixels v have L(k) <= v < L(k + 1), for each bin k of each channel.
//
// Bytes are counted in a table. Floats and 16-bit integers are compared with few levels, or searched among many; large
// 16-bit images have a table as well, by a rule that decides which calls may report that memory is short.
//
// Checks: null, size, step, levels; with several channels null, the channels (null, levels), size, step.

#include <algorithm>
#include <cstring>
#include <iterator>
#include <limits>
#include <type_traits>

#include "core/checks.h"
#include "core/exports.h"
#include "core/scratch.h"
#include "measure/histogram_methods.h"
#include "vemi/measure.h"

namespace vemi::measure {
namespace {

// ---- Counting -----------------------------------------------------------------------------------------------------

template <class L, class Level>
using Channels = Bins<Level>[L::channels];

template <class L>
void countBytes(Image<const Vemi8u> src, VemiSize roiSize, const Channels<L, Vemi32s>& bins) {
  uint32_t table[rowParts][L::channels][valueCount<Vemi8u>] = {};
  for (ptrdiff_t y = 0; y < roiSize.height; ++y) countRow<L, rowParts>(src.row(y), roiSize.width, table);
  for (int channel = 0; channel < L::channels; ++channel) {
    for (int v = 0; v < valueCount<Vemi8u>; ++v) {
      for (int part = 1; part < rowParts; ++part) table[0][channel][v] += table[part][channel][v];
    }
    fillBins<Vemi8u>(table[0][channel], bins[channel]);
  }
}

/// False, and nothing counted, where there is no memory.
template <class L>
bool countWords(Image<const Vemi16s> src, VemiSize roiSize, const Channels<L, Vemi32s>& bins) {
  using Table = uint32_t[L::channels][valueCount<Vemi16s>];
  const Scratch scratch(sizeof(Table));
  if (scratch.failed()) return false;
  Table* const table = scratch.as<Table>();
  std::memset(table, 0, sizeof *table);
  for (ptrdiff_t y = 0; y < roiSize.height; ++y) countRow<L, 1>(src.row(y), roiSize.width, table);
  for (int channel = 0; channel < L::channels; ++channel) fillBins<Vemi16s>((*table)[channel], bins[channel]);
  return true;
}

/// Levels; among more it is faster to search.
template <class T>
constexpr int mostCompared = sizeof(T) == 2 ? 64 : 32;

template <class L, class T, class Level>
void countBetween(Image<const T> src, VemiSize roiSize, const Channels<L, Level>& bins) {
  constexpr ptrdiff_t pieceLength = 1024;
  Sections<Level> sections[L::channels];
  SearchCounters counters[L::channels];
  bool searched[L::channels];
  for (int channel = 0; channel < L::channels; ++channel) {
    bins[channel].clear();
    searched[channel] = bins[channel].nLevels > mostCompared<T> && increase(bins[channel]);
    if (!searched[channel]) continue;
    sections[channel].divide(bins[channel]);
    counters[channel].begin(bins[channel]);
  }
  const auto count = [&](int channel, ptrdiff_t /*x*/, const T* values, ptrdiff_t pixels) {
    if (searched[channel]) {
      countBySearching<pieceLength>(values, pixels, bins[channel], sections[channel], counters[channel].parts);
    } else {
      countByComparing(values, pixels, bins[channel]);
    }
  };
  const Extent pixels = mergedExtent(roiSize, isContiguous<L>(src, roiSize));
  for (ptrdiff_t y = 0; y < pixels.height; ++y) forEachPiece<L, pieceLength>(src.row(y), pixels.width, count);
  for (int channel = 0; channel < L::channels; ++channel) {
    if (searched[channel]) counters[channel].collect(bins[channel]);
  }
}

// ---- The rule for the table of 16-bit values ----------------------------------------------------------------------

/// A region of p pixels goes without a table up to levels[i] levels, i being the number of sizes <= p. Sizes increase;
/// a rule that has fewer than twelve is filled up with noLimit and with its last number of levels.
struct TableRule {
  int sizes[12];
  int levels[13];
};

constexpr int noLimit = std::numeric_limits<int>::max();

/// For one, three and four channels, where the levels of all channels increase, and where they do not.
constexpr TableRule tableRules[3][2] = {
    {{{12544, 16384, 20736, 25600, 30976, 43264, 50176, 65536, 123904, noLimit, noLimit, noLimit},
      {noLimit, 214, 74, 38, 34, 22, 18, 14, 10, 6, 6, 6, 6}},
     {{1024, 2304, 4096, 6400, 9216, 12544, 16384, 20736, 30976, 36864, 50176, 82944},
      {noLimit, 442, 202, 114, 74, 54, 42, 30, 22, 18, 14, 10, 6}}},
    {{{12544, 16384, 20736, 25600, 30976, 36864, 43264, 50176, 73984, 135424, noLimit, noLimit},
      {noLimit, 262, 126, 62, 46, 34, 30, 22, 18, 14, 10, 10, 10}},
     {{1024, 2304, 4096, 6400, 9216, 12544, 16384, 20736, 25600, 36864, 57600, 92416},
      {noLimit, 406, 194, 110, 74, 54, 42, 34, 26, 22, 18, 14, 10}}},
    {{{12544, 16384, 20736, 25600, 30976, 36864, 43264, 50176, 173056, noLimit, noLimit, noLimit},
      {noLimit, 190, 102, 62, 46, 38, 34, 22, 18, 14, 14, 14, 14}},
     {{1024, 2304, 4096, 6400, 9216, 12544, 16384, 20736, 25600, 36864, 57600, 160000},
      {noLimit, 358, 162, 98, 66, 50, 38, 30, 26, 22, 18, 14, 10}}},
};

/// Of all channels, as the rule takes it: a third is 21845 / 65536.
template <int channels>
Vemi64s averageLevels(const Bins<Vemi32s>* bins) {
  Vemi64s sum = 0;
  for (int channel = 0; channel < channels; ++channel) sum += bins[channel].nLevels;
  return channels == 1 ? sum : channels == 3 ? sum * 21845 >> 16 : sum >> 2;
}

template <int channels>
bool needsTable(VemiSize roiSize, const Bins<Vemi32s>* bins) {
  const bool unsorted = !std::all_of(bins, bins + channels, increase<Vemi32s>);
  const TableRule& rule = tableRules[channels == 1 ? 0 : channels - 2][unsorted];
  // The number of pixels wraps in 32 bits.
  const auto pixels =
      static_cast<Vemi32s>(static_cast<uint32_t>(roiSize.width) * static_cast<uint32_t>(roiSize.height));
  const ptrdiff_t reached = std::upper_bound(std::begin(rule.sizes), std::end(rule.sizes), pixels) - rule.sizes;
  return averageLevels<channels>(bins) > rule.levels[reached];
}

/// What becomes of a call whose table cannot be had.
enum class WithoutTable { fails, countsBetween };

template <class L, class T, class Level>
VemiStatus countPixels(Image<const T> src, VemiSize roiSize, const Channels<L, Level>& bins, WithoutTable without) {
  if constexpr (std::is_same_v<T, Vemi8u>) {
    countBytes<L>(src, roiSize, bins);
  } else {
    if constexpr (std::is_same_v<T, Vemi16s>) {
      if (needsTable<L::channels>(roiSize, bins)) {
        if (countWords<L>(src, roiSize, bins)) return vemiOk;
        if (without == WithoutTable::fails) return vemiErrMemAlloc;
      }
    }
    countBetween<L>(src, roiSize, bins);
  }
  return vemiOk;
}

// ---- The regions --------------------------------------------------------------------------------------------------

VemiStatus checkLevels(int nLevels) { return nLevels < 2 ? vemiErrHistogramLevels : vemiOk; }

/// `arrays` are those that hold one element for each channel.
template <class L, class Level, class T, class... Array>
VemiStatus checkArguments(Image<const T> src, VemiSize roiSize, Vemi32s* const* pHist, Level* const* pLevels,
                          const int* nLevels, Array... arrays) {
  if constexpr (L::channels == 1) {
    return firstOf(checkNull(src, *pHist, *pLevels), checkSize(roiSize), checkStep(src), checkLevels(*nLevels));
  } else {
    if (VemiStatus bad = checkNull(src, pHist, pLevels, nLevels, arrays...)) return bad;
    for (int channel = 0; channel < L::channels; ++channel) {
      if (VemiStatus bad = firstOf(checkNull(pHist[channel], pLevels[channel]), checkLevels(nLevels[channel]))) {
        return bad;
      }
    }
    return firstOf(checkSize(roiSize), checkStep(src));
  }
}

template <class L, class T, class Level>
VemiStatus range(Image<const T> src, VemiSize roiSize, Vemi32s* const* pHist, const Level* const* pLevels,
                 const int* nLevels) {
  if (VemiStatus bad = checkArguments<L>(src, roiSize, pHist, pLevels, nLevels)) return bad;
  Channels<L, Level> bins;
  for (int channel = 0; channel < L::channels; ++channel) {
    bins[channel] = {pHist[channel], pLevels[channel], nLevels[channel]};
  }
  return countPixels<L>(src, roiSize, bins, WithoutTable::fails);
}

/// Whether all bins are equally wide. The remainder of the width goes to the first ones, one each.
bool makeEven(Vemi32s* pLevels, int nLevels, Vemi32s lower, Vemi32s upper) {
  const int n = nLevels - 1;
  const Vemi64s distance = Vemi64s{upper} - lower, width = distance / n, rest = distance % n;
  pLevels[0] = lower;
  for (int k = 1; k <= n; ++k) {
    const bool wider = width < 0 ? k <= -rest : k <= rest;
    pLevels[k] = static_cast<Vemi32s>(pLevels[k - 1] + width + (wider ? (width < 0 ? -1 : 1) : 0));
  }
  return rest == 0;
}

template <class L, class T>
VemiStatus even(Image<const T> src, VemiSize roiSize, Vemi32s* const* pHist, Vemi32s* const* pLevels,
                const int* nLevels, const Vemi32s* lowerLevel, const Vemi32s* upperLevel) {
  if (VemiStatus bad = checkArguments<L>(src, roiSize, pHist, pLevels, nLevels, lowerLevel, upperLevel)) return bad;
  Channels<L, Vemi32s> bins;
  bool alike = true;
  for (int channel = 0; channel < L::channels; ++channel) {
    alike &= makeEven(pLevels[channel], nLevels[channel], lowerLevel[channel], upperLevel[channel]);
    bins[channel] = {pHist[channel], pLevels[channel], nLevels[channel]};
  }
  return countPixels<L>(src, roiSize, bins, alike ? WithoutTable::countsBetween : WithoutTable::fails);
}

}  // namespace
}  // namespace vemi::measure

using namespace vemi;
using namespace vemi::measure;

// Counts between levels, which are the caller's or made even between two bounds: those of one channel, handed on as
// arrays of one, or an array of them for each channel.
#define RANGE(Level) ((Vemi32s * pHist, const Level* pLevels, int nLevels), (&pHist, &pLevels, &nLevels))
#define CHANNEL_RANGES(Level, channels)                                                                 \
  ((Vemi32s* const pHist[channels], const Level* const pLevels[channels], const int nLevels[channels]), \
   (pHist, pLevels, nLevels))
#define EVEN                                                                                  \
  ((Vemi32s * pHist, Vemi32s * pLevels, int nLevels, Vemi32s lowerLevel, Vemi32s upperLevel), \
   (&pHist, &pLevels, &nLevels, &lowerLevel, &upperLevel))
#define CHANNEL_EVEN(channels)                                                                     \
  ((Vemi32s* const pHist[channels], Vemi32s* const pLevels[channels], const int nLevels[channels], \
    const Vemi32s lowerLevel[channels], const Vemi32s upperLevel[channels]),                       \
   (pHist, pLevels, nLevels, lowerLevel, upperLevel))

VEMI_DEFINE(vemiHistogramRange_8u_C1R, VEMI_SRC(Vemi8u, RANGE(Vemi32s)), range<C1>)
VEMI_DEFINE(vemiHistogramRange_8u_C3R, VEMI_SRC(Vemi8u, CHANNEL_RANGES(Vemi32s, 3)), range<C3>)
VEMI_DEFINE(vemiHistogramRange_8u_C4R, VEMI_SRC(Vemi8u, CHANNEL_RANGES(Vemi32s, 4)), range<C4>)
VEMI_DEFINE(vemiHistogramRange_8u_AC4R, VEMI_SRC(Vemi8u, CHANNEL_RANGES(Vemi32s, 3)), range<AC4>)

VEMI_DEFINE(vemiHistogramRange_16s_C1R, VEMI_SRC(Vemi16s, RANGE(Vemi32s)), range<C1>)
VEMI_DEFINE(vemiHistogramRange_16s_C3R, VEMI_SRC(Vemi16s, CHANNEL_RANGES(Vemi32s, 3)), range<C3>)
VEMI_DEFINE(vemiHistogramRange_16s_C4R, VEMI_SRC(Vemi16s, CHANNEL_RANGES(Vemi32s, 4)), range<C4>)
VEMI_DEFINE(vemiHistogramRange_16s_AC4R, VEMI_SRC(Vemi16s, CHANNEL_RANGES(Vemi32s, 3)), range<AC4>)

VEMI_DEFINE(vemiHistogramRange_32f_C1R, VEMI_SRC(Vemi32f, RANGE(Vemi32f)), range<C1>)
VEMI_DEFINE(vemiHistogramRange_32f_C3R, VEMI_SRC(Vemi32f, CHANNEL_RANGES(Vemi32f, 3)), range<C3>)
VEMI_DEFINE(vemiHistogramRange_32f_C4R, VEMI_SRC(Vemi32f, CHANNEL_RANGES(Vemi32f, 4)), range<C4>)
VEMI_DEFINE(vemiHistogramRange_32f_AC4R, VEMI_SRC(Vemi32f, CHANNEL_RANGES(Vemi32f, 3)), range<AC4>)

VEMI_DEFINE(vemiHistogramEven_8u_C1R, VEMI_SRC(Vemi8u, EVEN), even<C1>)
VEMI_DEFINE(vemiHistogramEven_8u_C3R, VEMI_SRC(Vemi8u, CHANNEL_EVEN(3)), even<C3>)
VEMI_DEFINE(vemiHistogramEven_8u_C4R, VEMI_SRC(Vemi8u, CHANNEL_EVEN(4)), even<C4>)
VEMI_DEFINE(vemiHistogramEven_8u_AC4R, VEMI_SRC(Vemi8u, CHANNEL_EVEN(3)), even<AC4>)

VEMI_DEFINE(vemiHistogramEven_16s_C1R, VEMI_SRC(Vemi16s, EVEN), even<C1>)
VEMI_DEFINE(vemiHistogramEven_16s_C3R, VEMI_SRC(Vemi16s, CHANNEL_EVEN(3)), even<C3>)
VEMI_DEFINE(vemiHistogramEven_16s_C4R, VEMI_SRC(Vemi16s, CHANNEL_EVEN(4)), even<C4>)
VEMI_DEFINE(vemiHistogramEven_16s_AC4R, VEMI_SRC(Vemi16s, CHANNEL_EVEN(3)), even<AC4>)
