#!/bin/bash
# Every export gives the same bytes in all of these builds, with teams of one, two and three threads.
# usage: compare-digests.sh PRESET...
set -euo pipefail
cd "$(dirname "$0")/.."

mkdir -p build/digests
reference=
for preset in "$@"; do
  for threads in 1 2 3; do
    digest=build/digests/$preset.$threads
    OMP_NUM_THREADS=$threads OMP_DYNAMIC=false build/"$preset"/tests/vemi_digest >"$digest"
    [ -s "$digest" ] || { echo "$preset printed no digest"; exit 1; }
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
