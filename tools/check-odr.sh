#!/bin/bash
# No name means two things in different files of the library, which no compiler sees and no linker tells: types and
# declarations are compared by GCC's pass at link time, the code of inline functions and templates by its length, without
# optimisation. Compiles the library anew, as build/odr.
set -euo pipefail
cd "$(dirname "$0")/.."
export LC_ALL=C
rm -rf build/odr
cmake --preset odr -DVEMI_PRECOMPILED_HEADERS=ON >/dev/null
cmake --build build/odr -j "$(nproc)" --target vemi_objects
mapfile -t objects < <(find build/odr/CMakeFiles/vemi_objects.dir -name '*.o')
g++ -O0 -r -nostdlib -flto -flinker-output=rel -Werror=odr -Werror=lto-type-mismatch "${objects[@]}" -o build/odr/all.o

readelf -sW "${objects[@]}" | awk '
  /^File:/ { file = $2 }
  $4 == "FUNC" && $5 == "WEAK" && $7 != "UND" {
    ++functions
    if (($8 in size) && size[$8] != $3) {
      print $8, "in", file, "is not that in", first[$8]
      bad = 1
    }
    size[$8] = $3
    first[$8] = file
  }
  END {
    print functions, "inline functions compared"
    exit bad || functions == 0
  }' | c++filt
