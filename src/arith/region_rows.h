// Who runs the rows of an arithmetic member: the calling thread, or a team.
#pragma once

#include "core/parallel.h"

namespace vemi {

/// For members without a parallel region.
struct CallerRows {
  template <class Row>
  static void run(int height, bool /*small*/, const Row& row) {
    rowsSerially(height, row);
  }
};

/// For members with one: an image that its threshold calls small stays in the calling thread.
struct TeamRows {
  template <class Row>
  static void run(int height, bool small, const Row& row) {
    if (small) {
      rowsSerially(height, row);
    } else {
      rowsInTeam(height, row);
    }
  }
};

}  // namespace vemi
