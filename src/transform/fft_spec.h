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

/// The flag of a record by which one of its directions is scaled; 0 where that is not.
template <class Line>
int scalingFlag(const Line& line, bool isForward) {
  if ((isForward ? line.fwdScaled : line.invScaled) == 0) return 0;
  return line.fwdScaled == line.invScaled ? vemiFftScaleSqrt : isForward ? vemiFftScaleFwd : vemiFftScaleInv;
}

/// What it makes of the direction: both extents at once, rounded once.
inline float scaleOfImage(const signal::FFTLine& line, bool isForward, int orders) {
  const int flag = scalingFlag(line, isForward);
  return flag == 0 ? 1 : static_cast<float>(signal::fftScale(flag, isForward, orders));
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
