// Lengths with small factors go through levels of these factors. Others are convolutions of a power of two: as n k =
// (n^2 + k^2 - (k - n)^2) / 2, with c(n) = exp(-pi i n^2 / N), X(k) = c(k) times the sum of x(n) c(n) conj(c(k - n)).

#include "signal/dft_lines.h"

#include <algorithm>
#include <bit>
#include <climits>
#include <iterator>
#include <numeric>
#include <type_traits>

#include "signal/dft_levels.h"

namespace vemi::signal {
namespace {

/// The largest prime factor of what odd divisors from 3 on, in turn up to 149, leave of a length: it is the length
/// itself where nothing was divided.
constexpr int largestFactor = 149;

struct Factors {
  int count = 0;
  int factor[32] = {};
  Vemi64s rest = 1;

  explicit Factors(Vemi64s length) {
    for (; length % 2 == 0; length /= 2) factor[count++] = 2;
    for (int odd = 3; odd <= largestFactor && Vemi64s{odd} * odd <= length; odd += 2) {
      for (; length % odd == 0 && Vemi64s{odd} * odd <= length; length /= odd) factor[count++] = odd;
    }
    rest = length;
  }
};

/// What there is code for, with the arithmetic and the memory traffic of a level for each number.
struct Radix {
  int radix, cost;
};
constexpr Radix radices[] = {{2, 140}, {3, 173}, {4, 160},  {5, 208},  {6, 203},  {7, 260},
                             {8, 195}, {9, 263}, {10, 248}, {12, 243}, {15, 300}, {16, 265}};
constexpr int costOfFactors = 70;

bool isLongPrime(int radix) { return radix > 7 && radix % 2 != 0 && radix != 9 && radix != 15; }

/// The levels of a length. Ahead are those that have no common divisor with the product of those behind them, if that
/// is of use, and behind are large radices: the last level has no factors to multiply by.
struct Radices {
  int radix[32], count = 0, free = 0;  // `free` of them ahead have no factors

  Radices() = default;
  Radices(const int* ascending, int size, Vemi64s length, bool mayPermute) : count(size) {
    std::copy_n(ascending, size, radix);
    while (mayPermute && free < count) {
      int* const end = radix + count;
      int* const next = std::find_if(radix + free, end, [&](int r) { return std::gcd(r, length / r) == 1; });
      if (next == end) break;
      length /= *next;
      std::rotate(radix + free, next, next + 1);
      ++free;
    }
  }
};

/// The cheapest of the products that a length is.
struct CheapestRadices {
  Radices best;

  CheapestRadices(Vemi64s length, bool mayPermute) : length_(length), mayPermute_(mayPermute) {
    const Factors factors(length);
    int primes = 0;
    const auto takePrime = [&](Vemi64s prime) {
      if (prime <= 7) return;
      chosen_[primes++] = static_cast<int>(prime);
      length /= prime;
    };
    takePrime(factors.rest);
    for (int i = 0; i < factors.count; ++i) takePrime(factors.factor[i]);
    search(length, 0, primes, 0);
  }

 private:
  Vemi64s length_;
  bool mayPermute_;
  int chosen_[32], cost_ = INT_MAX;

  void search(Vemi64s rest, size_t from, int depth, int cost) {
    if (cost - costOfFactors * depth >= cost_) return;
    if (rest == 1) {
      const Radices found(chosen_, depth, length_, mayPermute_);
      cost -= costOfFactors * std::min(found.free + 1, depth);
      if (cost < cost_) {
        cost_ = cost;
        best = found;
      }
      return;
    }
    for (size_t i = from; i < std::size(radices); ++i) {
      if (rest % radices[i].radix != 0) continue;
      chosen_[depth] = radices[i].radix;
      search(rest / radices[i].radix, i, depth + 1, cost + radices[i].cost);
    }
  }
};

void setPair(float* pair, Root root) {
  pair[0] = static_cast<float>(root.re);
  pair[1] = static_cast<float>(root.im);
}

template <int points>
HWY_INLINE void shortTransformOfReversed(ColumnGroups::Numbers* z) {
  ColumnGroups::Numbers natural[points];
  unrolled<points>([&](auto n) HWY_ATTR { natural[n] = z[frequencyOf(n, points)]; });
  ShortTransform<points>::run(natural);
  unrolled<points>([&](auto n) HWY_ATTR { z[n] = natural[frequencyOf(n, points)]; });
}

/// The last transforms of `points` numbers, times the filter, and the first of the way back, from places with their
/// bits reversed to natural ones, with real and imaginary parts changed over.
template <int points>
HWY_NOINLINE HWY_FLATTEN void filterEnds(ColumnGroups data, int order, const float* filter) {
  using Numbers = ColumnGroups::Numbers;
  const ColumnGroups::D d;
  for (ptrdiff_t first = 0; first < ptrdiff_t{1} << order; first += points) {
    unrolled<ColumnGroups::vectors>([&](auto k) HWY_ATTR {
      Numbers z[points];
      unrolled<points>([&](auto n) HWY_ATTR { z[n] = data.load(first + n, k); });
      ShortTransform<points>::run(z);
      unrolled<points>([&](auto n) HWY_ATTR {
        const float* const f = filter + 2 * (first + n);
        z[n] = swapped(z[n] * Numbers{hn::Set(d, f[0]), hn::Set(d, f[1])});
      });
      shortTransformOfReversed<points>(z);
      unrolled<points>([&](auto n) HWY_ATTR { data.store(first + n, k, z[n]); });
    });
  }
}

/// The opposite of levelByFour: quarters that are transforms of every fourth number become one.
template <class Store>
HWY_INLINE void joinByFour(ColumnGroups data, const Roots& roots, int order, const Store& store) {
  const ptrdiff_t quarter = ptrdiff_t{1} << (order - 2);
  forFactors<AcrossLines>(roots, order, [&](AcrossLines w, ptrdiff_t j, ptrdiff_t within, auto k) HWY_ATTR {
    auto a = data.load(j, k), b = data.load(j + 2 * quarter, k) * w.power(1, within, k),
         c = data.load(j + quarter, k) * w.power(2, within, k),
         d = data.load(j + 3 * quarter, k) * w.power(3, within, k);
    butterfly(a, b, c, d);
    store(j, 0, k, a);
    store(j, 1, k, c);
    store(j, 2, k, b);
    store(j, 3, k, d);
  });
}

HWY_NOINLINE HWY_FLATTEN void joinsByFour(ColumnGroups data, const Roots& roots, int order, int end) {
  if (order <= end) return;
  const ptrdiff_t groups = ptrdiff_t{1} << order;
  const auto join = [&](ColumnGroups own, int levelOrder) HWY_ATTR {
    const ptrdiff_t quarter = ptrdiff_t{1} << (levelOrder - 2);
    joinByFour(own, roots, levelOrder,
               [&](ptrdiff_t j, int part, auto k, auto z) HWY_ATTR { own.store(j + part * quarter, k, z); });
  };
  if (groups > groupsInCache) {
    for (int i = 0; i < 4; ++i) joinsByFour(data.from(i * groups / 4), roots, order - 2, end);
    join(data, order);
    return;
  }
  for (int own = order - (order - end - 2) / 2 * 2; own <= order; own += 2) {
    for (int i = 0; i < 1 << (order - own); ++i) join(data.from(groups * i >> (order - own)), own);
  }
}

}  // namespace

bool isFactorable(Vemi64s length) {
  const Factors factors(length);
  return factors.count > 0 && factors.rest <= largestFactor;
}

DFTMethod methodOf(Vemi64s length, int longestDirectSum) {
  if (length <= 4) return DFTMethod::few;
  if (std::has_single_bit(static_cast<uint64_t>(length))) return DFTMethod::powerOfTwo;
  if (isFactorable(length)) return DFTMethod::factors;
  return length <= longestDirectSum ? DFTMethod::direct : DFTMethod::chirp;
}

int orderOfChirp(Vemi64s length) { return static_cast<int>(std::bit_width(static_cast<uint64_t>(2 * length - 2))); }

Vemi64s groupsOf(Vemi64s length, DFTMethod method) {
  return method == DFTMethod::chirp ? Vemi64s{1} << orderOfChirp(length) : length;
}

DFTLines::DFTLines(Vemi64s length, int longestDirectSum, DFTEntry entry)
    : length_(static_cast<ptrdiff_t>(length)), method_(methodOf(length, longestDirectSum)) {
  groups_ = static_cast<ptrdiff_t>(groupsOf(length, method_));
  if (method_ == DFTMethod::powerOfTwo || method_ == DFTMethod::chirp) {
    order_ = std::countr_zero(static_cast<size_t>(groups_));
    roots_ = Roots(order_);
    failed_ = roots_.failed();
    if (method_ == DFTMethod::chirp && !failed_) makeChirp();
  } else {
    makeLevels(entry == DFTEntry::permuted);
  }
}

ptrdiff_t DFTLines::entryFrom(int level, ptrdiff_t n) const {
  ptrdiff_t group = 0;
  for (; level < levels_; ++level) {
    const Level& own = level_[level];
    const ptrdiff_t part = own.length / own.radix;
    const bool isFree = own.partInverse != 0;
    group += (isFree ? static_cast<ptrdiff_t>(Vemi64s{n} * own.partInverse % own.radix) : n / part) * part;
    n = isFree ? static_cast<ptrdiff_t>(Vemi64s{n} * own.radixInverse % part) : n % part;
  }
  return group;
}

ptrdiff_t DFTLines::placeOf(ptrdiff_t k) const {
  ptrdiff_t group = 0;
  for (int level = 0; level < levels_; ++level) {
    const Level& own = level_[level];
    const ptrdiff_t part = own.length / own.radix;
    group += frequencyOf(static_cast<int>(k % own.radix), own.radix) * part;
    k = own.partInverse != 0 ? k % part : k / own.radix;
  }
  return group;
}

void DFTLines::makeLevels(bool mayPermute) {
  const CheapestRadices cheapest(length_, mayPermute);
  const Radices& chosen = cheapest.best;
  levels_ = chosen.count;
  const bool isPermuted = chosen.free > 0 && levels_ > 1;
  Pieces pieces;
  const auto places = pieces.add<Vemi32s>(length_), entries = pieces.add<Vemi32s>(isPermuted ? length_ : 0),
             numbers = pieces.add<Vemi32s>(isPermuted ? length_ + SixteenFloats::ahead : 0);
  Piece<float> factors[mostLevels], waves[mostLevels];
  ptrdiff_t part = length_;
  for (int i = 0; i < levels_; ++i) {
    const int r = chosen.radix[i];
    level_[i] = {r, part, 0, 0, nullptr, nullptr};
    part /= r;
    const bool isFree = i < chosen.free || part == 1;
    if (isFree && part > 1) {
      ptrdiff_t inverse = 1;
      while (part % r * inverse % r != 1) ++inverse;
      level_[i].partInverse = inverse;
      level_[i].radixInverse = part - static_cast<ptrdiff_t>((Vemi64s{part} * inverse - 1) / r % part);
    }
    factors[i] = pieces.add<float>(isFree ? 0 : Vemi64s{2} * part * (r - 1));
    waves[i] = pieces.add<float>(isLongPrime(r) ? Vemi64s{2} * (r / 2) * (r / 2) : 0);
  }
  tables_ = Scratch(pieces);
  const Scratch scratch(arrayBytes<float>(Vemi64s{2} * length_));
  failed_ = tables_.failed() || scratch.failed();
  if (failed_) return;

  float* const root = scratch.as<float>();
  for (ptrdiff_t k = 0; k < length_; ++k) setPair(root + 2 * k, rootOfLength(k, length_));
  const auto copyRoot = [&](float* to, Vemi64s k, Vemi64s step) {
    const auto at = static_cast<ptrdiff_t>(k * step % length_);
    to[0] = root[2 * at];
    to[1] = root[2 * at + 1];
  };
  for (int i = 0; i < levels_; ++i) {
    Level& own = level_[i];
    const int r = own.radix;
    part = own.length / r;
    if (i >= chosen.free && part > 1) {
      float* const factor = tables_[factors[i]];
      own.factors = factor;
      for (ptrdiff_t n = 0; n < part; ++n) {
        float* const ofNumber = factor + ptrdiff_t{2} * (r - 1) * entryFrom(i + 1, n);
        for (int k = 1; k < r; ++k) {
          copyRoot(ofNumber + ptrdiff_t{2} * (k - 1), Vemi64s{n} * frequencyOf(k, r), length_ / own.length);
        }
      }
    }
    if (!isLongPrime(r)) continue;
    float* wave = tables_[waves[i]];
    own.waves = wave;
    for (int k = 1; k <= r / 2; ++k) {
      for (int n = 1; n <= r / 2; ++n, wave += 2) {
        copyRoot(wave, Vemi64s{k} * n % r, length_ / r);
        wave[1] = -wave[1];
      }
    }
  }
  for (ptrdiff_t k = 0; k < length_; ++k) tables_[places][k] = static_cast<Vemi32s>(placeOf(k));
  places_ = tables_[places];
  if (!isPermuted) return;
  std::fill_n(tables_[numbers], length_ + SixteenFloats::ahead, 0);
  for (ptrdiff_t n = 0; n < length_; ++n) {
    const ptrdiff_t group = entryFrom(0, n);
    tables_[entries][n] = static_cast<Vemi32s>(group);
    tables_[numbers][group] = static_cast<Vemi32s>(n);
  }
  entries_ = tables_[entries];
  numbers_ = tables_[numbers];
}

void DFTLines::makeChirp() {
  Pieces pieces;
  const auto chirps = pieces.add<float>(Vemi64s{2} * length_), filters = pieces.add<float>(Vemi64s{2} * groups_);
  tables_ = Scratch(pieces);
  Pieces ofDoubles;
  const auto numbers = ofDoubles.add<Root>(groups_), roots = ofDoubles.add<Root>(groups_ / 2);
  const Scratch scratch(ofDoubles);
  failed_ = tables_.failed() || scratch.failed();
  if (failed_) return;

  float *const chirp = tables_[chirps], *const filter = tables_[filters];
  Root *const number = scratch[numbers], *const root = scratch[roots];
  for (ptrdiff_t n = 0; n < groups_; ++n) number[n] = {0, 0};
  for (ptrdiff_t n = 0; n < length_; ++n) {
    const Root c = rootOfLength(Vemi64s{n} * n % (Vemi64s{2} * length_), Vemi64s{2} * length_);
    setPair(chirp + 2 * n, c);
    number[n] = {c.re, -c.im};
    if (n > 0) number[groups_ - n] = number[n];
  }
  // The filter's transform, in double precision, leaves it with its bits reversed.
  for (ptrdiff_t k = 0; k < groups_ / 2; ++k) root[k] = unitRoot(k, order_);
  for (ptrdiff_t half = groups_ / 2; half > 0; half /= 2) {
    for (ptrdiff_t first = 0; first < groups_; first += 2 * half) {
      for (ptrdiff_t j = 0; j < half; ++j) {
        Root &a = number[first + j], &b = number[first + j + half];
        const Root w = root[j * (groups_ / 2 / half)], d = {a.re - b.re, a.im - b.im};
        a = {a.re + b.re, a.im + b.im};
        b = {d.re * w.re - d.im * w.im, d.re * w.im + d.im * w.re};
      }
    }
  }
  const double scale = 1 / static_cast<double>(groups_);
  for (ptrdiff_t k = 0; k < groups_; ++k) setPair(filter + 2 * k, {number[k].re * scale, number[k].im * scale});
  chirp_ = chirp;
  filter_ = filter;
}

template <class From>
void DFTLines::runLevel(int index, ColumnGroups data, const From& from, ptrdiff_t blocks) const {
  const Level& level = level_[index];
  const ptrdiff_t count = level.length / level.radix;
  const auto run = [&](auto radix) {
    if constexpr (std::is_same_v<From, ColumnGroups>) {
      if (count == 1) return lastLevelOf<radix>(data, blocks);
    }
    levelOf<radix>(data, from, count, blocks, level.factors);
  };
  switch (level.radix) {
    case 2:
      return run(std::integral_constant<int, 2>());
    case 3:
      return run(std::integral_constant<int, 3>());
    case 4:
      return run(std::integral_constant<int, 4>());
    case 5:
      return run(std::integral_constant<int, 5>());
    case 6:
      return run(std::integral_constant<int, 6>());
    case 7:
      return run(std::integral_constant<int, 7>());
    case 8:
      return run(std::integral_constant<int, 8>());
    case 9:
      return run(std::integral_constant<int, 9>());
    case 10:
      return run(std::integral_constant<int, 10>());
    case 12:
      return run(std::integral_constant<int, 12>());
    case 15:
      return run(std::integral_constant<int, 15>());
    case 16:
      return run(std::integral_constant<int, 16>());
    default:
      return levelOfPrime(data, from, level.radix, count, blocks, level.factors, level.waves);
  }
}

/// From one level on, in place: of as many blocks at once as the first cache holds.
void DFTLines::runLevels(int first, ColumnGroups data, ptrdiff_t blocks) const {
  if (first == levels_) return;
  const ptrdiff_t length = level_[first].length;
  if (blocks > 1 && blocks * length > groupsInCache) {
    for (ptrdiff_t i = 0; i < blocks; ++i) runLevels(first, data.from(i * length), 1);
    return;
  }
  runLevel(first, data, data, blocks);
  runLevels(first + 1, data, blocks * level_[first].radix);
}

template <class From>
void DFTLines::convolve(ColumnGroups data, const From& from) const {
  using Numbers = ColumnGroups::Numbers;
  const ColumnGroups::D d;
  const auto withChirp = [&](ptrdiff_t n, Numbers z) HWY_ATTR {
    return z * Numbers{hn::Set(d, chirp_[2 * n]), hn::Set(d, chirp_[2 * n + 1])};
  };
  const int end = order_ % 2 == 0 ? 4 : 3;
  const ptrdiff_t quarter = groups_ / 4;
  levelByFour<AcrossLines>(data, roots_, order_, [&](ptrdiff_t n, auto k) HWY_ATTR {
    return n < length_ ? withChirp(n, from.load(n, k)) : Numbers{hn::Zero(d), hn::Zero(d)};
  });
  for (int i = 0; i < 4; ++i) levelsByFour<AcrossLines>(data.from(i * quarter), roots_, order_ - 2, end);
  if (end == 4) {
    filterEnds<16>(data, order_, filter_);
  } else {
    filterEnds<8>(data, order_, filter_);
  }
  for (int i = 0; i < 4; ++i) joinsByFour(data.from(i * quarter), roots_, order_ - 2, end);
  joinByFour(data, roots_, order_, [&](ptrdiff_t j, int part, auto k, Numbers z) HWY_ATTR {
    const ptrdiff_t n = j + part * quarter;
    if (part < 2 && n < length_) data.store(n, k, withChirp(n, swapped(z)));
  });
}

template <class From>
void DFTLines::transformFrom(ColumnGroups data, const From& from) const {
  switch (method_) {
    case DFTMethod::powerOfTwo:
      return transformColumns(
          data, roots_, order_, [&](ptrdiff_t group, auto k) HWY_ATTR { return from.load(group, k); },
          [&](ptrdiff_t place, ptrdiff_t, auto k, auto z) HWY_ATTR { data.store(place, k, z); });
    case DFTMethod::chirp:
      return convolve(data, from);
    default:
      if (levels_ == 0) {
        unrolled<ColumnGroups::vectors>([&](auto k) HWY_ATTR { data.store(0, k, from.load(0, k)); });
      } else {
        runLevel(0, data, from, 1);
        runLevels(1, data, level_[0].radix);
      }
  }
}

void DFTLines::transform(ColumnGroups data) const { transformFrom(data, data); }

void DFTLines::transform(ColumnGroups data, Image<const float> rows, ptrdiff_t apart, bool areInverse) const {
  transformFrom(data, SixteenFloats{rows, apart, areInverse, numbers_});
}

}  // namespace vemi::signal
