// The routine of a resize for elements of 16u.

#include "geometry/resize_kernels.h"

VEMI_RESIZE_TYPE(Vemi16u)
