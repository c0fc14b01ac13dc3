#!/bin/sh
# demo_pictures.sh DEMO CASES: runs the demo on its own scene and on a picture of every kind; each page must be whole.
set -eu
demo=$1 cases=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The page exists, and so does every picture that it shows; their number is the one that the demo told.
whole() {
  told=$(sed -n 's/^\([0-9]*\) pictures; open .*/\1/p' "$work/told")
  shown=$(grep -o '<img src="[^"]*"' "$work/out/index.html" | cut -d '"' -f 2)
  [ "$(echo "$shown" | wc -l)" = "$told" ] || { echo "$1: told of $told pictures, shows another number"; exit 1; }
  for file in $shown; do
    [ -s "$work/out/$file" ] || { echo "$1: $file is missing"; exit 1; }
  done
}

mkdir "$work/in"
"$cases" "$work/in"
for picture in "" "$work"/in/*.png; do
  rm -rf "$work/out"
  "$demo" ${picture:+"$picture"} --out "$work/out" >"$work/told" 2>"$work/errors"
  [ ! -s "$work/errors" ] || { cat "$work/errors"; exit 1; }
  whole "${picture:-scene}"
done
