#!/bin/bash
# Installs the library for every 64-bit processor of the machine's kind: the baseline level with headers and packages,
# the higher levels of x86 beneath it in glibc-hwcaps, where the loader finds the best one that the processor has.
# Builds as you are, and becomes root by sudo only to write where you may not.
# usage: install-levels.sh PREFIX   (from the environment: DESTDIR, for packagers; VEMI_WERROR=ON, for tests)
set -euo pipefail
cd "$(dirname "$0")/.."
prefix=$(realpath -ms "${1:?usage: install-levels.sh PREFIX}")

root=()
if ! { mkdir -p "${DESTDIR:-}$prefix" && [ -w "${DESTDIR:-}$prefix" ]; } 2>/dev/null; then
  command -v sudo >/dev/null || { echo "only root may write to $prefix: be root, or take another PREFIX" >&2; exit 1; }
  root=(sudo env DESTDIR="${DESTDIR:-}")
fi

# A compiler cache, where one is used, knows the units as other builds compile them.
precompiled=ON
[ -z "${CMAKE_CXX_COMPILER_LAUNCHER:-}" ] || precompiled=OFF

baseline=x86-64-v2 higher=(x86-64-v3 x86-64-v4)
[ "$(uname -m)" != aarch64 ] || baseline=armv8-a higher=()
for level in $baseline "${higher[@]}"; do
  build=build/install/$level
  cmake --preset $level -B "$build" -DCMAKE_INSTALL_PREFIX="$prefix" \
    -DVEMI_BUILD_TESTS=OFF -DVEMI_BUILD_EXAMPLES=OFF -DVEMI_WERROR="${VEMI_WERROR:-OFF}" \
    -DVEMI_PRECOMPILED_HEADERS=$precompiled >/dev/null
  cmake --build "$build" --target vemi
  rm -f "$build"/install_manifest*.txt  # of an earlier installation, by root
done
"${root[@]}" cmake --install build/install/$baseline --strip
for level in "${higher[@]}"; do
  "${root[@]}" cmake --install build/install/"$level" --strip --component hwcaps
done

# The loader knows its own folders by a cache that only root writes.
if [ -z "${DESTDIR:-}" ] && [ "$("${root[@]}" id -u)" = 0 ]; then "${root[@]}" /sbin/ldconfig; fi
