#!/bin/bash
# Prints the functions that vemi.h declares, sorted, as a C compiler sees them.
# usage: list-exports.sh INCLUDE_FOLDER
set -euo pipefail
export LC_ALL=C

"${CC:-cc}" -E -P -I"$1" "$1/vemi/vemi.h" | grep -oE '\bvemi[A-Za-z0-9_]+ *\(' | tr -d ' (' | sort
