#!/bin/bash
# Installs the library for every 64-bit x86 processor: the baseline level with headers and packages, the higher levels
# beneath it in glibc-hwcaps, where the loader finds the best one that the processor has.
# usage: install-levels.sh PREFIX   (DESTDIR from the environment, for packagers)
set -euo pipefail
cd "$(dirname "$0")/.."
prefix=${1:?usage: install-levels.sh PREFIX}

for level in x86-64-v2 x86-64-v3 x86-64-v4; do
  build=build/install/$level
  cmake --preset $level -B "$build" -DCMAKE_INSTALL_PREFIX="$prefix" \
    -DVEMI_BUILD_TESTS=OFF -DVEMI_BUILD_EXAMPLES=OFF -DVEMI_WERROR=OFF >/dev/null
  cmake --build "$build" --target vemi
done
cmake --install build/install/x86-64-v2 --strip
cmake --install build/install/x86-64-v3 --strip --component hwcaps
cmake --install build/install/x86-64-v4 --strip --component hwcaps
