// The routine of a resize for elements of 8u.

#include "geometry/resize_kernels.h"

VEMI_RESIZE_TYPE(Vemi8u)
