#!/bin/bash
# Holds the house of docs/architecture.md: core stands on itself, each header on those ahead of it in the table there;
# signal stands on core; a family on both, on its own folder and on the public headers; nothing includes itself by way
# of others. What depends on the processor stands in core/processor*.h, the lane library in core/lanes.h.
# usage: check-floors.sh [ROOT]
set -euo pipefail
export LC_ALL=C
cd "${1:-$(dirname "$0")/..}"

# The headers of core in the order of the table.
order=$(sed -nE '/^## The ground floor/,/^### /s/^\| `([a-z_]+\.h)` \|.*/\1/p' docs/architecture.md | tr '\n' ' ')

# FILE:LINE INCLUDED, for all that includes by quotes; what is included is named from src or include.
includes=$(cd src && find . -type f -printf '%P\0' | sort -z |
  xargs -0 awk 'match($0, /^ *# *include +"[^"]+"/) { split($0, name, "\""); print FILENAME ":" FNR, name[2] }')
[ -n "$includes" ] || { echo "no source includes anything: $PWD/src"; exit 1; }

floors=$(awk -v order="$order" '
  function folderOf(path) { return path ~ /\// ? substr(path, 1, index(path, "/") - 1) : "" }
  function wrong(why) { print "src/" $1 " includes " $2 ": " why }
  BEGIN { for (i = split(order, names, " "); i > 0; --i) row["core/" names[i]] = i }
  {
    file = $1
    sub(/:.*/, "", file)
    from = folderOf(file)
    to = folderOf($2)
    if (to == "vemi" || to == from && to != "core") next
    if (to == "") wrong("a path begins with its folder")
    else if (from == "core" && to != "core") wrong("core stands on itself alone")
    else if (from == "signal" && to != "core") wrong("signal stands on core")
    else if (to != "core" && to != "signal") wrong("another family is reached through its public functions")
    else if ($2 ~ /^core\/processor_(x86|arm64)/) { if (file != "core/processor.h") wrong("core/processor.h chooses the processor") }
    else if (to == "core" && !($2 in row)) wrong("it has no row in docs/architecture.md")
    else if (from == "core" && file in row && row[file] <= row[$2]) wrong("it stands below in docs/architecture.md")
  }' <<<"$includes")

# The headers of core that the table lacks, and rows without a header.
table=$(diff <(cd src/core && ls -- *.h | grep -vE '^processor_(x86|arm64)' | sort) <(xargs -n 1 <<<"$order" | sort) |
  sed -nE 's|^< (.*)|src/core/\1 has no row in docs/architecture.md|p; s|^> (.*)|docs/architecture.md: no src/core/\1|p') ||
  true

circles=$(sed -E 's/:[0-9]+ / /' <<<"$includes" | tsort 2>&1 >/dev/null |
  sed -E 's|^tsort: -: .*|these include each other in a circle:|; s|^tsort: |  src/|') || true

# lines PATTERN ROOM WHY: what matches outside of comments, in files other than those of the room
lines() {
  find src -type f | sort | grep -vE "$2" | while read -r file; do
    sed 's|//.*||' "$file" | grep -nE "$1" | sed -E "s|^([0-9]+):.*|$file:\1: $3|" || true
  done
}
intrinsics='\b(_mm[0-9]*_\w+|__m(64|128|256|512)[id]?|__builtin_(ia32|aarch64|arm|neon)\w*|v[a-z0-9]+_[suf](8|16|32|64))\b'
intrinsics+='|^ *# *include +<(\w*intrin|arm_\w+|cpuid|fpu_control)\.h>'
assembly='\b(asm|__asm|__asm__)\b *(volatile)? *\('
processors='\bHWY_(TARGET|STATIC_TARGET|ARCH|NATIVE|CAP|SSE|SSSE|AVX|NEON|HAVE)\w*|\b__(x86_64|i386|aarch64|arm|SSE|AVX|FMA|ARM)\w*'
branches='^ *# *(if|elif)'
rooms=$(
  lines "$intrinsics|$assembly|$processors" '^src/core/(processor\w*|lanes)\.h$' \
    "what depends on the processor stands in core/processor*.h"
  lines "$branches" '^src/core/(processor\w*\.h|alloc\.(h|cpp))$' "sources have no branches but the processor's"
  lines '^ *# *include +<hwy/' '^src/core/' "the lane library comes by core/lanes.h"
)

faults=$(printf '%s\n' "$floors" "$table" "$circles" "$rooms" | sed '/^$/d')
[ -z "$faults" ] || { echo "$faults"; exit 1; }
echo "$(wc -l <<<"$includes") includes stand on floors below them"
