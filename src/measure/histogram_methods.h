// Three ways to count pixels between levels, all with the same counts: look a table of all values up, compare with one
// level after the other, or search the bin of each pixel.
#pragma once

#include <algorithm>
#include <cstring>
#include <limits>
#include <type_traits>

#include "core/element.h"
#include "core/image.h"
#include "core/processor.h"
#include "core/row_pieces.h"

namespace vemi::measure {

/// The bins of one channel. Counts are formed in unsigned arithmetic: they wrap where there are too many.
template <class Level>
struct Bins {
  Vemi32s* pHist;
  const Level* pLevels;
  int nLevels;

  int count() const { return nLevels - 1; }
  bool isEmpty(int bin) const { return !(pLevels[bin] < pLevels[bin + 1]); }
  void add(int bin, uint32_t pixels) const {
    pHist[bin] = static_cast<Vemi32s>(static_cast<uint32_t>(pHist[bin]) + pixels);
  }
  void clear() const { std::fill_n(pHist, count(), 0); }
};

/// False where a level is a NaN, too.
template <class Level>
bool increase(const Bins<Level>& bins) {
  for (int bin = 0; bin < bins.count(); ++bin) {
    if (bins.isEmpty(bin)) return false;
  }
  return true;
}

// ---- Tables of all values -----------------------------------------------------------------------------------------

template <class T>
inline constexpr int valueCount = 1 << (8 * sizeof(T));

/// table[v - lowest value]; the counters become sums of all up to them.
template <class T>
void fillBins(uint32_t* table, const Bins<Vemi32s>& bins) {
  constexpr Vemi64s lowest = std::numeric_limits<T>::min();
  for (int v = 1; v < valueCount<T>; ++v) table[v] += table[v - 1];
  const auto below = [&](Vemi32s level) {
    const Vemi64s values = std::clamp<Vemi64s>(level - lowest, 0, valueCount<T>);
    return values == 0 ? 0 : table[values - 1];
  };
  for (int bin = 0; bin < bins.count(); ++bin) {
    const uint32_t pixels = below(bins.pLevels[bin + 1]) - below(bins.pLevels[bin]);
    bins.pHist[bin] = bins.isEmpty(bin) ? 0 : static_cast<Vemi32s>(pixels);
  }
}

/// Calls f(x, part) for all places of a row, by turns in its parts: where neighbours are equal an addition need not
/// wait for the one before it. The last few are the first part's.
constexpr int rowParts = 4;

template <class F>
HWY_INLINE void inParts(ptrdiff_t width, const F f) {
  const ptrdiff_t length = width / rowParts;
  for (ptrdiff_t x = 0; x < length; ++x) {
    unrolled<rowParts>([&](auto part) { f(x + part * length, static_cast<int>(part)); });
  }
  for (ptrdiff_t x = rowParts * length; x < width; ++x) f(x, 0);
}

/// table[part][channel][value]. The parts of a row have tables of their own, for rows of one value, or share a large
/// one.
template <class L, int tables, class T>
void countRow(const T* row, ptrdiff_t width, uint32_t (*table)[L::channels][valueCount<T>]) {
  for (int channel = 0; channel < L::channels; ++channel) {
    inParts(width, [first = row + channel, counters = table[0][channel]](ptrdiff_t x, int part) {
      const T value = elementOf(first + x * L::elements);
      ++counters[part % tables * L::channels * valueCount<T> + value - std::numeric_limits<T>::min()];
    });
  }
}

// ---- Comparing with the levels ------------------------------------------------------------------------------------

/// v >= level in lanes, as v > level - 1 where integers are compared, since the processor has no other comparison. A
/// level that all values are at or above is settled without.
template <class T, class Level>
struct AtOrAbove {
  static constexpr T padding = std::numeric_limits<T>::quiet_NaN();  // is at or above no level
  static constexpr bool isAlways(Level) { return false; }
  static constexpr T bound(Level level) { return level; }

  template <class V>
  HWY_INLINE static auto test(V v, V bound) {
    return hn::Ge(v, bound);
  }
};

template <class T>
struct AtOrAbove<T, Vemi32s> {
  static constexpr T padding = std::numeric_limits<T>::min();
  static constexpr bool isAlways(Vemi32s level) { return level <= std::numeric_limits<T>::min(); }
  static constexpr T bound(Vemi32s level) {
    constexpr Vemi32s lowest = std::numeric_limits<T>::min(), highest = std::numeric_limits<T>::max();
    return static_cast<T>(std::clamp(level, lowest + 1, highest + 1) - 1);
  }

  template <class V>
  HWY_INLINE static auto test(V v, V bound) {
    return hn::Gt(v, bound);
  }
};

/// A bin holds what is at or above its own level less what is at or above the next, in whatever order the levels are.
template <class T, class Level>
void countByComparing(const T* values, ptrdiff_t count, const Bins<Level>& bins) {
  using Test = AtOrAbove<T, Level>;
  using Count = hwy::UnsignedFromSize<sizeof(T)>;  // holds the pixels of a piece
  const Lanes<T> d;
  const Lanes<Count> dCount;
  constexpr ptrdiff_t N = laneCount<T>;
  constexpr int group = 4;
  const ptrdiff_t whole = count / N * N;
  alignas(laneAlignment) T last[N];
  std::fill_n(last, N, Test::padding);
  std::memcpy(last, values + whole, static_cast<size_t>(count - whole) * sizeof(T));

  for (int first = 0; first < bins.nLevels; first += group) {
    const auto levelAt = [&](int k) { return bins.pLevels[std::min(first + k, bins.count())]; };
    Vectors<hn::Vec<decltype(d)>, group> bound;
    Vectors<hn::Vec<decltype(dCount)>, group> passed;
    unrolled<group>([&](auto k) HWY_ATTR {
      bound.v[k] = hn::Set(d, Test::bound(levelAt(k)));
      passed.v[k] = hn::Zero(dCount);
    });
    const auto compare = [&](const T* in) HWY_ATTR {
      const auto v = hn::LoadU(d, in);
      unrolled<group>([&](auto k) HWY_ATTR {
        const auto minusOne = hn::VecFromMask(d, Test::test(v, bound.v[k]));
        passed.v[k] = hn::Sub(passed.v[k], hn::BitCast(dCount, minusOne));
      });
    };
    // One call, which the compiler takes into the loop, so that the counts stay in registers.
    for (ptrdiff_t i = 0; i <= whole; i += N) compare(i < whole ? values + i : last);
    unrolled<group>([&](auto k) HWY_ATTR {
      const int level = first + k;
      if (level > bins.count()) return;
      const uint32_t pixels =
          Test::isAlways(levelAt(k)) ? static_cast<uint32_t>(count) : hn::GetLane(hn::SumOfLanes(dCount, passed.v[k]));
      if (level < bins.count() && !bins.isEmpty(level)) bins.add(level, pixels);
      if (level > 0 && !bins.isEmpty(level - 1)) bins.add(level - 1, 0 - pixels);
    });
  }
}

// ---- Searching the bin of each pixel ------------------------------------------------------------------------------

/// A value that no pixel is at or above.
template <class Level>
inline constexpr Level beyondAll = std::is_integral_v<Level> ? std::numeric_limits<Level>::max()
                                                             : std::numeric_limits<Level>::quiet_NaN();

/// The range of increasing levels in even sections, each with the bin in which a search begins. The section of a value
/// is formed in single precision by operations that never decrease, for pixels and levels alike. So rounding may move a
/// value to another section, but not past a level that it does not reach: a search goes from the section's first bin
/// over as many bins as the fullest section has.
template <class Level>
struct Sections {
  static constexpr int count = 1024;
  static constexpr int outside = count;  // of values that are in no bin

  struct Section {
    int firstBin;
    Level next;  // the level at which the bin behind it begins
  };

  float low, high;    // the first and the last level
  float base, scale;  // finite
  int reach;          // bins to choose from
  Section section[count + 1];

  void divide(const Bins<Level>& bins);

  /// In the scalar form of a level, in the other of a pixel.
  int of(float level) const {
    const float distance = (level - base) * scale;
    return static_cast<int>(distance > 0 ? std::min(distance, count - 1.0f) : 0.0f);
  }

  template <class D, class V>
  HWY_INLINE auto of(D d, V v) const {
    const hn::RebindToSigned<D> di;
    const V distance = hn::Mul(hn::Sub(v, hn::Set(d, base)), hn::Set(d, scale));
    const V limited = hn::IfThenElseZero(hn::Gt(distance, hn::Zero(d)), hn::Min(distance, hn::Set(d, count - 1.0f)));
    const auto inside = hn::And(hn::Ge(v, hn::Set(d, low)), hn::Lt(v, hn::Set(d, high)));
    return hn::IfThenElse(hn::RebindMask(di, inside), truncated(di, limited), hn::Set(di, outside));
  }
};

template <class Level>
void Sections<Level>::divide(const Bins<Level>& bins) {
  constexpr float largest = std::numeric_limits<float>::max();
  low = static_cast<float>(bins.pLevels[0]);
  high = static_cast<float>(bins.pLevels[bins.count()]);
  base = std::max(low, -largest);
  const double range = static_cast<double>(std::min(high, largest)) - static_cast<double>(base);
  scale = static_cast<float>(std::min(count / range, static_cast<double>(largest)));
  reach = 1;
  int index = 0, first = 0;  // the section behind those that are made, and the first bin of the last one
  for (int bin = 1; bin < bins.count(); ++bin) {
    const int at = of(static_cast<float>(bins.pLevels[bin]));
    if (at >= index) {
      first = bin - 1;
      for (; index < at; ++index) section[index] = {first, beyondAll<Level>};
      section[index++] = {first, bins.pLevels[bin]};
    }
    reach = std::max(reach, bin - first + 1);
  }
  for (; index < count; ++index) section[index] = {bins.count() - 1, beyondAll<Level>};
  section[outside] = {0, beyondAll<Level>};
}

/// Vectors of pixels as floats, which hold all values of 16s.
template <class D>
HWY_INLINE auto loadFloats(D d, const Vemi32f* values) {
  return hn::LoadU(d, values);
}
template <class D>
HWY_INLINE auto loadFloats(D d, const Vemi16s* values) {
  const hn::RebindToSigned<D> di;
  return hn::ConvertTo(d, hn::PromoteTo(di, hn::LoadU(hn::Rebind<Vemi16s, D>(), values)));
}

/// The counters of a search: the histogram itself for the first part of a row, and where bins are not too many others
/// for the rest, so that pixels of one bin need not wait for each other.
struct SearchCounters {
  static constexpr int mostBins = 512;
  struct Parts {
    uint32_t* of[rowParts];
  };

  Parts parts;
  uint32_t counter[rowParts - 1][mostBins];

  /// The histogram is cleared already.
  template <class Level>
  void begin(const Bins<Level>& bins) {
    std::fill_n(parts.of, rowParts, reinterpret_cast<uint32_t*>(bins.pHist));
    if (bins.count() > mostBins) return;
    for (int part = 1; part < rowParts; ++part) {
      parts.of[part] = counter[part - 1];
      std::fill_n(parts.of[part], bins.count(), 0);
    }
  }
  template <class Level>
  void collect(const Bins<Level>& bins) const {
    if (bins.count() > mostBins) return;
    for (const auto& part : counter) {
      for (int bin = 0; bin < bins.count(); ++bin) bins.add(bin, part[bin]);
    }
  }
};

/// Adds the values of a piece of at most `pieceLength` to the bins that the sections were made of. A pixel outside adds
/// nothing to the first bin.
template <ptrdiff_t pieceLength, class T, class Level>
void countBySearching(const T* values, ptrdiff_t count, const Bins<Level>& bins, const Sections<Level>& sections,
                      const SearchCounters::Parts& counters) {
  const Lanes<float> d;
  const hn::RebindToSigned<decltype(d)> di;
  alignas(laneAlignment) Vemi32s index[pieceLength];
  const auto kernel = [&](const T* in, Vemi32s* out)
                          HWY_ATTR { hn::StoreU(sections.of(d, loadFloats(d, in)), di, out); };
  forBlocks<laneCount<float>>(count, kernel, Strand<const T>{values}, Strand<Vemi32s>{index});

  const auto countWith = [&](const auto& binOf) {
    inParts(count, [=, section = sections.section, index = index](ptrdiff_t i, int part) {
      const T value = elementOf(values + i);
      counters.of[part][binOf(section[index[i]], value)] += index[i] != Sections<Level>::outside;
    });
  };
  if (sections.reach <= 2) {
    countWith([](const auto& section, T value) { return section.firstBin + (value >= section.next); });
  } else {
    countWith([&, lastBin = bins.count() - 1, reach = sections.reach](const auto& section, T value) {
      int bin = section.firstBin;
      for (int rest = reach; rest > 1;) {
        const int half = rest >> 1;
        const int next = std::min(bin + half, lastBin);
        bin += (next - bin) & -static_cast<int>(value >= bins.pLevels[next]);  // without a branch
        rest -= half;
      }
      return bin;
    });
  }
}

}  // namespace vemi::measure
