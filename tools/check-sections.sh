#!/bin/bash
# The library does nothing at load and has no global state: none of its objects has, for `load`, an initialiser, a
# finaliser or a symbol that is resolved by running code, and, for `state`, writable data.
# usage: check-sections.sh FILE_WITH_OBJECT_PATHS load|state
set -euo pipefail
export LC_ALL=C
mapfile -t objects <"$1"
[ ${#objects[@]} -gt 0 ] || { echo "no objects in $1"; exit 1; }

# Prints "section flags" of the sections that are not empty.
sections() { readelf -SW "$1" | sed -nE 's/^ *\[ *[0-9]+\] +(\S+) +\S+ +\S+ +\S+ +(\S+) +\S+ +([A-Za-z]+) .*/\1 \2 \3/p' |
  awk '$2 !~ /^0+$/ { print $1, $3 }'; }
symbols() { readelf -sW "$1"; }

offences() {
  case $2 in
    load)
      sections "$1" | awk '$1 ~ /^\.(preinit_array|init_array|fini_array|ctors|dtors|init|fini)/ { print $1 }'
      symbols "$1" | awk '$4 == "IFUNC" { print $8 }'
      ;;
    state)  # .data.rel.ro holds constants with addresses in them; the loader makes it read-only
      sections "$1" | awk '$2 ~ /W/ && $1 !~ /^\.data\.rel\.ro|^\.(preinit|init|fini)_array|^\.[cd]tors/ { print $1 }'
      symbols "$1" | awk '$7 == "COM" { print $8 }'
      ;;
    *) echo "what is $2?" ;;
  esac
}

bad=0
for object in "${objects[@]}"; do
  [ -f "$object" ] || { echo "$object is missing"; exit 1; }
  found=$(offences "$object" "$2")
  [ -z "$found" ] || { echo "$object:" $found; bad=1; }
done
[ $bad = 0 ] && echo "${#objects[@]} objects looked at"
exit $bad
