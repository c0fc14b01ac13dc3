#!/bin/bash
# The statuses that functions were seen to return are those of the committed list, and those that their headers tell: no
# function returns what its description does not speak of, and no description speaks of what none of its functions
# returns.
# usage: check-statuses.sh VEMI_STATUSES INCLUDE_FOLDER LIST
set -euo pipefail
export LC_ALL=C
program=$1 include=$2 list=$3
tools=$(dirname "$0")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
bad=0

"$program" >"$work/observed"
"$tools/list-statuses.sh" "$include" "$work/observed" >"$work/list"
if ! diff "$list" "$work/list" >"$work/difference"; then
  echo "$list (<) and what functions return (>) differ: if the change is meant, run 'make statuses'"
  grep '^[<>]' "$work/difference"
  bad=1
fi

awk -F'\t' '
  FILENAME == ARGV[1] {
    if (match($0, /vemi(Warn|Err)[A-Za-z0-9]+ = -?[0-9]+/)) {
      split(substr($0, RSTART, RLENGTH), parts, " = ")
      status[parts[2]] = parts[1]
    }
    next
  }
  FILENAME == ARGV[2] {
    group[$1] = $7
    words[$1] = $9
    count = split($9, told, " ")
    for (i = 1; i <= count; ++i) if (told[i] ~ /^vemi/) tells[$7, told[i]] = 1
    next
  }
  {
    split($0, seen, " ")
    name = status[seen[2]]
    if (name == "") next  # vemiOk
    returned[group[seen[1]], name] = 1
    word = name == "vemiErrNullPtr" ? " null " : name == "vemiErrSize" ? " size " : name == "vemiErrStep" ? " step " : ""
    if (!index(words[seen[1]], " " name " ") && (word == "" || !index(words[seen[1]], word))) {
      if (!untold[group[seen[1]], name]++) first[group[seen[1]], name] = seen[1]
    }
  }
  END {
    for (pair in untold) {
      split(pair, parts, SUBSEP)
      print parts[1] " does not tell that " first[pair] " and " untold[pair] - 1 " others return " parts[2]
    }
    for (pair in tells) {
      split(pair, parts, SUBSEP)
      if (!(pair in returned)) print parts[1] " tells of " parts[2] ", which none of its functions returns"
    }
  }' "$include/vemi/status.h" <(awk -f "$tools/read-headers.awk" "$include"/vemi/*.h) "$work/observed" | sort >"$work/wrong"
[ ! -s "$work/wrong" ] || { cat "$work/wrong"; bad=1; }

[ $bad = 0 ] && echo "$(cut -d' ' -f1 "$work/observed" | uniq | wc -l) functions return what the list and the headers tell"
exit $bad
