// Prints a line `name hash` for each exported function. The lines of all builds and team sizes must be those of
// digests.txt.
//
//   vemi_digest            all functions
//   vemi_digest vemiAdd    those whose names begin so

#include "support/digest.h"

#include <cinttypes>
#include <cstdio>

using namespace vemi::test;

int main(int argc, char** argv) {
  const std::string prefix = argc > 1 ? argv[1] : "";
  for (const Export& function : exports()) {
    if (function.name.compare(0, prefix.size(), prefix) != 0 || function.name == "vemiFree") continue;
    std::printf("%s %016" PRIx64 "\n", function.name.c_str(), digestOf(function));
  }
}
