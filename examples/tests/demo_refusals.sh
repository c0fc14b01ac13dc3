#!/bin/sh
# demo_refusals.sh DEMO CASES: what the demo cannot work with ends it with exit code 1 and one line that tells why.
set -eu
demo=$1 cases=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
failures=0

# refuse PATTERN ARGUMENT...: the demo, run so, must fail with one line on stderr that holds the pattern.
refuse() {
  pattern=$1
  shift
  code=0
  "$demo" "$@" >told 2>errors || code=$?
  if [ "$code" -ne 1 ] || [ "$(wc -l <errors)" -ne 1 ] || ! grep -q -e "^vemi_demo: .*$pattern" errors; then
    echo "vemi_demo $*: exit code $code, expected 1 and '$pattern', got:"
    cat errors
    failures=$((failures + 1))
  fi
}

mkdir in out folder busy full
"$cases" in
picture=in/rgb8.png
: >empty.png
echo "no picture at all" >text.png
head -c 250 "$picture" >truncated.png
head -c 20 "$picture" >header.png
{ head -c 250 "$picture"; printf '\377\376\375\374\373\372'; tail -c +257 "$picture"; } >damaged.png
mkdir busy/index.html
ln -s /dev/full full/index.html

refuse 'missing.png: No such file' missing.png --out out
refuse 'folder: it is a folder' folder --out out
refuse 'empty.png: the file is empty' empty.png --out out
refuse 'text.png: Not a PNG file' text.png --out out
refuse 'truncated.png: the file ends too early' truncated.png --out out
refuse 'header.png: the file ends too early' header.png --out out
refuse 'damaged.png: ' damaged.png --out out
refuse 'huge: it declares 100000 x 100000 pixels' in/huge --out out
refuse 'cannot make the folder text.png/out: ' "$picture" --out text.png/out
refuse 'cannot make the folder text.png: ' "$picture" --out text.png
refuse 'cannot write busy/index.html' "$picture" --out busy
refuse 'cannot write full/index.html' "$picture" --out full
refuse '--out needs a folder' "$picture" --out
refuse 'unknown option --size' --size 10
refuse 'one picture at a time' "$picture" "$picture"

[ "$(ls out)" = "" ] || { echo "a refused picture left files behind"; exit 1; }
exit $failures
