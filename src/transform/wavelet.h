// The records of wavelet transforms: two filters, in the forms in which their taps are run.
#pragma once

#include <algorithm>
#include <cstddef>

#include "core/record.h"
#include "core/scratch.h"
#include "vemi/transform.h"

namespace vemi::transform {

/// tap[0] * s[first] + tap[1] * s[first + 1] + ...: taps in the order in which they meet pixels.
struct Taps {
  const float* tap = nullptr;
  ptrdiff_t count = 0, first = 0;
};

/// How far taps reach beyond the region, before its first pixel and behind its last one.
struct Reach {
  ptrdiff_t before = 0, behind = 0;
};

/// Forward, c[x] = sum of t[k] * s[2 x + anchor - k]: `all` counts from s[2 x]. `phase` has every second tap of it,
/// from the pixels at even and at odd places of a row that begins with the record's reach. Inverse, s[2 q + p] = sum of
/// t[p + anchor - 1 - 2 e] * c[q + e]: phase[p] counts from c[q].
struct WaveletFilter {
  Taps all, phase[2];
};

/// Columns of a chunk: what a work row has room for beside its reach.
inline constexpr int forwardColumns = 256, inverseColumns = 256;

struct Wavelet {
  int tag;
  int bufSize;
  bool isUsable;  // anchors of 0 in both filters reach to no pixel behind the region's last one
  WaveletFilter low, high;
  Reach reach;                    // of both filters
  ptrdiff_t rowElements, rowGap;  // of a work row; from one to the next, in bytes
  Scratch taps;
};

inline constexpr int forwardC1Tag = 46, inverseC1Tag = 47, forwardC3Tag = 48, inverseC3Tag = 49;

}  // namespace vemi::transform

struct VemiWTFwdSpec_32f_C1R : vemi::transform::Wavelet {};
struct VemiWTFwdSpec_32f_C3R : vemi::transform::Wavelet {};
struct VemiWTInvSpec_32f_C1R : vemi::transform::Wavelet {};
struct VemiWTInvSpec_32f_C3R : vemi::transform::Wavelet {};
