#!/bin/bash
# Each function that a header declares was held against a reference by a test, or fits a line of the list of those that
# have none: a pattern and the reason. The tests have written the names into files of a folder, which is emptied for
# their next run.
# usage: check-references.sh HEADER FOLDER LIST
set -euo pipefail
export LC_ALL=C
header=$1 folder=$2 list=$3

declared=$(sed -nE 's/^VEMI_API [^(]*\b(vemi[A-Za-z0-9_]+)\(.*/\1/p' "$header" | sort)
held=$(find "$folder" -type f -exec cat {} + | sort -u)
find "$folder" -type f -delete

# excused NAME: sets `reason`
excused() {
  local pattern
  while read -r pattern reason; do
    # shellcheck disable=SC2053
    if [[ $1 == $pattern && -n $reason ]]; then return 0; fi
  done <"$list"
  return 1
}

bad=0 count=0
for name in $declared; do
  if grep -qx "$name" <<<"$held"; then
    count=$((count + 1))
    if excused "$name"; then
      echo "$name has a reference, and the list says why not: $reason"
      bad=1
    fi
  elif ! excused "$name"; then
    echo "$name: no test holds it against a reference"
    bad=1
  fi
done
echo "$count of $(wc -l <<<"$declared") functions of $(basename "$header") are held against a reference"
exit $bad
