// The routine of a resize for elements of 32f.

#include "geometry/resize_kernels.h"

VEMI_RESIZE_TYPE(Vemi32f)
