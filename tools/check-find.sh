#!/bin/bash
# The page "Find a function" links to each exported function by its task, and to no other.
# usage: check-find.sh INCLUDE_FOLDER STATUSES EXPORTS
set -euo pipefail
export LC_ALL=C
page=$("$(dirname "$0")/find-functions.sh" "$1" "$2")
linked=$(sed '/{#find_type}/,$d' <<<"$page" | grep -oE '@ref vemi[A-Z][A-Za-z0-9_]*' | cut -d' ' -f2 | sort)
if ! difference=$(diff "$3" <(echo "$linked")); then
  echo "$3 (<) and the page \"Find a function\" (>) differ:"
  grep '^[<>]' <<<"$difference"
  exit 1
fi
echo "$(wc -l <<<"$linked") functions, each on the page"
