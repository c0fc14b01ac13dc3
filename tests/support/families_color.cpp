#include "support/families.h"

namespace vemi::test {
namespace {

// ---- Luma and chroma ----

// ---- Perceptual and device spaces ----

// ---- Video layouts ----

// ---- Packed 16-bit pixels ----

}  // namespace

std::vector<Family> colorFamilies() {
  return {
      // Luma and chroma

      // Perceptual and device spaces

      // Matrices of the user's

      // Video layouts

      // Orders of channels

      // Packed 16-bit pixels

  };
}

}  // namespace vemi::test
