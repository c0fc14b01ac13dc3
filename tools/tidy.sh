#!/bin/bash
# Runs clang-tidy over the library's sources, as a build compiles them but for what GCC alone understands. It needs
# clang's own omp.h (Debian: libomp-dev).
# usage: tidy.sh BUILD_FOLDER [SOURCE...]
set -euo pipefail
cd "$(dirname "$0")/.."
build=$1
shift
[ $# -gt 0 ] || set -- src/*/*.cpp

mkdir -p "$build/tidy"
sed -E 's/ -m(memcpy-strategy|memset-strategy|move-max|store-max)=[^ ]*| -fno-ipa-ra//g' "$build/compile_commands.json" \
  >"$build/tidy/compile_commands.json"
printf '%s\0' "$@" |
  xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet -p "$build/tidy" \
    2> >(grep -vE 'warnings? (generated|treated)|Suppressed|Use -(header|system)' >&2)
