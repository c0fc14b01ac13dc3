// Text drawing has a place in the interface and no operation behind it.

#include "vemi/core.h"

VemiStatus vemiDrawText_8u_C3R(int, int, int, int, int, int, int, int, int) { return vemiWarnNoOperation; }
