// The records of two-dimensional Fourier transforms of any size.
#pragma once

#include "core/record.h"
#include "signal/dft.h"
#include "transform/fft_spec.h"
#include "vemi/transform.h"

namespace vemi::transform {

/// What records of floats begin with.
struct DFTSizes {
  int tag, width, height, hint, bufSize;
};

/// The lines along x and y. Equal lengths share a record, and the one of y is null; but for the complex columns of real
/// images, which are always there.
struct DFTFloats : DFTSizes {
  RecordPtr<signal::SigDFTSpec> complexSpecX, complexSpecY, realSpecX, realSpecY;

  ptrdiff_t count() const { return ptrdiff_t{1} * width * height; }
};

inline constexpr int complexDFTTag = 27, realDFTTag = 28, integerDFTTag = 30;

/// What the flag of a record makes of one of its directions: both extents at once, rounded once.
inline float scaleOfImage(const signal::SigDFTSpec& line, bool isForward, ptrdiff_t count) {
  const int flag = scalingFlag(line, isForward);
  return flag == 0 ? 1 : static_cast<float>(signal::dftScale(flag, isForward, static_cast<double>(count)));
}

/// Where lines that do not fit the stack have their groups: buffers that must hold them have room to align them.
inline float* groupsIn(const Scratch& scratch, const signal::DFTLines& lines) {
  return lines.groups() <= signal::groupsOnStack ? scratch.as<float>() : alignedToVectors(scratch.as<float>());
}

}  // namespace vemi::transform

struct VemiDFTSpec_R_32f : vemi::transform::DFTFloats {};
struct VemiDFTSpec_C_32fc : vemi::transform::DFTFloats {};

struct VemiDFTSpec_R_32s {
  int tag, width, height, hint, bufSize;
  int reserved;  // 0; a record with another number transforms nothing
  vemi::RecordPtr<VemiDFTSpec_R_32f> floats;
};
