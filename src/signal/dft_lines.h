// Discrete Fourier transforms of any length, of eight lines side by side in lanes: columns of an image, or rows that
// were transposed.
//
//   X(k) = sum of x(n) exp(-2 pi i n k / N), n = 0 to N - 1, unscaled; for the other sign, callers change over real and
//   imaginary parts at both ends
//
// Memory has a group for each number: Groups<8>, 8 real parts and 8 imaginary parts, vector by vector.
//
//   const DFTLines lines(1080);
//   if (lines.failed()) return vemiErrMemAlloc;
//   ...                                       // lines.groups() groups of 16 floats
//   data.store(lines.entry(n), ...)           // number n
//   lines.transform(data);                    // in place
//   data.load(lines.place(k), ...)            // frequency k
#pragma once

#include "core/image.h"
#include "core/scratch.h"
#include "signal/fft_columns.h"
#include "signal/roots.h"

namespace vemi::signal {

/// Primes up to here are direct sums, and longer ones are chirps; in real lines, the second.
inline constexpr int longestDirect = 150, longestDirectReal = 180;

/// Composite, and without a prime factor above 149.
bool isFactorable(Vemi64s length);

/// How lines of a length are transformed, from the length alone.
enum class DFTMethod { few, powerOfTwo, factors, direct, chirp };
DFTMethod methodOf(Vemi64s length, int longestDirectSum = longestDirect);

/// The order of the power of two that a chirp is convolved in: at least 2 N - 1.
int orderOfChirp(Vemi64s length);

/// Groups that transform() works in; more than the length for chirps.
Vemi64s groupsOf(Vemi64s length, DFTMethod method);

/// Where numbers are put before a transform: number n in group n; or where factors without a common divisor need no
/// multiplications in between, which is faster and more exact.
enum class DFTEntry { inOrder, permuted };

class DFTLines {
 public:
  DFTLines() = default;
  explicit DFTLines(Vemi64s length, int longestDirectSum = longestDirect, DFTEntry entry = DFTEntry::inOrder);

  bool failed() const { return failed_; }
  ptrdiff_t length() const { return length_; }
  ptrdiff_t groups() const { return groups_; }

  /// Of powers of two.
  bool isPowerOfTwo() const { return method_ == DFTMethod::powerOfTwo; }
  const Roots& roots() const { return roots_; }
  int order() const { return order_; }

  /// In place. What the groups behind number N - 1 hold is of no account.
  void transform(ColumnGroups data) const;

  /// The same of rows of 8 floats, and 8 more that lie `apart` floats behind the first ones: 16 real columns, of which
  /// two become one complex number each, or the real and the imaginary parts of 8 complex columns; changed over where
  /// `areInverse` says so.
  void transform(ColumnGroups data, Image<const float> rows, ptrdiff_t apart, bool areInverse) const;

  /// Where number n is put.
  HWY_INLINE ptrdiff_t entry(ptrdiff_t n) const { return entries_ != nullptr ? entries_[n] : n; }

  /// Where frequency k stands afterwards.
  HWY_INLINE ptrdiff_t place(ptrdiff_t k) const {
    return places_ != nullptr ? places_[k] : method_ == DFTMethod::powerOfTwo ? bitsReversed(k, order_) : k;
  }

 private:
  static constexpr int mostLevels = 20;

  /// `radix` numbers a radix-th of `length` apart are combined and multiplied by powers of w = exp(-2 pi i / length).
  /// Where the radix and that part of the length have no common divisor, number n is n / part modulo the radix of the
  /// ones combined and n / radix modulo the part of what they are parts of, and nothing is multiplied.
  struct Level {
    int radix;
    ptrdiff_t length;
    ptrdiff_t partInverse, radixInverse;  // of each other, modulo the other one; or 0
    const float* factors;  // for j = 0, 1, ...: the factors of the results 1, 2, ... as they are stored; or null
    const float*
        waves;  // of long primes: cos and sin of 2 pi i k / radix for i = 1 to radix / 2, for k = 1 to radix / 2
  };

  ptrdiff_t length_ = 0, groups_ = 0;
  DFTMethod method_ = DFTMethod::few;
  int order_ = 0;  // of the power of two, or of the chirp's
  int levels_ = 0;
  bool failed_ = false;
  Level level_[mostLevels] = {};
  Scratch tables_;
  Roots roots_;
  const Vemi32s *places_ = nullptr, *entries_ = nullptr, *numbers_ = nullptr;  // the last two are each other's inverse
  const float *chirp_ = nullptr, *filter_ = nullptr;  // pairs; the filter with its bits reversed

  void makeLevels(bool mayPermute);
  ptrdiff_t entryFrom(int level, ptrdiff_t n) const;
  ptrdiff_t placeOf(ptrdiff_t k) const;
  void makeChirp();
  template <class From>
  void transformFrom(ColumnGroups data, const From& from) const;
  template <class From>
  void runLevel(int index, ColumnGroups data, const From& from, ptrdiff_t blocks) const;
  void runLevels(int first, ColumnGroups data, ptrdiff_t blocks) const;
  template <class From>
  void convolve(ColumnGroups data, const From& from) const;
};

}  // namespace vemi::signal
