#!/bin/bash
# Prints the functions that vemi.h declares, as a C compiler sees them, sorted by name: their names, or their whole
# prototypes, each on a line.
# usage: list-exports.sh INCLUDE_FOLDER [--prototypes]
set -euo pipefail
export LC_ALL=C

"${CC:-cc}" -E -P -I"$1" "$1/vemi/vemi.h" | tr -s '[:space:]' ' ' | tr ';' '\n' |
  sed -nE 's/__attribute__\(\([^ ]*\)\)\)//; s/^ *(.*\b(vemi[A-Za-z0-9_]+)) *(\(.*\)) *$/\2\t\1\3/p' | sort |
  if [ "${2:-}" = --prototypes ]; then cut -f2; else cut -f1; fi
