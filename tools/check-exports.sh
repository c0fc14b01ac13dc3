#!/bin/bash
# The functions that vemi.h declares, the symbols that the library exports, the committed list and the tests' registry
# must be one set, and their prototypes those of the other committed list: no published name disappears and no
# signature changes unnoticed.
# usage: check-exports.sh LIBRARY INCLUDE_FOLDER NAMES PROTOTYPES REGISTRY
set -euo pipefail
export LC_ALL=C
library=$1 include=$2 names=$3 prototypes=$4 registry=$5

list=$(dirname "$0")/list-exports.sh
declared=$("$list" "$include")
bad=0

# compare DECLARED WHAT LINES ADVICE
compare() {
  local difference
  if ! difference=$(diff <(echo "$1") <(echo "$3")); then
    echo "The headers (<) and $2 (>) differ: $4"
    grep '^[<>]' <<<"$difference"
    bad=1
  fi
}

[ -n "$declared" ] || { echo "no declarations found beneath $include"; exit 1; }
compare "$declared" "the library's symbols" "$(nm -D --defined-only --format=posix "$library" | cut -d' ' -f1 | sort)" \
  "declare, define or hide them"
compare "$declared" "$names" "$(cat "$names")" "if the change is meant, run 'make exports'"
compare "$("$list" "$include" --prototypes)" "$prototypes" "$(cat "$prototypes")" "if the change is meant, run 'make exports'"
compare "$declared" "the tests' registry" "$(sed -nE 's/^VEMI_EXPORT\(([A-Za-z0-9_]+),.*/\1/p' "$registry" | sort)" \
  "a declaration begins its line with VEMI_API"
[ $bad = 0 ] && echo "$(wc -l <<<"$declared") functions, the same in headers, library, list and registry"
exit $bad
