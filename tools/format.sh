#!/bin/bash
# Formats all C and C++ files of the project, or, with --check, names those that are not formatted, and what the
# formatter has torn.
set -euo pipefail
cd "$(dirname "$0")/.."

files() { git ls-files -z --cached --others --exclude-standard -- "$@"; }

if [ "${1:-}" != --check ]; then
  files '*.h' '*.c' '*.cpp' | xargs -0 clang-format -i
  exit
fi
files '*.h' '*.c' '*.cpp' | xargs -0 clang-format --dry-run --Werror

# What the formatter breaks in tables, lists and examples of the manual goes on at the margin: such a line is torn.
torn=$(files 'include/*.h' | xargs -0 awk '
  FNR == 1 || /^ \*$/ || !/^ \* / { indented = 0; next }
  /^ \*  / || /^ \* (- |@param|@return)/ { indented = 1; next }
  indented && !/^ \* @/ { print FILENAME ":" FNR ": torn off the line before it" }
  { indented = 0 }')
[ -z "$torn" ] || { echo "$torn"; exit 1; }
