// From how many bytes on memory is moved another way. What a call leaves does not depend on these; how long it takes
// does. Measured on a processor with caches of 48 KiB, 1 MiB and 32 MiB.
#pragma once

#include <cstddef>

#include "vemi/types.h"

namespace vemi {

/// Read and written in one call: from here on its destination is streamed past the caches. About half the last one.
inline constexpr Vemi64s streamedTraffic = Vemi64s{17} << 20;

/// The pieces of a copy: the C library leaves its fastest way for lengths of about a mebibyte and more.
inline constexpr ptrdiff_t copyPiece = ptrdiff_t{64} << 10;

/// A fill of so many bytes, in rows of so many, goes faster by copies of its beginning: a long copy takes the C
/// library's path that claims whole lines without reading them.
inline constexpr Vemi64s copiedFill = Vemi64s{4} << 20;
inline constexpr ptrdiff_t copiedFillRow = 4096;
/// The beginning that is copied: about the first cache, and whole pixels of any layout.
inline constexpr ptrdiff_t fillPiece = ptrdiff_t{48} << 10;

}  // namespace vemi
