// Window functions of the signal layer, in place: each element is multiplied by its weight. Both are symmetric. They
// return vemiErrNullPtr for a null pointer, then vemiErrSize for a length below 3.
#pragma once

#include "vemi/status.h"
#include "vemi/types.h"

namespace vemi::signal {

/// A triangle: 0 at both ends, 2 k / (len - 1) at element k of the first half.
VemiStatus sigWinBartlett_32f_I(Vemi32f* pSrcDst, int len);

/// 0.54 - 0.46 cos(2 pi k / (len - 1)) at element k, by a recurrence, whose error grows with the square of the length.
VemiStatus sigWinHamming_32f_I(Vemi32f* pSrcDst, int len);

}  // namespace vemi::signal
