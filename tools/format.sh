#!/bin/bash
# Formats all C and C++ files of the project, or, with --check, names those that are not formatted.
set -euo pipefail
cd "$(dirname "$0")/.."

git ls-files -z --cached --others --exclude-standard -- '*.h' '*.c' '*.cpp' |
  if [ "${1:-}" = --check ]; then
    xargs -0 clang-format --dry-run --Werror
  else
    xargs -0 clang-format -i
  fi
