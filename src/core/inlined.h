// Lambdas that are inlined wherever they are called: what HWY_INLINE is to functions. A kernel stands twice in a row's
// loop, for the blocks and for the last one; a part of it that the compiler left outside would be a call in each block,
// and make its constants anew.
#pragma once

#define VEMI_INLINED __attribute__((always_inline))
