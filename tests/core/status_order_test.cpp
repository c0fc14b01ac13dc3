// Bad arguments, of every function that the library exports.

#include <gtest/gtest.h>

#include "support/check.h"

using namespace vemi::test;

TEST(StatusOrder, TheFirstTestThatFailsDecides) {
  for (const Export& function : exports()) {
    if (function.call != nullptr) expectStatusOrder(function);
  }
}
