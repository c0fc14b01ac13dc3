#!/bin/bash
# What each export leaves has the digest that is committed: a change of bytes shows in review.
# usage: check-digests.sh [EMULATOR...] PROGRAM   (by an absolute path, or from the project's folder)
set -euo pipefail
cd "$(dirname "$0")/.."
committed=tests/digest/digests.txt

if ! difference=$(diff "$committed" <("$@")); then
  echo "The committed digests (<) and those of this build (>) differ: if the change is meant, run 'make digests'"
  grep '^[<>]' <<<"$difference" | head -40
  exit 1
fi
# Every exported function has its line, or the comparison would be silent about it; only vemiFree gives nothing to hash.
missing=$(LC_ALL=C comm -23 <(grep -vx vemiFree tools/exports.txt) <(cut -d' ' -f1 "$committed" | LC_ALL=C sort -u))
[ -z "$missing" ] || { echo "not in the digest:" $missing; exit 1; }
echo "$(wc -l <"$committed") digests are the committed ones"
