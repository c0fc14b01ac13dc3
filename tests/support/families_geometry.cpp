// Geometry.

#include "support/families.h"

namespace vemi::test {
namespace {

// ---- Another size ---------------------------------------------------------------------------------------------------

// ---- Affine warps ---------------------------------------------------------------------------------------------------

// ---- Perspective and bilinear warps ---------------------------------------------------------------------------------

// ---- Maps and mirrors -----------------------------------------------------------------------------------------------

}  // namespace

std::vector<Family> geometryFamilies() {
  return {
      // Another size

      // Affine warps

      // Perspective and bilinear warps

      // Maps and mirrors

  };
}

}  // namespace vemi::test
