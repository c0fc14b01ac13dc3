#!/bin/bash
# In an installation with all levels the loader takes the highest one that the processor has, and a lower one where the
# higher are masked. Skips, with a message, the levels that this processor lacks.
# usage: check-levels.sh PREFIX
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
prefix=$1
loader=/lib64/ld-linux-x86-64.so.2

library=$(find "$prefix" -name libvemi.so -not -path '*glibc-hwcaps*')
libdir=$(dirname "$library")
program=$(mktemp)
trap 'rm -f "$program"' EXIT
"${CC:-cc}" -std=c99 -I"$prefix/include" "$root/tests/consumer/consumer.c" -o "$program" "$library"

# loaded MASK: the libvemi that the loader takes, beneath the library folder
loaded() {
  { LD_DEBUG=libs "$loader" --glibc-hwcaps-mask "$1" --library-path "$libdir" "$program" 2>&1 >/dev/null; } |
    sed -nE "s|.*calling init: $libdir/(.*libvemi.*)|\1|p"
}

check() {
  local got
  got=$(loaded "$1")
  [ "$got" = "$2" ] || { echo "with the levels '$1' the loader takes '$got' instead of '$2'"; exit 1; }
  echo "levels '$1': $got"
}

soname=$(readlink "$library")
check none $soname
mask=none
for level in x86-64-v3 x86-64-v4; do
  mask=$mask:$level
  if "$loader" --help | grep -q "^  $level (supported"; then
    check $mask glibc-hwcaps/$level/$soname
  else
    echo "skipped: this processor is not $level"
  fi
done
