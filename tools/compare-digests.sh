#!/bin/bash
# Every export gives the committed bytes in all of these builds, with teams of one, two and three threads. A build is a
# preset with its program vemi_digest, or a build folder that may have the library alone, for the program of the preset
# ahead.
# usage: compare-digests.sh PRESET [PRESET|BUILD_FOLDER]...
set -euo pipefail
cd "$(dirname "$0")/.."

for build in "$@"; do
  case $build in
    */*)
      library=$build
      [ -e "$library/libvemi.so" ] || { echo "no library in $library"; exit 1; }
      ;;
    *)
      library=
      program=build/$build/tests/vemi_digest
      emulator=
      [ "$build/$(uname -m)" != armv8-a/x86_64 ] || emulator="qemu-aarch64-static -L /usr/aarch64-linux-gnu"
      ;;
  esac
  for threads in 1 2 3; do
    echo "$build, $threads threads:"
    LD_LIBRARY_PATH=$library OMP_NUM_THREADS=$threads OMP_DYNAMIC=false tools/check-digests.sh $emulator "$program"
  done
done
