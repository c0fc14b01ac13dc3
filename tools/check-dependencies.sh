#!/bin/bash
# At run time the library needs the C library, the math library and the OpenMP runtime, and nothing else.
# usage: check-dependencies.sh LIBRARY SONAME
set -euo pipefail
export LC_ALL=C
library=$1 soname=$2

dynamic=$(readelf -dW "$library")
needed=$(sed -nE 's/.*\(NEEDED\).*\[(.*)\]/\1/p' <<<"$dynamic")
echo "needs:" $needed
if foreign=$(grep -vxE 'libc\.so\.6|libm\.so\.6|libgomp\.so\.1|ld-linux(-x86-64|-aarch64)?\.so\.[12]' <<<"$needed"); then
  echo "not allowed:" $foreign
  exit 1
fi
grep -q "(SONAME).*\[$soname\]" <<<"$dynamic" || { echo "the SONAME is not $soname"; exit 1; }
