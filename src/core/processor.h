// The processor's taste, in one room: what the lane library has no portable name for, or gives as the processor does,
// under the same names and with the same results on every processor. Nothing above this floor has intrinsics, assembly
// or a branch on the processor.
//
//   packHalves(d, lower, upper)  signed lanes saturated to half their width, within each 128-bit block
//   truncated(di, v)             floats to integers of 32 bits, towards zero
//   rounded(di, v)               the same by the rounding mode that is set
//   lesser(a, b), greater(a, b)  a < b ? a : b, a > b ? a : b, also of NaNs and of zeros of both signs
//   ExtendedFloat                numbers with a significand of 64 bits
//   multipliesAndAddsAtOnce      whether the lanes' MulAdd and MulSub round once
//   Rounding, FloatControl       the control of rounding and exceptions, a thread's own
#pragma once

#include "core/lanes.h"

#if HWY_ARCH_X86
#include "core/processor_x86.h"
#elif HWY_ARCH_ARM_A64
#include "core/processor_arm64.h"
#else
#error "this processor's half is to be written"
#endif

namespace vemi {

inline constexpr bool multipliesAndAddsAtOnce = HWY_NATIVE_FMA;

}  // namespace vemi
