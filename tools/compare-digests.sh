#!/bin/bash
# Every export gives the same bytes in all of these builds, with teams of one, two and three threads. A build is a preset
# with its program vemi_digest, or a build folder that may have the library alone, for the program of the preset ahead.
# usage: compare-digests.sh PRESET [PRESET|BUILD_FOLDER]...
set -euo pipefail
cd "$(dirname "$0")/.."

mkdir -p build/digests
reference=
for build in "$@"; do
  case $build in
    */*)
      library=$build
      [ -e "$library/libvemi.so" ] || { echo "no library in $library"; exit 1; }
      ;;
    *)
      library=
      program=build/$build/tests/vemi_digest
      ;;
  esac
  for threads in 1 2 3; do
    digest=build/digests/${build//\//-}.$threads
    LD_LIBRARY_PATH=$library OMP_NUM_THREADS=$threads OMP_DYNAMIC=false "$program" >"$digest"
    [ -s "$digest" ] || { echo "$build printed no digest"; exit 1; }
    if [ -z "$reference" ]; then
      reference=$digest
    elif ! diff "$reference" "$digest" >build/digests/difference; then
      echo "$reference (<) and $digest (>) differ:"
      head -40 build/digests/difference
      exit 1
    fi
  done
done
# Every exported function has its line, or the comparison would be silent about it; only vemiFree gives nothing to hash.
missing=$(LC_ALL=C comm -23 <(grep -vx vemiFree tools/exports.txt) <(cut -d' ' -f1 "$reference" | LC_ALL=C sort -u))
[ -z "$missing" ] || { echo "not in the digest:" $missing; exit 1; }
echo "$(wc -l <"$reference") digests are equal in $* with 1, 2 and 3 threads"
