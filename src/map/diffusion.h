// Error diffusion to several levels, the channels of an image apart from each other: each pixel gets the nearest level
// of its value plus its share of the errors around it, rows from top to bottom, each from left to right.
#pragma once

#include <cstddef>

#include "core/scratch.h"
#include "vemi/map.h"

namespace vemi::map {

/// A block of rows, which its user fills with pixels, 0 for black to 65535 for white, and finds filled with the numbers
/// of their levels. What the last rows leave to those below is kept from block to block.
class Diffusion {
 public:
  static constexpr ptrdiff_t rows = 16;

  /// The type is one of those that diffuse; the levels are 0 to `highest`.
  Diffusion(vemiDitherType type, int channels, ptrdiff_t width, int highest, bool withNoise);

  bool failed() const { return scratch_.failed(); }

  Vemi16u* line(int channel, ptrdiff_t row) const { return lines_ + (channel * rows + row) * length_ + front; }
  /// Which moves the decisions of all channels; there is room for a block of numbers more than the width.
  Vemi16s* noise(ptrdiff_t row) const { return noise_ + row * length_ + front; }

  void run() const;

 private:
  template <class Weights, bool withNoise>
  friend class DiffusedBlock;

  // Each pixel waits for its left neighbour, so rows run side by side, one in each lane, every row `lag` columns behind
  // the row above it, whose errors it needs: three would be enough, but more give stores the time to reach a load.
  static constexpr ptrdiff_t lag = 6, front = (rows - 1) * lag + 6;  // elements ahead of a line
  static_assert(front % 16 == 0);

  int channels_, highest_;
  ptrdiff_t width_, length_;  // of a line with all around it
  Vemi64s aboveLength_;
  Scratch scratch_;
  Vemi16u* lines_;
  Vemi16s* noise_;
  Vemi32s* above_;  // three rows a channel, see AboveRows
  void (*runChannel_)(const Diffusion& all, Vemi16u* line, Vemi32s* above);

  /// Steps until the last row of a block has left its width, and its last sums are made.
  ptrdiff_t steps() const { return (width_ + (rows - 1) * lag + 2 + 7) & -8; }
};

}  // namespace vemi::map
