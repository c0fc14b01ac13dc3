#!/bin/bash
# Every export gives the committed bytes in all of these builds, with teams of one, two and three threads. A build is a
# preset with its program vemi_digest, or a build folder that may have the library alone, for the program of the preset
# ahead.
# usage: compare-digests.sh PRESET [PRESET|BUILD_FOLDER]...
set -euo pipefail
cd "$(dirname "$0")/.."

# digests THREADS LIBRARY COMMAND...: prints its lines at once, because two run side by side
digests() {
  local output status=0
  output=$(LD_LIBRARY_PATH=$2 OMP_NUM_THREADS=$1 OMP_DYNAMIC=false OMP_WAIT_POLICY=passive \
    tools/check-digests.sh "${@:3}" 2>&1) || status=$?
  printf '%s, %s threads:\n%s\n' "$build" "$1" "$output"
  return $status
}

running=0
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
    [ $running -lt 2 ] || { wait -n; running=$((running - 1)); }
    digests $threads "$library" $emulator "$program" &
    running=$((running + 1))
  done
done
while [ $running -gt 0 ]; do wait -n; running=$((running - 1)); done
