// The records of two-dimensional Fourier transforms of powers of two, and how a call uses a buffer.
#pragma once

#include <cstdint>

#include "core/lanes.h"
#include "core/record.h"
#include "core/scratch.h"
#include "signal/fft.h"
#include "vemi/transform.h"

namespace vemi::transform {

/// What records of floats begin with.
struct FFTOrders {
  int tag, orderX, orderY, hint, bufSize;
};

/// The lines along x and y. Equal orders share a record, and the one of y is null.
struct FFTFloats : FFTOrders {
  RecordPtr<signal::SigFFTSpec_C> complexSpecX, complexSpecY;
  RecordPtr<signal::SigFFTSpec_R> realSpecX, realSpecY;

  ptrdiff_t width() const { return ptrdiff_t{1} << orderX; }
  ptrdiff_t height() const { return ptrdiff_t{1} << orderY; }
};

inline constexpr int complexFFTTag = 25, realFFTTag = 26, integerFFTTag = 29;

/// What the flag of a record makes of one of its directions: both extents at once, rounded once.
inline float scaleOfImage(const signal::FFTLine& line, bool isForward, int orders) {
  const bool isScaled = (isForward ? line.fwdScaled : line.invScaled) != 0;
  if (!isScaled) return 1;
  const int flag = line.fwdScaled == line.invScaled ? 4 : isForward ? 1 : 2;
  return static_cast<float>(signal::fftScale(flag, isForward, orders));
}

/// The first address from here on that is a whole number of the longest vectors.
inline float* alignedToVectors(float* memory) {
  return reinterpret_cast<float*>(reinterpret_cast<char*>(memory) +
                                  -reinterpret_cast<uintptr_t>(memory) % laneAlignment);
}

/// Where a call keeps blocks of 8 columns: within buffers of long columns there is room to align them.
inline float* columnMemory(const Scratch& scratch, int orderY) {
  return orderY < 4 ? scratch.as<float>() : alignedToVectors(scratch.as<float>());
}

}  // namespace vemi::transform

struct VemiFFTSpec_R_32f : vemi::transform::FFTFloats {};
struct VemiFFTSpec_C_32fc : vemi::transform::FFTFloats {};

struct VemiFFTSpec_R_32s {
  int tag, orderX, orderY, hint, bufSize;
  int reserved;  // 0; a record with another number transforms nothing
  vemi::RecordPtr<VemiFFTSpec_R_32f> floats;
};
