#!/bin/bash
# Installs a build and uses it as a stranger would: the headers as C99 to C++20, each by itself, the README's program by
# the pkg-config file and by the README's CMake project, and a C++ program by both.
# usage: check-install.sh BUILD_FOLDER WORK_FOLDER
# From the environment: CC, CXX, CFLAGS, CXXFLAGS, and EMULATOR, by which programs of another processor run.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=$1 work=$2
consumer=$root/tests/consumer
emulator=${EMULATOR:-}
warnings="-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror"
cc="${CC:-cc} ${CFLAGS:-} $warnings"
cxx="${CXX:-c++} ${CXXFLAGS:-} $warnings"

# The tree is moved after it was installed: it must not remember its first place.
rm -rf "$work"
mkdir -p "$work/programs"
log=$work/log
cmake --install "$build" --prefix "$work/first" >"$log"
prefix=$work/second
mv "$work/first" "$prefix"
[ "$(find "$prefix" -name 'libvemi.so*' | wc -l)" = 3 ] || { echo "expected libvemi.so, its SONAME and its file"; exit 1; }

PKG_CONFIG_PATH=$(dirname "$(find "$prefix" -name vemi.pc)")
export PKG_CONFIG_PATH
# pkg-config quotes spaces for a shell.
eval "flags=($(pkg-config --cflags vemi)) libraries=($(pkg-config --libs vemi))"
eval "LD_LIBRARY_PATH=$(pkg-config --variable=libdir vemi)"
export LD_LIBRARY_PATH

# try STANDARD COMPILER SOURCE
try() {
  local program
  program=$work/programs/$1-$(basename "$3")
  $2 -std="$1" "${flags[@]}" "$3" -o "$program" "${libraries[@]}"
  $emulator "$program" >>"$log"
}
for standard in c99 c11; do
  try $standard "$cc" "$consumer/consumer.c"
done
for standard in c++98 c++11 c++20; do
  try $standard "$cxx" "$consumer/consumer.cpp"
done
try c99 "$cc" "$root/examples/quickstart.c"

for header in "$prefix"/include/vemi/*.h; do
  $cc -std=c99 -fsyntax-only -include "$header" "${flags[@]}" -x c - <<<'typedef int not_empty;'
done

unset LD_LIBRARY_PATH
# find_package SOURCE_FOLDER PROGRAM
find_package() {
  cmake -S "$1" -B "$work/cmake-$2" -DCMAKE_PREFIX_PATH="$prefix" >>"$log"
  cmake --build "$work/cmake-$2" >>"$log"
  $emulator "$work/cmake-$2/$2"
}
mkdir "$work/readme"
cp "$root/examples/quickstart.c" "$work/readme"
sed -n '/^```cmake$/,/^```$/{/^```/!p}' "$root/README.md" >"$work/readme/CMakeLists.txt"
find_package "$work/readme" quickstart
find_package "$consumer" consumer
echo "headers, library, pkg-config file and CMake package work from $prefix"
