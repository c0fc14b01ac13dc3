#!/bin/bash
# The functions that vemi.h declares, the symbols that the library exports, the committed list and the tests' registry
# must be one set. The list keeps a published name from disappearing unnoticed.
# usage: check-exports.sh LIBRARY INCLUDE_FOLDER LIST REGISTRY
set -euo pipefail
export LC_ALL=C
library=$1 include=$2 list=$3 registry=$4

declared=$("$(dirname "$0")/list-exports.sh" "$include")
bad=0

# compare WHAT NAMES ADVICE
compare() {
  local difference
  if ! difference=$(diff <(echo "$declared") <(echo "$2")); then
    echo "The headers (<) and $1 (>) differ: $3"
    grep '^[<>]' <<<"$difference"
    bad=1
  fi
}

[ -n "$declared" ] || { echo "no declarations found beneath $include"; exit 1; }
compare "the library's symbols" "$(nm -D --defined-only --format=posix "$library" | cut -d' ' -f1 | sort)" \
  "declare, define or hide them"
compare "$list" "$(cat "$list")" "if the change is meant, run 'make exports'"
compare "the tests' registry" "$(sed -nE 's/^VEMI_EXPORT\(([A-Za-z0-9_]+),.*/\1/p' "$registry" | sort)" \
  "a declaration begins its line with VEMI_API"
[ $bad = 0 ] && echo "$(wc -l <<<"$declared") functions, the same in headers, library, list and registry"
exit $bad
