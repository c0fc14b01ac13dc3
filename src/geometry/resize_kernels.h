// The routine of a resize: rows are interpolated in x into rows of the destination's width, of which the last few are
// held, and these in y. What the elements of a row are made of, is put together by tables of the columns that know
// nothing of layouts (picked_bytes.h): behind them, every lane is an element.
//
// Single precision, each operation rounded by itself, in this order:
//   linear   (1 - t) p0 + t p1
//   cubic    ((p0 + a d1) + b d2) + c d3 with d1 = p1 - p0, d2 = (p2 - p1) - d1, d3 = ((p1 - (p2 + p2)) + p3) - d2,
//            a = 1 + t, b = t a / 2, c = ((t - 1) b) / 3
//   Lanczos  ((((w0 p0 + w1 p1) + w2 p2) + w3 p3) + w4 p4) + w5 p5
//   area     sums from 0 on, the covered rows of a column from the top, then the columns from the left, each times its
//            weight; at last times xFactor yFactor
// Linear interpolation of bytes is one of integers: weights w of 16384,
//   h = ((16384 - w) p0 + w p1 + 128) >> 8 in x, ((16384 - v) h0 + v h1 + 0x80000) >> 20 in y.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/lane_width.h"
#include "core/map_row.h"
#include "core/numbers.h"
#include "core/processor_bytes.h"
#include "core/rounding.h"
#include "core/windows.h"
#include "geometry/resize.h"
#include "geometry/resize_lines.h"

namespace vemi::geometry {

// ---- Filters -------------------------------------------------------------------------------------------------------

struct LinearFilter {
  static constexpr int taps = 2, weights = 1;
  static constexpr auto nodeOf = linearNode;

  static void weigh(float t, float (&weight)[weights]) { weight[0] = t; }

  template <class D, class V>
  HWY_INLINE static V apply(D d, const Vectors<V, taps>& p, const Vectors<V, weights>& w) {
    const V t = w.v[0];
    return hn::Add(hn::Mul(hn::Sub(hn::Set(d, 1.0f), t), p.v[0]), hn::Mul(t, p.v[1]));
  }
};

struct CubicFilter {
  static constexpr int taps = 4, weights = 3;
  static constexpr auto nodeOf = cubicNode;

  static void weigh(float t, float (&weight)[weights]) {
    const float a = 1 + t, b = t * a / 2, c = (t - 1) * b / 3;
    weight[0] = a;
    weight[1] = b;
    weight[2] = c;
  }

  template <class D, class V>
  HWY_INLINE static V apply(D, const Vectors<V, taps>& p, const Vectors<V, weights>& w) {
    const V d1 = hn::Sub(p.v[1], p.v[0]);
    const V d2 = hn::Sub(hn::Sub(p.v[2], p.v[1]), d1);
    const V d3 = hn::Sub(hn::Add(hn::Sub(p.v[1], hn::Add(p.v[2], p.v[2])), p.v[3]), d2);
    const V first = hn::Add(p.v[0], hn::Mul(w.v[0], d1));
    return hn::Add(hn::Add(first, hn::Mul(w.v[1], d2)), hn::Mul(w.v[2], d3));
  }
};

struct LanczosFilter {
  static constexpr int taps = 6, weights = 6;
  static constexpr auto nodeOf = lanczosNode;

  static void weigh(float t, float (&weight)[weights]) { lanczosWeights(t, weight); }

  template <class D, class V>
  HWY_INLINE static V apply(D, const Vectors<V, taps>& p, const Vectors<V, weights>& w) {
    V sum = hn::Mul(w.v[0], p.v[0]);
    unrolled<taps - 1>([&](auto k) HWY_ATTR { sum = hn::Add(sum, hn::Mul(w.v[k + 1], p.v[k + 1])); });
    return sum;
  }
};

// ---- Columns -------------------------------------------------------------------------------------------------------

/// The first samples of all columns, and how far they reach: an interval of the source's columns, which may begin
/// before the image's first one and end beyond its last one.
struct ColumnRange {
  int first, last;

  /// From the first column's node to the last one's: none between them lies outside. A product tells where the last one
  /// is, but for what additions may round, and they are only made where that decides.
  template <auto nodeOf>
  HWY_NOINLINE static ColumnRange of(const Axis& x, int taps) {
    const auto first = [&](double position) { return nodeOf(placeOf(position, x.image), x.image).first; };
    double position = x.start + x.step * (x.count - 1);
    const double slack = (std::fabs(x.start) + std::fabs(position)) * x.count * 0x1p-52;
    if (!(slack < 1) || first(position - slack) != first(position + slack)) {
      position = x.start;
      for (int i = 1; i < x.count; ++i) position += x.step;
    }
    return {first(x.start), first(position) + taps - 1};
  }

  Vemi64s columns() const { return Vemi64s{last} - first + 1; }
  /// Offsets within a line are integers of 32 bits.
  bool fits(ptrdiff_t pixelBytes) const {
    return columns() * pixelBytes <= std::numeric_limits<int32_t>::max() - windowSlack;
  }
};

/// The bytes of each element's first sample, for tables of picks.
template <class T, class L>
void setOffsets(int32_t* offset, int column, int sample) {
  for (int c = 0; c < L::elements; ++c) {
    offset[ptrdiff_t{column} * L::elements + c] =
        static_cast<int32_t>((ptrdiff_t{sample} * L::elements + c) * ptrdiff_t{sizeof(T)});
  }
}

/// So many elements of rows in memory of our own, with what a vector may have behind them.
constexpr Vemi64s withVectorEnd(Vemi64s elements) { return elements + laneCount<uint8_t>; }

/// Elements of T of two pixels with four channels, in pairs of a channel.
template <class T>
struct PairsOfBlock {
  alignas(16) uint8_t index[16];

  constexpr PairsOfBlock() : index() {
    constexpr int size = sizeof(T);
    for (int i = 0; i < 16; ++i) {
      const int pair = i / (2 * size), sample = i / size % 2, byte = i % size;
      index[i] = static_cast<uint8_t>(pair / 4 * 8 * size + sample * 4 * size + pair % 4 * size + byte);
    }
  }
};

template <class T>
inline constexpr PairsOfBlock<T> pairsOfBlock;

// ---- Source and destination ---------------------------------------------------------------------------------------

/// A row of vectors that begin at multiples of their length: at(d, first element).
template <class L, class T, class At>
HWY_INLINE void storeVectors(ptrdiff_t elements, T* dst, const At& at) {
  const Lanes<T> d;
  constexpr ptrdiff_t N = laneCount<T>;
  alignas(laneAlignment) T rest[N] = {};
  for (ptrdiff_t i = 0; i < elements; i += N) {  // one place where `at` is called, as it is to be inlined
    const bool isWhole = i + N <= elements;
    const size_t bytes = isWhole ? 0 : static_cast<size_t>(elements - i) * sizeof(T);
    T* const out = isWhole ? dst + i : rest;
    if (!isWhole) std::memcpy(rest, dst + i, bytes);
    auto v = at(d, i);
    if constexpr (L::keepsAlpha) v = hn::IfThenElse(colourLanes(d), v, hn::LoadU(d, out));
    hn::StoreU(v, d, out);
    if (!isWhole) std::memcpy(dst + i, rest, bytes);
  }
}

/// Rows of a destination out of two lines each: of(line, line, weight, row).
template <class Pair, class T, class RowOf>
HWY_INLINE void forPairs(const Pair* pairs, int count, const SourceLines& linesOfCaller,
                         const SourceLines& othersOfCaller, Image<T> dst, const RowOf& rowOf) {
  const SourceLines lines = linesOfCaller, others = othersOfCaller;  // locals, which no store can change
  for (int y = 0; y < count; ++y) {
    const Pair& pair = pairs[y];
    rowOf(lines.row(pair.base), others.row(pair.other), pair.weight, dst.row(y));
  }
}

// ---- Filters in single precision -----------------------------------------------------------------------------------

/// Lanes of T out of floats: as they are, or to nearest, which the weights of integers leave far within 32 bits.
template <class T, class D, class At>
HWY_INLINE hn::Vec<D> elementsOf(D d, const At& at) {
  if constexpr (sizeof(T) == 4) {
    return at(0);
  } else {
    const Lanes<int32_t> di;
    return packEach<int32_t>(d, [&](auto k) HWY_ATTR { return rounded(di, at(k * laneCount<float>)); });
  }
}

/// Rows and the weight of the second one.
struct FloatPair {
  int base, other;
  float weight;

  explicit FloatPair(const Node& node)
      : base(node.first), other(node.first + 1), weight(static_cast<float>(node.fraction)) {}
};

/// A row of floats out of a source line: words of neighbouring samples, of which a group has 4 / sizeof(T).
template <class F, class T, class L>
class FloatAcross {
 public:
  using Element = float;

  struct Room {
    PickedBytes::Room picks;
    Piece<int32_t> offset;
    Piece<float> weight;

    Room(Pieces& pieces, Vemi64s elements)
        : picks(PickedBytes::addTo(pieces, elements, 4)),
          offset(pieces.add<int32_t>(elements)),
          weight(pieces.add<float>(limitedProduct(F::weights, withVectorEnd(elements)))) {}
  };

  FloatAcross(const Scratch& scratch, const Room& room, const Axis& x, int firstColumn)
      : elements_(ptrdiff_t{x.count} * L::elements),
        pitch_(static_cast<ptrdiff_t>(withVectorEnd(elements_))),
        picks_(scratch, room.picks),
        weight_(scratch[room.weight]) {
    int32_t* const offset = scratch[room.offset];
    inTurn_ = mayBeInTurn;
    forNodes<F::nodeOf>(x, [&](int column, const Node& node) {
      const int sample = node.first - firstColumn;
      inTurn_ = inTurn_ && sample == 2 * column;
      setOffsets<T, L>(offset, column, sample);
      float weight[F::weights];
      F::weigh(static_cast<float>(node.fraction), weight);
      for (int k = 0; k < F::weights; ++k) {
        std::fill_n(weight_ + k * pitch_ + ptrdiff_t{column} * L::elements, L::elements, weight[k]);
      }
    });
    for (int k = 0; k < F::weights; ++k) std::fill_n(weight_ + k * pitch_ + elements_, laneCount<uint8_t>, 0.0f);
    if (inTurn_) return;
    const auto pattern = [](int samples) {
      return BytePattern::ofSamples(4, samples, sizeof(T), static_cast<int>(pixelBytes<T, L>));
    };
    const OffsetSpans spans(offset, elements_);
    const auto cost = [&](int samples) {
      return wordsOf(samples) * PickedBytes::costOf(spans.windowsFor(pattern(samples)));
    };
    inWords_ = most > 1 && cost(most) <= cost(1);
    picks_.make(offset, elements_, spans, pattern(inWords_ ? most : 1));
  }

  void operator()(const uint8_t* line, float* out) const {
    withSamples([&](auto windows, auto perWord) { run<windows, perWord>(line, out); });
  }

  /// Whether both stages may be one: where samples are gathered it gains nothing.
  bool goesBetween() const { return L::elements == 3 || inTurn_; }

  /// Both stages at once, of two lines each row.
  void between(const FloatPair* pairs, int count, const SourceLines& lines, const SourceLines& others,
               Image<T> dst) const {
    if constexpr (mayBeInTurn) {
      runBetween<1, inTurn>(pairs, count, lines, others, dst);
    } else {
      withSamples([&](auto windows, auto perWord) { runBetween<windows, perWord>(pairs, count, lines, others, dst); });
    }
  }

 private:
  /// Samples in a word. A word of one has closer places, so that fewer windows may do.
  static constexpr int most = std::min(F::taps, 4 / static_cast<int>(sizeof(T)));
  /// In place of the samples in a word: all are where the source has them, pair by pair.
  static constexpr int inTurn = 0;
  static constexpr bool mayBeInTurn = F::taps == 2 && L::elements != 3;

  ptrdiff_t elements_, pitch_;
  PickedBytes picks_;
  float* weight_;
  bool inWords_ = false, inTurn_;

  using V = hn::Vec<Lanes<float>>;
  using Samples = Vectors<V, F::taps>;

  static constexpr int wordsOf(int perWord) { return (F::taps + perWord - 1) / perWord; }

  template <class Run>
  HWY_INLINE void withSamples(const Run& run) const {
    if constexpr (mayBeInTurn) {
      if (inTurn_) return run(std::integral_constant<int, 1>(), std::integral_constant<int, inTurn>());
    }
    picks_.template withWindows<4>([&](auto windows) {
      if constexpr (most > 1) {
        if (inWords_) return run(windows, std::integral_constant<int, most>());
      }
      run(windows, std::integral_constant<int, 1>());
    });
  }

  /// Sample k of each word, as a float.
  template <int k, int perWord, class D>
  HWY_INLINE static V sample(D d, hn::Vec<Lanes<uint8_t>> words) {
    if constexpr (sizeof(T) == 4) {
      return hn::BitCast(d, words);
    } else {
      constexpr int bits = 8 * sizeof(T);
      const hn::RebindToSigned<D> di;
      const Lanes<uint32_t> dWords;
      auto word = hn::BitCast(dWords, words);
      if constexpr (k > 0) word = hn::ShiftRight<k * bits>(word);
      if constexpr (perWord > 1 && (k + 1) * bits < 32) word = hn::And(word, hn::Set(dWords, (1u << bits) - 1));
      return hn::ConvertTo(d, hn::BitCast(di, word));
    }
  }

  /// The samples of the elements from i on.
  template <int windows, int perWord, class D>
  HWY_INLINE static Samples samplesAt(D d, const PickedBytes& picks, const uint8_t* line, ptrdiff_t i) {
    constexpr ptrdiff_t groupBytes = perWord * pixelBytes<T, L>;
    constexpr bool areNeighbours = sizeof(T) == 4 || (L::elements == 1 && perWord * sizeof(T) == 4);
    Samples p;
    if constexpr (perWord == inTurn) {
      samplesInTurn(d, line, i, p);
    } else {
      unrolled<wordsOf(perWord)>([&](auto group) HWY_ATTR {
        const uint8_t* const first = line + group * groupBytes;
        const auto words = pixelBytes<T, L> == 16 ? picks.pixels(first, i / 4)
                           : areNeighbours        ? picks.words<windows>(first, i / 4)
                                                  : picks.vector<windows>(first, i / 4);
        unrolled<std::min(perWord, F::taps - group * perWord)>(
            [&](auto k) HWY_ATTR { p.v[group * perWord + k] = sample<k, perWord>(d, words); });
      });
    }
    return p;
  }

  template <class D>
  HWY_INLINE static void samplesInTurn(D d, const uint8_t* line, ptrdiff_t i, Samples& p) {
    if constexpr (sizeof(T) == 2) {
      const Lanes<uint8_t> dBytes;
      auto pairs = hn::LoadU(dBytes, line + 4 * i);
      if constexpr (L::elements == 4)
        pairs = hn::TableLookupBytes(pairs, hn::LoadDup128(dBytes, pairsOfBlock<T>.index));
      p.v[0] = sample<0, 2>(d, pairs);
      p.v[1] = sample<1, 2>(d, pairs);
    } else {
      const auto* const first = reinterpret_cast<const float*>(line) + 2 * i;
      if constexpr (L::elements == 1) {
        const auto lower = hn::LoadU(d, first), upper = hn::LoadU(d, first + laneCount<float>);
        p = {{hn::ConcatEven(d, upper, lower), hn::ConcatOdd(d, upper, lower)}};
      } else {
        p.v[0] = blocksFrom(d, [&](ptrdiff_t k) HWY_ATTR { return first + 8 * k; });
        p.v[1] = blocksFrom(d, [&](ptrdiff_t k) HWY_ATTR { return first + 8 * k + 4; });
      }
    }
  }

  /// What becomes of a line, from element i on.
  template <int windows, int perWord, class D>
  HWY_INLINE static V valuesAt(D d, const PickedBytes& picks, const uint8_t* line, const float* weights,
                               ptrdiff_t pitch, ptrdiff_t i) {
    Vectors<V, F::weights> w;
    unrolled<F::weights>([&](auto k) HWY_ATTR { w.v[k] = hn::LoadU(d, weights + k * pitch + i); });
    return F::apply(d, samplesAt<windows, perWord>(d, picks, line, i), w);
  }

  template <int windows, int perWord>
  HWY_NOINLINE void run(const uint8_t* line, float* out) const {
    const Lanes<float> d;
    const PickedBytes picks = picks_;
    const float* const weights = weight_;
    for (ptrdiff_t i = 0; i < elements_; i += laneCount<float>) {
      hn::StoreU(valuesAt<windows, perWord>(d, picks, line, weights, pitch_, i), d, out + i);
    }
  }

  /// From element i on.
  template <int windows, int perWord, class D>
  HWY_INLINE static hn::Vec<D> betweenAt(D d, const PickedBytes& picks, const uint8_t* line0, const uint8_t* line1,
                                         const float* weights, V down, ptrdiff_t i) {
    const Lanes<float> df;
    return elementsOf<T>(d, [&](ptrdiff_t place) HWY_ATTR {
      const auto at = [&](const uint8_t* line)
                          HWY_ATTR { return valuesAt<windows, perWord>(df, picks, line, weights, 0, i + place); };
      return F::apply(df, Samples{{at(line0), at(line1)}}, Vectors<V, 1>{{down}});
    });
  }

  template <int windows, int perWord>
  HWY_NOINLINE void runBetween(const FloatPair* pairs, int count, const SourceLines& lines, const SourceLines& others,
                               Image<T> dst) const {
    const PickedBytes picks = picks_;
    const float* const weights = weight_;
    const ptrdiff_t elements = elements_;
    forPairs(pairs, count, lines, others, dst, [&](auto line0, auto line1, float weight, T* out) HWY_ATTR {
      const V down = hn::Set(Lanes<float>(), weight);
      const auto at = [=, &picks](auto d, ptrdiff_t i)
                          HWY_ATTR { return betweenAt<windows, perWord>(d, picks, line0, line1, weights, down, i); };
      if constexpr (perWord == inTurn) {
        mapPlacesHere<alphaOf<L>>(elements, eachPlace<1>(at), out);
      } else {
        storeVectors<L>(elements, out, at);
      }
    });
  }
};

/// The stage in y: elements of a destination row.
template <class F, class T>
struct FloatDown {
  static constexpr int vectors = sizeof(T) == 4 ? 2 : 1;

  const float* row[F::taps];
  float weight[F::weights];

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    const Lanes<float> df;
    using V = hn::Vec<Lanes<float>>;
    Vectors<V, F::weights> w;
    unrolled<F::weights>([&](auto k) HWY_ATTR { w.v[k] = hn::Set(df, weight[k]); });
    return elementsOf<T>(d, [&](ptrdiff_t place) HWY_ATTR {
      Vectors<V, F::taps> p;
      unrolled<F::taps>([&](auto k) HWY_ATTR { p.v[k] = hn::LoadU(df, row[k] + i + place); });
      return F::apply(df, p, w);
    });
  }
};

template <class F, class T, class L>
struct FloatStages {
  using Filter = F;
  using Across = FloatAcross<F, T, L>;
  using Pair = FloatPair;

  static void down(ptrdiff_t elements, const float* const* rows, const Node& node, bool, T* dst) {
    FloatDown<F, T> stage;
    std::copy_n(rows, F::taps, stage.row);
    F::weigh(static_cast<float>(node.fraction), stage.weight);
    mapPlaces<alphaOf<L>>(elements, eachPlace<FloatDown<F, T>::vectors>(stage), dst);
  }
};

// ---- Linear interpolation of bytes ---------------------------------------------------------------------------------

/// base + (v (other - base) >> 14) + 32 >> 6, which is the formula, as what the first shift drops is less than one of
/// the second one's units. weight = -4 v, and rows do not go beyond the pixels; a rounded product is the second shift.
template <class D, class V = hn::Vec<D>>
HWY_INLINE V betweenRows(D d, V base, V other, V weight) {
  const auto sum = hn::Add(base, hn::MulHigh(hn::Sub(base, other), weight));
  return hn::MulFixedPoint15(sum, hn::Set(d, int16_t{512}));
}

/// Of two rows, the one that has at least half of all weight is the base. The other one's weight, times -4, is one of
/// 16 bits.
struct BytePair {
  int base, other;
  int16_t weight;

  explicit BytePair(const Node& node) {
    const int second = linearWeight(node), isSecond = second >= 8192 ? 1 : 0;
    base = node.first + isSecond;
    other = node.first + 1 - isSecond;
    weight = static_cast<int16_t>(-4 * (isSecond == 1 ? 16384 - second : second));
  }
};

/// h = 64 p0 + (w (p1 - p0) + 128 >> 8), which is the formula in lanes of 16 bits: the rounded product shifts by 15, of
/// which p0 - p1 has six in advance, and the weight -2 w one. It never leaves them, also where w is negative.
template <class L>
class ByteAcross {
 public:
  using Element = int16_t;

  struct Room {
    PickedBytes::Room picks;
    Piece<int32_t> offset;
    Piece<int16_t> weight;

    Room(Pieces& pieces, Vemi64s elements)
        : picks(PickedBytes::addTo(pieces, elements, 2)),
          offset(pieces.add<int32_t>(elements)),
          weight(pieces.add<int16_t>(withVectorEnd(elements))) {}
  };

  ByteAcross(const Scratch& scratch, const Room& room, const Axis& x, int firstColumn)
      : elements_(ptrdiff_t{x.count} * L::elements), picks_(scratch, room.picks), weight_(scratch[room.weight]) {
    int32_t* const offset = scratch[room.offset];
    bool inTurn = L::elements != 3;
    forNodes<linearNode>(x, [&](int column, const Node& node) {
      const int sample = node.first - firstColumn;
      inTurn = inTurn && sample == 2 * column;
      setOffsets<uint8_t, L>(offset, column, sample);
      std::fill_n(weight_ + ptrdiff_t{column} * L::elements, L::elements,
                  static_cast<int16_t>(-2 * linearWeight(node)));
    });
    std::fill_n(weight_ + elements_, laneCount<uint8_t>, int16_t{0});
    const auto pattern = [](int samples) { return BytePattern::ofSamples(2, samples, 1, L::elements); };
    samples_ = Samples::inTurn;
    if (inTurn) return;
    const OffsetSpans spans(offset, elements_);
    const auto windows = [&](int samples) { return spans.windowsFor(pattern(samples)); };
    samples_ = windows(2) == 1 || windows(1) > 1 ? Samples::inPairs : Samples::apart;
    picks_.make(offset, elements_, spans, pattern(samples_ == Samples::apart ? 1 : 2));
  }

  void operator()(const uint8_t* line, int16_t* out) const {
    withSamples([&](auto windows, auto samples) { run<windows, samples>(line, out); });
  }

  bool goesBetween() const { return true; }

  /// Both stages at once, of two lines each row.
  void between(const BytePair* pairs, int count, const SourceLines& lines, const SourceLines& others,
               Image<uint8_t> dst) const {
    withSamples([&](auto windows, auto samples) { runBetween<windows, samples>(pairs, count, lines, others, dst); });
  }

 private:
  /// Where the samples of an element are: in lines of which each byte is one, pair by pair; picked as pairs; or each by
  /// itself, where a pair just exceeds a window.
  enum class Samples { inTurn, inPairs, apart };

  ptrdiff_t elements_;
  PickedBytes picks_;
  int16_t* weight_;
  Samples samples_;

  template <class F>
  HWY_INLINE void withSamples(const F& f) const {
    const std::integral_constant<int, 1> one;
    if constexpr (L::elements != 3) {
      if (samples_ == Samples::inTurn) return f(one, std::integral_constant<Samples, Samples::inTurn>());
    }
    if (samples_ == Samples::apart) return f(one, std::integral_constant<Samples, Samples::apart>());
    picks_.template withWindows<8>(
        [&](auto windows) { f(windows, std::integral_constant<Samples, Samples::inPairs>()); });
  }

  /// h from element i on.
  template <int windows, Samples samples, class D>
  HWY_INLINE static hn::Vec<D> valuesAt(D d, const PickedBytes& picks, const uint8_t* line, const int16_t* weights,
                                        ptrdiff_t i) {
    const auto weight = hn::LoadU(d, weights + i);
    if constexpr (samples == Samples::apart) {
      const auto at = [&](const uint8_t* from) HWY_ATTR { return hn::BitCast(d, picks.vector<windows>(from, i / 8)); };
      const auto p0 = at(line), p1 = at(line + L::elements);
      const auto product = hn::MulFixedPoint15(hn::ShiftLeft<6>(hn::Sub(p0, p1)), weight);
      return hn::Add(hn::ShiftLeft<6>(p0), product);
    } else {
      const auto pairs = pairsAt<windows, samples>(picks, line, i);
      const auto product = hn::MulFixedPoint15(pairsOfByteProducts<64, -64>(d, pairs), weight);
      return hn::Add(pairsOfByteProducts<64, 0>(d, pairs), product);
    }
  }

  template <int windows, Samples samples>
  HWY_INLINE static hn::Vec<Lanes<uint8_t>> pairsAt(const PickedBytes& picks, const uint8_t* line, ptrdiff_t i) {
    if constexpr (samples == Samples::inTurn) {
      const Lanes<uint8_t> d;
      const auto bytes = hn::LoadU(d, line + 2 * i);
      if constexpr (L::elements == 1) return bytes;
      return hn::TableLookupBytes(bytes, hn::LoadDup128(d, pairsOfBlock<uint8_t>.index));
    } else {
      return picks.vector<windows>(line, i / 8);
    }
  }

  template <int windows, Samples samples>
  HWY_NOINLINE void run(const uint8_t* line, int16_t* out) const {
    const Lanes<int16_t> d;
    const PickedBytes picks = picks_;
    const int16_t* const weights = weight_;
    for (ptrdiff_t i = 0; i < elements_; i += laneCount<int16_t>) {
      hn::StoreU(valuesAt<windows, samples>(d, picks, line, weights, i), d, out + i);
    }
  }

  /// From element i on.
  template <int windows, Samples samples, class D>
  HWY_INLINE static hn::Vec<D> betweenAt(D d, const PickedBytes& picks, const uint8_t* base, const uint8_t* other,
                                         const int16_t* weights, int16_t down, ptrdiff_t i) {
    const Lanes<int16_t> d16;
    const auto at = [&](ptrdiff_t place) HWY_ATTR {
      const auto ofBase = valuesAt<windows, samples>(d16, picks, base, weights, place);
      const auto ofOther = valuesAt<windows, samples>(d16, picks, other, weights, place);
      return betweenRows(d16, ofBase, ofOther, hn::Set(d16, down));
    };
    return packInOrder(d, at(i), at(i + laneCount<int16_t>));
  }

  template <int windows, Samples samples>
  HWY_NOINLINE void runBetween(const BytePair* pairs, int count, const SourceLines& lines, const SourceLines& others,
                               Image<uint8_t> dst) const {
    const PickedBytes picks = picks_;
    const int16_t* const weights = weight_;
    const ptrdiff_t elements = elements_;
    forPairs(pairs, count, lines, others, dst, [&](auto base, auto other, int16_t weight, uint8_t* out) HWY_ATTR {
      const auto at = [=, &picks](auto d, ptrdiff_t i)
                          HWY_ATTR { return betweenAt<windows, samples>(d, picks, base, other, weights, weight, i); };
      if constexpr (samples == Samples::inTurn) {
        mapPlacesHere<alphaOf<L>>(elements, eachPlace<1>(at), out);
      } else {
        storeVectors<L>(elements, out, at);
      }
    });
  }
};

/// For rows and weights that do not go beyond the pixels.
struct ByteDown {
  const int16_t *base, *other;
  int16_t weight;

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    const Lanes<int16_t> d16;
    const auto at = [&](ptrdiff_t place) HWY_ATTR {
      return betweenRows(d16, hn::LoadU(d16, base + place), hn::LoadU(d16, other + place), hn::Set(d16, weight));
    };
    return packInOrder(d, at(i), at(i + laneCount<int16_t>));
  }
};

struct ByteDownOf {
  HWY_INLINE auto operator()(const int16_t* base, const int16_t* other, int16_t weight) const {
    return eachPlace(ByteDown{base, other, weight});
  }
};

/// For any.
struct ByteDownBeyond {
  const int16_t *row0, *row1;
  int weight;

  template <class D>
  HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
    const Lanes<int32_t> di;
    return packEach<int32_t>(d, [&](auto k) HWY_ATTR {
      const auto product = [&](const int16_t* row, int w) HWY_ATTR {
        return hn::Mul(loadExtended(di, row + i + k * laneCount<int32_t>), hn::Set(di, w));
      };
      const auto sum = hn::Add(product(row0, 16384 - weight), product(row1, weight));
      return hn::ShiftRight<20>(hn::Add(sum, hn::Set(di, 0x80000)));
    });
  }
};

template <class L>
struct ByteStages {
  using Filter = LinearFilter;
  using Across = ByteAcross<L>;
  using Pair = BytePair;

  /// `beyond`: the rows go beyond the pixels.
  static void down(ptrdiff_t elements, const int16_t* const* rows, const Node& node, bool beyond, uint8_t* dst) {
    const int weight = linearWeight(node);
    if (beyond || weight < 0) {
      return mapPlaces<alphaOf<L>>(elements, eachPlace<1>(ByteDownBeyond{rows[0], rows[1], weight}), dst);
    }
    const BytePair pair(node);
    mapPlacesOf<alphaOf<L>, ByteDownOf>(elements, dst, rows[pair.base - node.first], rows[pair.other - node.first],
                                        pair.weight);
  }
};

// ---- Rows through both stages --------------------------------------------------------------------------------------

/// Where no row of a linear interpolation's first stage serves two of the destination, both stages are one. Bytes
/// before the image's edge are beyond what such kernels take.
template <class Stages, class T, class L>
VemiStatus resizeByStages(const T* const* src, int srcStep, T* const* dst, int dstStep, int count,
                          const ResizePlan& plan) {
  using F = typename Stages::Filter;
  using Across = typename Stages::Across;
  using E = typename Across::Element;
  using Pair = typename Stages::Pair;
  constexpr bool isLinear = F::taps == 2;
  const bool mayGoBetween = isLinear && plan.y.step >= 2 && plan.x.start >= 0 && plan.y.start >= 0;
  const Vemi64s elements = Vemi64s{plan.x.count} * L::elements;
  const ColumnRange range = ColumnRange::of<F::nodeOf>(plan.x, F::taps);
  SourceLines lines(range.first, range.columns(), pixelBytes<T, L>), others = lines;
  HeldRows<E, F::taps> held(elements);
  Pieces pieces;
  const typename Across::Room room(pieces, elements);
  const auto copy = pieces.add<uint8_t>(lines.bytes());
  const auto otherCopy = pieces.add<uint8_t>(mayGoBetween ? others.bytes() : 0);
  const auto pairsOfRows = pieces.add<Pair>(mayGoBetween ? plan.y.count : 0);
  const auto rowsOfStage = pieces.add<E>(held.elements());
  const Scratch scratch(pieces);
  if (!range.fits(pixelBytes<T, L>) || scratch.failed()) return vemiErrMemAlloc;
  const Across across(scratch, room, plan.x, range.first);
  lines.setCopy(scratch[copy]);
  held.place(scratch[rowsOfStage]);
  if constexpr (isLinear) {
    if (mayGoBetween && across.goesBetween()) {
      Pair* const pairs = scratch[pairsOfRows];
      forNodes<linearNode>(plan.y, [&](int y, const Node& node) { pairs[y] = Pair(node); });
      others.setCopy(scratch[otherCopy]);
      for (int n = 0; n < count; ++n) {
        const Image<const T> source = {src[n], srcStep};
        lines.setSource(source, plan.image);
        others.setSource(source, plan.image);
        across.between(pairs, plan.y.count, lines, others, Image<T>{dst[n], dstStep});
      }
      return vemiOk;
    }
  }
  for (int n = 0; n < count; ++n) {
    const Image<T> destination = {dst[n], dstStep};
    lines.setSource(Image<const T>{src[n], srcStep}, plan.image);
    held.forget();
    forNodes<F::nodeOf>(plan.y, [&](int y, const Node& node) {
      const E* rows[F::taps];
      for (int k = 0; k < F::taps; ++k) {
        const int row = std::clamp(node.first + k, 0, plan.image.height - 1);
        rows[k] = held.row(row, [&](E* out) { across(lines.row(row), out); });
      }
      Stages::down(static_cast<ptrdiff_t>(elements), rows, node, plan.x.start < 0, destination.row(y));
    });
  }
  return vemiOk;
}

// ---- Nearest pixels ------------------------------------------------------------------------------------------------

template <class T, class L>
class NearestAcross {
 public:
  struct Room {
    PickedBytes::Room picks;
    Piece<int32_t> offset;

    Room(Pieces& pieces, Vemi64s elements)
        : picks(PickedBytes::addTo(pieces, elements, sizeof(T))), offset(pieces.add<int32_t>(elements)) {}
  };

  NearestAcross(const Scratch& scratch, const Room& room, const Axis& x, int firstColumn)
      : elements_(ptrdiff_t{x.count} * L::elements), picks_(scratch, room.picks), offset_(scratch[room.offset]) {
    int32_t* const offset = offset_;
    forNodes<nearestNode>(x, [&](int column, const Node& node) {
      const int sample = node.first - firstColumn;
      isEverySecond_ = isEverySecond_ && sample == 2 * column;
      setOffsets<T, L>(offset, column, sample);
    });
    if (isEverySecond_) return;
    if constexpr (!byPixels) picks_.make(offset, elements_, BytePattern::ofSamples(sizeof(T), 1, sizeof(T), 0));
  }

  void operator()(const uint8_t* line, T* dst) const {
    if constexpr (byPixels) return copyPixels(line, dst);
    if constexpr (asWords) {
      if (isEverySecond_) return everySecond(line, dst);
    }
    picks_.template withWindows<16 / sizeof(T)>([&](auto windows) { run<windows>(line, dst); });
  }

 private:
  /// Pixels that take most of a block: blocks are copied, each over the end of the one before.
  static constexpr bool byPixels = pixelBytes<T, L> == 12;
  static constexpr bool asWords = pixelBytes<T, L> == 4;

  ptrdiff_t elements_;
  PickedBytes picks_;
  int32_t* offset_;
  bool isEverySecond_ = asWords;  // from the line's first one on

  HWY_NOINLINE void copyPixels(const uint8_t* line, T* dst) const {
    const hn::FixedTag<uint8_t, 16> d;
    const int32_t* const offset = offset_;
    auto* const out = reinterpret_cast<uint8_t*>(dst);
    const ptrdiff_t last = elements_ - L::elements;
    for (ptrdiff_t i = 0; i < last; i += L::elements) {
      hn::StoreU(hn::LoadU(d, line + offset[i]), d, out + i * ptrdiff_t{sizeof(T)});
    }
    std::memcpy(dst + last, line + offset[last], pixelBytes<T, L>);
  }

  HWY_NOINLINE void everySecond(const uint8_t* line, T* dst) const {
    const Lanes<uint32_t> dWords;
    storeVectors<L>(elements_, dst, [&](auto d, ptrdiff_t i) HWY_ATTR {
      const auto at = [&](ptrdiff_t k) HWY_ATTR {
        return hn::LoadU(dWords,
                         reinterpret_cast<const uint32_t*>(line + (2 * i + k * laneCount<T>)*ptrdiff_t{sizeof(T)}));
      };
      return hn::BitCast(d, hn::ConcatEven(dWords, at(1), at(0)));
    });
  }

  template <int windows>
  HWY_NOINLINE void run(const uint8_t* line, T* dst) const {
    const PickedBytes picks = picks_;
    storeVectors<L>(elements_, dst, [&](auto d, ptrdiff_t i) HWY_ATTR {
      return hn::BitCast(d, picks.vector<windows>(line, i * ptrdiff_t{sizeof(T)} / 16));
    });
  }
};

template <class T, class L>
VemiStatus resizeToNearest(const T* const* src, int srcStep, T* const* dst, int dstStep, int count,
                           const ResizePlan& plan) {
  const Vemi64s elements = Vemi64s{plan.x.count} * L::elements;
  const ColumnRange range = ColumnRange::of<nearestNode>(plan.x, 1);
  SourceLines lines(range.first, range.columns(), pixelBytes<T, L>);
  Pieces pieces;
  const typename NearestAcross<T, L>::Room room(pieces, elements);
  const auto copy = pieces.add<uint8_t>(lines.bytes());
  const Scratch scratch(pieces);
  if (!range.fits(pixelBytes<T, L>) || scratch.failed()) return vemiErrMemAlloc;
  const NearestAcross<T, L> across(scratch, room, plan.x, range.first);
  lines.setCopy(scratch[copy]);
  for (int n = 0; n < count; ++n) {
    const Image<T> destination = {dst[n], dstStep};
    lines.setSource(Image<const T>{src[n], srcStep}, plan.image);
    int last = -1;
    forNodes<nearestNode>(plan.y, [&](int y, const Node& node) {
      if (node.first == last && !L::keepsAlpha) {
        rowCopyBytes(destination.row(y - 1), destination.row(y),
                     static_cast<ptrdiff_t>(elements) * ptrdiff_t{sizeof(T)});
      } else {
        across(lines.row(node.first), destination.row(y));
        last = node.first;
      }
    });
  }
  return vemiOk;
}

// ---- Area averages -------------------------------------------------------------------------------------------------

/// Rows times their weights, added one by one to what there is of a sum, or to zero. That leaves no negative zeros;
/// rows of integers, which are given by their address, have none.
template <int rows, bool toZero>
struct WeightedRows {
  float weight[rows];

  template <class D, class First, class... Rest>
  HWY_INLINE hn::Vec<D> operator()(D d, First first, Rest... rest) const {
    if constexpr (!toZero) {
      return sum<0>(d, first, rest...);
    } else if constexpr (std::is_pointer_v<First>) {
      return sum<1>(d, hn::Mul(lanes(d, first), hn::Set(d, weight[0])), rest...);
    } else {
      return sum<0>(d, hn::Zero(d), first, rest...);
    }
  }

 private:
  template <int k, class D, class V>
  HWY_INLINE V sum(D, V all) const {
    return all;
  }
  template <int k, class D, class V, class In, class... Rest>
  HWY_INLINE V sum(D d, V all, In in, Rest... rest) const {
    return sum<k + 1>(d, hn::Add(all, hn::Mul(lanes(d, in), hn::Set(d, weight[k]))), rest...);
  }
  template <class D, class In>
  HWY_INLINE static hn::Vec<D> lanes(D d, In in) {
    if constexpr (std::is_pointer_v<In>) {
      return loadExtended(d, in);
    } else {
      return in;
    }
  }
};

/// Adds rows to a line of sums, two at a time.
template <class T>
class LineOfSums {
 public:
  LineOfSums(float* line, ptrdiff_t elements) : line_(line), elements_(elements) {}

  void add(const T* row, float weight) {
    row_[count_] = row;
    weight_[count_] = weight;
    if (++count_ == 2)
      addRows(WeightedRows<2, true>{weight_[0], weight_[1]}, WeightedRows<2, false>{weight_[0], weight_[1]}, row_[0],
              row_[1]);
  }
  void finish() {
    if (count_ == 1) addRows(WeightedRows<1, true>{weight_[0]}, WeightedRows<1, false>{weight_[0]}, row_[0]);
  }

 private:
  float* line_;
  ptrdiff_t elements_;
  const T* row_[2] = {};
  float weight_[2] = {};
  int count_ = 0;
  bool isEmpty_ = true;

  template <class ToZero, class ToSum, class... Rows>
  void addRows(ToZero toZero, ToSum toSum, Rows... rows) {
    if (isEmpty_) {
      mapElements<Alpha::none>(elements_, eachVector(toZero), line_, rows...);
    } else {
      mapElements<Alpha::none>(elements_, eachVector(toSum), line_, static_cast<const float*>(line_), rows...);
    }
    isEmpty_ = false;
    count_ = 0;
  }
};

/// Means of a row's weighted elements, so many of each; a weight of zero stands where there is none. Sums of integers
/// stay as they are when nothing is added; others may meet what is no number there.
template <class T, class L>
class AreaAcross {
 public:
  struct Room {
    PickedBytes::Room picks;
    Piece<int32_t> offset;
    Piece<float> weight;

    Room(Pieces& pieces, Vemi64s elements, int taps)
        : picks(PickedBytes::addTo(pieces, elements, 4)),
          offset(pieces.add<int32_t>(elements)),
          weight(pieces.add<float>(limitedProduct(taps, withVectorEnd(elements)))) {}
  };

  AreaAcross(const Scratch& scratch, const Room& room, const Axis& x, int firstColumn, int taps)
      : elements_(ptrdiff_t{x.count} * L::elements),
        pitch_(static_cast<ptrdiff_t>(withVectorEnd(elements_))),
        taps_(taps),
        picks_(scratch, room.picks),
        weight_(scratch[room.weight]) {
    std::fill_n(weight_, taps * pitch_, 0.0f);
    int32_t* const offset = scratch[room.offset];
    double position = x.start;
    for (int column = 0; column < x.count; ++column, position += x.step) {
      int first = -1;
      forCovered(position, x.step, x.image, [&](int index, float weight) {
        if (first < 0) first = index;
        std::fill_n(weight_ + (index - first) * pitch_ + ptrdiff_t{column} * L::elements, L::elements, weight);
      });
      setOffsets<float, L>(offset, column, first - firstColumn);
    }
    picks_.make(offset, elements_, BytePattern::ofSamples(4, 1, 4, 0));
  }

  /// Means: sums times `scale`.
  void operator()(const float* line, float scale, T* dst) const {
    const auto* const bytes = reinterpret_cast<const uint8_t*>(line);
    const auto sums = [&](auto windows) {
      if (taps_ == 2) return run<windows>(std::integral_constant<ptrdiff_t, 2>(), bytes, scale, dst);
      if (taps_ == 3) return run<windows>(std::integral_constant<ptrdiff_t, 3>(), bytes, scale, dst);
      run<windows>(ptrdiff_t{taps_}, bytes, scale, dst);
    };
    if constexpr (L::elements == 4) {
      sums(std::integral_constant<int, 1>());
    } else {
      picks_.template withWindows<4>(sums);
    }
  }

 private:
  ptrdiff_t elements_, pitch_;
  int taps_;
  PickedBytes picks_;
  float* weight_;

  /// Taps of any number, or of one that is known.
  template <int windows, class Taps>
  HWY_NOINLINE void run(Taps taps, const uint8_t* line, float scale, T* dst) const {
    const Lanes<float> df;
    const PickedBytes picks = picks_;
    const float* const weights = weight_;
    const ptrdiff_t pitch = pitch_;
    const auto sumAt = [&](ptrdiff_t i) HWY_ATTR {
      auto sum = hn::Zero(df);
      for (ptrdiff_t k = 0; k < taps; ++k) {
        const uint8_t* const from = line + k * pixelBytes<float, L>;
        const auto words = L::elements == 4 ? picks.pixels(from, i / 4) : picks.template words<windows>(from, i / 4);
        const auto weight = hn::LoadU(df, weights + k * pitch + i);
        auto part = hn::Mul(weight, hn::BitCast(df, words));
        if constexpr (sizeof(T) == 4) part = hn::IfThenElseZero(hn::Ne(weight, hn::Zero(df)), part);
        sum = hn::Add(sum, part);
      }
      return sum;
    };
    storeVectors<L>(elements_, dst, [&](auto d, ptrdiff_t i) HWY_ATTR {
      return elementsOf<T>(d, [&](ptrdiff_t place) HWY_ATTR { return hn::Mul(sumAt(i + place), hn::Set(df, scale)); });
    });
  }
};

/// The interval of columns that areas cover, and the most columns of one of them.
struct AreaRange {
  ColumnRange range = {std::numeric_limits<int>::max(), 0};
  int taps = 0;

  explicit AreaRange(const Axis& x) {
    double position = x.start;
    for (int column = 0; column < x.count; ++column, position += x.step) {
      int first = -1;
      forCovered(position, x.step, x.image, [&](int index, float) {
        if (first < 0) first = index;
        range.first = std::min(range.first, first);
        range.last = std::max(range.last, index);
        taps = std::max(taps, index - first + 1);
      });
    }
  }
};

/// What the mean of four integers becomes halfway between two of them.
enum class Halves { toEven, up };

/// Means of two by two pixels: sums of integers are exact, so their order does not matter, and a quarter to nearest is
/// a shift; those of floats have the order of areas.
template <class T, class L, Halves halves>
class MeansOfFour {
 public:
  struct Room {
    PickedBytes::Room picks = {};
    Piece<int32_t> offset = {};

    Room(Pieces& pieces, Vemi64s elements) {
      if (!byTable) return;
      picks = PickedBytes::addTo(pieces, elements, wordBytes);
      offset = pieces.add<int32_t>(elements);
    }
  };

  /// Bytes behind the pixels that are read: none where a row has a vector.
  static Vemi64s slackOf(Vemi64s elements) { return byTable || elements < laneCount<T> ? windowSlack : 0; }

  MeansOfFour(const Scratch& scratch, const Room& room, int count)
      : elements_(ptrdiff_t{count} * L::elements), picks_(scratch, room.picks) {
    if constexpr (byTable) {
      int32_t* const offset = scratch[room.offset];
      for (int column = 0; column < count; ++column) setOffsets<T, L>(offset, column, 2 * column);
      picks_.make(offset, elements_, BytePattern::ofSamples(wordBytes, sizeof(T) == 1 ? 2 : 1, sizeof(T), pixel));
    }
  }

  void operator()(const uint8_t* line0, const uint8_t* line1, T* dst) const {
    if constexpr (byTable) {
      picks_.template withWindows<sizeof(T) == 1 ? 8 : 4>([&](auto windows) { run<windows>(line0, line1, dst); });
    } else {
      mapPlacesOf<alphaOf<L>, StageOf>(elements_, dst, line0, line1);
    }
  }

 private:
  static constexpr int pixel = static_cast<int>(pixelBytes<T, L>);
  static constexpr int wordBytes = sizeof(T) == 1 ? 2 : 4;
  /// Blocks of others hold whole pixels.
  static constexpr bool byTable = L::elements == 3;

  ptrdiff_t elements_;
  PickedBytes picks_;

  /// The stage of a row without a table.
  struct Means {
    const uint8_t *line0, *line1;

    template <class D>
    HWY_INLINE auto operator()(D d, ptrdiff_t i) const {
      return meansAt<1>(d, nullptr, line0, line1, i);
    }
  };
  struct StageOf {
    HWY_INLINE auto operator()(const uint8_t* line0, const uint8_t* line1) const {
      return eachPlace<1>(Means{line0, line1});
    }
  };

  template <int windows>
  HWY_NOINLINE void run(const uint8_t* line0, const uint8_t* line1, T* dst) const {
    const PickedBytes picks = picks_;
    storeVectors<L>(elements_, dst,
                    [&](auto d, ptrdiff_t i) HWY_ATTR { return meansAt<windows>(d, &picks, line0, line1, i); });
  }

  /// From element i on.
  template <int windows, class D>
  HWY_INLINE static hn::Vec<D> meansAt(D d, const PickedBytes* picks, const uint8_t* line0, const uint8_t* line1,
                                       ptrdiff_t i) {
    if constexpr (sizeof(T) == 4) {
      const auto sum = [&](auto upper, auto lower) HWY_ATTR { return hn::Add(hn::Add(hn::Zero(d), upper), lower); };
      hn::Vec<D> left, right;
      if constexpr (L::elements == 1) {
        const auto at = [&](const uint8_t* line, ptrdiff_t k) HWY_ATTR {
          return hn::LoadU(d, reinterpret_cast<const float*>(line) + 2 * i + k * laneCount<float>);
        };
        const auto first = sum(at(line0, 0), at(line1, 0)), second = sum(at(line0, 1), at(line1, 1));
        left = hn::ConcatEven(d, second, first);
        right = hn::ConcatOdd(d, second, first);
      } else {
        const auto at = [&](const uint8_t* line) HWY_ATTR {
          if constexpr (byTable) return hn::BitCast(d, picks->words<windows>(line, i / 4));
          return blocksFrom(
              d, [&](ptrdiff_t k) HWY_ATTR { return reinterpret_cast<const float*>(line + (i / 4 + k) * 2 * pixel); });
        };
        left = sum(at(line0), at(line1));
        right = sum(at(line0 + pixel), at(line1 + pixel));
      }
      return hn::Mul(hn::Add(hn::Add(hn::Zero(d), left), right), hn::Set(d, 0.25f));
    } else {
      using Wide = std::conditional_t<sizeof(T) == 1, int16_t, int32_t>;
      const Lanes<Wide> dWide;
      const Lanes<std::make_unsigned_t<Wide>> dWords;
      const auto means = [&](ptrdiff_t element) HWY_ATTR {
        const auto pairs = [&](const uint8_t* line) HWY_ATTR { return sumsOfPairs<windows>(picks, line, element); };
        return hn::BitCast(dWide, quarterOf(dWords, hn::Add(pairs(line0), pairs(line1))));
      };
      return packInOrder(d, means(i), means(i + laneCount<Wide>));
    }
  }

  /// An average rounds up, and so does a product.
  template <class D, class V = hn::Vec<D>>
  HWY_INLINE static V quarterOf(D d, V sum) {
    if constexpr (halves == Halves::up) {
      const hn::RebindToSigned<D> di;
      return hn::BitCast(d, hn::MulFixedPoint15(hn::BitCast(di, sum), hn::Set(di, 8192)));
    } else {
      const V odd = hn::And(hn::ShiftRight<2>(sum), hn::Set(d, 1));
      if constexpr (sizeof(T) == 1) return hn::ShiftRight<1>(hn::AverageRound(sum, odd));
      return hn::ShiftRight<2>(hn::Add(sum, hn::Add(odd, hn::Set(d, 1))));
    }
  }

  /// Of integers that are neighbours in x, from an element on.
  template <int windows>
  HWY_INLINE static auto sumsOfPairs(const PickedBytes* picks, const uint8_t* line, ptrdiff_t element) {
    using Words = hwy::UnsignedFromSize<wordBytes>;
    const Lanes<Words> d;
    constexpr int bits = 8 * sizeof(T);
    const ptrdiff_t byte = element * wordBytes;
    const auto sums = [&](auto pairs) HWY_ATTR {
      if constexpr (sizeof(T) == 1)
        return hn::BitCast(d, pairsOfByteProducts<1, 1>(hn::RebindToSigned<decltype(d)>(), pairs));
      const auto words = hn::BitCast(d, pairs);
      return hn::Add(hn::And(words, hn::Set(d, std::numeric_limits<T>::max())), hn::ShiftRight<bits>(words));
    };
    const Lanes<uint8_t> dBytes;
    if constexpr (L::elements == 1) {
      return sums(hn::LoadU(dBytes, line + byte));
    } else if constexpr (!byTable) {
      const auto order = hn::LoadDup128(dBytes, pairsOfBlock<T>.index);
      return sums(hn::TableLookupBytes(hn::LoadU(dBytes, line + byte), order));
    } else if constexpr (sizeof(T) == 1) {
      return sums(picks->vector<windows>(line, byte / 16));
    } else {  // each sample by itself needs fewer windows
      const auto at = [&](const uint8_t* from)
                          HWY_ATTR { return hn::BitCast(d, picks->vector<windows>(from, byte / 16)); };
      return hn::Add(at(line), at(line + pixel));
    }
  }
};

/// Whether each column lies in the middle of two, `middle` from the first one, which no other column has.
inline bool goesByPairs(const Axis& axis, double middle) {
  const double first = axis.start - middle;
  return axis.step == 2 && first >= 0 && first == std::trunc(first) && first + 2.0 * axis.count <= axis.image;
}

/// From the pixel on in which the first position lies.
template <class T, class L, Halves halves>
VemiStatus resizeToHalf(const T* const* src, int srcStep, T* const* dst, int dstStep, int count,
                        const ResizePlan& plan) {
  using Means = MeansOfFour<T, L, halves>;
  const auto firstOf = [](const Axis& axis) { return static_cast<int>(axis.start); };
  const Vemi64s elements = Vemi64s{plan.x.count} * L::elements;
  const ColumnRange range = {firstOf(plan.x), firstOf(plan.x) + 2 * plan.x.count - 1};
  SourceLines upper(range.first, range.columns(), pixelBytes<T, L>, Means::slackOf(elements)), lower = upper;
  Pieces pieces;
  const typename Means::Room room(pieces, elements);
  const auto upperCopy = pieces.add<uint8_t>(upper.bytes()), lowerCopy = pieces.add<uint8_t>(lower.bytes());
  const Scratch scratch(pieces);
  if (!range.fits(pixelBytes<T, L>) || scratch.failed()) return vemiErrMemAlloc;
  const Means across(scratch, room, plan.x.count);
  upper.setCopy(scratch[upperCopy]);
  lower.setCopy(scratch[lowerCopy]);
  for (int n = 0; n < count; ++n) {
    const Image<T> destination = {dst[n], dstStep};
    const Image<const T> source = {src[n], srcStep};
    upper.setSource(source, plan.image);
    lower.setSource(source, plan.image);
    for (int y = 0; y < plan.y.count; ++y) {
      const ptrdiff_t row = firstOf(plan.y) + ptrdiff_t{2} * y;
      across(upper.row(row), lower.row(row + 1), destination.row(y));
    }
  }
  return vemiOk;
}

template <class T, class L>
VemiStatus resizeByAreas(const T* const* src, int srcStep, T* const* dst, int dstStep, int count,
                         const ResizePlan& plan) {
  const Vemi64s elements = Vemi64s{plan.x.count} * L::elements;
  const AreaRange area(plan.x);
  const ColumnRange& range = area.range;
  const Vemi64s lineElements = range.columns() * L::elements;
  Pieces pieces;
  const typename AreaAcross<T, L>::Room room(pieces, elements, area.taps);
  const auto sumsOfRows = pieces.add<float>(lineElements + Vemi64s{area.taps} * L::elements + laneCount<float>);
  const Scratch scratch(pieces);
  if (!range.fits(pixelBytes<float, L>) || scratch.failed()) return vemiErrMemAlloc;
  const AreaAcross<T, L> across(scratch, room, plan.x, range.first, area.taps);
  const auto length = static_cast<ptrdiff_t>(lineElements);
  float* const line = scratch[sumsOfRows];
  std::fill_n(line + length, area.taps * L::elements + laneCount<float>, 0.0f);
  const auto scale = static_cast<float>(plan.xFactor * plan.yFactor);
  for (int n = 0; n < count; ++n) {
    const Image<T> destination = {dst[n], dstStep};
    const Image<const T> source = {src[n] + ptrdiff_t{range.first} * L::elements, srcStep};
    double position = plan.y.start;
    for (int y = 0; y < plan.y.count; ++y, position += plan.y.step) {
      LineOfSums<T> sums(line, length);
      forCovered(position, plan.y.step, plan.y.image,
                 [&](int row, float weight) { sums.add(source.row(row), weight); });
      sums.finish();
      across(line, scale, destination.row(y));
    }
  }
  return vemiOk;
}

// ---- All of them ---------------------------------------------------------------------------------------------------

template <class T, class L>
VemiStatus resizeImages(const T* const* src, int srcStep, T* const* dst, int dstStep, int count,
                        const ResizePlan& plan) {
  using Linear = std::conditional_t<sizeof(T) == 1, ByteStages<L>, FloatStages<LinearFilter, T, L>>;
  const auto by = [&](auto routine) { return routine(src, srcStep, dst, dstStep, count, plan); };
  switch (plan.interpolation) {
    case vemiInterNearest:
      return by(resizeToNearest<T, L>);
    case vemiInterLinear:
      if constexpr (sizeof(T) < 4) {
        constexpr Halves halves = sizeof(T) == 1 ? Halves::up : Halves::toEven;
        if (goesByPairs(plan.x, 0.5) && goesByPairs(plan.y, 0.5)) return by(resizeToHalf<T, L, halves>);
      }
      return by(resizeByStages<Linear, T, L>);
    case vemiInterCubic:
      return by(resizeByStages<FloatStages<CubicFilter, T, L>, T, L>);
    case vemiInterSuper:
      if (goesByPairs(plan.x, 0) && goesByPairs(plan.y, 0)) return by(resizeToHalf<T, L, Halves::toEven>);
      return by(resizeByAreas<T, L>);
    default:
      return by(resizeByStages<FloatStages<LanczosFilter, T, L>, T, L>);
  }
}

}  // namespace vemi::geometry

/// The routine's members of an element type.
#define VEMI_RESIZE_LAYOUT(T, L)                                                                          \
  template VemiStatus vemi::geometry::resizeImages<T, vemi::L>(const T* const*, int, T* const*, int, int, \
                                                               const ResizePlan&);
#define VEMI_RESIZE_TYPE(T) \
  VEMI_RESIZE_LAYOUT(T, C1) VEMI_RESIZE_LAYOUT(T, C3) VEMI_RESIZE_LAYOUT(T, C4) VEMI_RESIZE_LAYOUT(T, AC4)
