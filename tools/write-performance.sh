#!/bin/bash
# Puts what a whole run of vemi_bench printed into docs/performance.md, and draws the families' means as
# docs/performance.svg. usage: write-performance.sh OUTPUT_OF_VEMI_BENCH
set -euo pipefail
cd "$(dirname "$0")/.."
output=$1

table=$(mktemp)
trap 'rm -f "$table"' EXIT
sed 's/ *$//' "$output" >"$table"
if ! grep -q '^== all' "$table"; then
  echo "$output: not a whole run" >&2
  exit 1
fi

# The first block of code behind the heading is the run.
awk -v table="$table" '
  /^## A measured run/ { behind = 1 }
  behind && /^```/ && inside { inside = behind = 0 }
  !inside { print }
  behind && /^```/ { inside = 1; while ((getline line < table) > 0) print line }
' docs/performance.md >"$table.md"
mv "$table.md" docs/performance.md

# Bars from 1 to the mean, on a logarithmic axis from 1/2 upwards; one bar for each size.
awk '
  function place(ratio) { return left + (log(ratio < 0.5 ? 0.5 : ratio) / log(2) + 1) * octave }
  function text(x, y, anchor, what) {
    printf "  <text x=\"%.0f\" y=\"%.0f\" text-anchor=\"%s\">%s</text>\n", x, y, anchor, what
  }
  BEGIN {
    left = 190; octave = 110; octaves = 4; bar = 6; gap = 8; top = 56; split("#7a9e3f #1f6f8b #f0a202 #b23a48", colour, " ")
  }
  NR == 2 {
    for (i = 3; i <= NF; ++i) size[i - 2] = $i
    sizes = NF - 2
  }
  /^= / {
    name[++families] = $2
    for (i = 3; i <= NF - sizes; ++i) name[families] = name[families] " " $i
    for (i = 1; i <= sizes; ++i) {
      mean[families, i] = $(NF - sizes + i)
      while (mean[families, i] > 2 ^ (octaves - 1)) ++octaves
    }
  }
  END {
    bottom = top + families * (sizes * bar + gap)
    printf "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%d\" height=\"%d\" font-family=\"sans-serif\"", left + octaves * octave + 60, bottom + 30
    print " font-size=\"12\">"
    print "  <rect width=\"100%\" height=\"100%\" fill=\"white\"/>"
    text(left, 18, "start", "Time of the peer / time of Vemi, geometric mean over the rows of a family")
    for (i = 1; i <= sizes; ++i) {
      printf "  <rect x=\"%d\" y=\"28\" width=\"12\" height=\"10\" fill=\"%s\"/>\n", left + 130 * (i - 1), colour[i]
      text(left + 130 * (i - 1) + 18, 37, "start", size[i])
    }
    for (ratio = 0.5; ratio <= 2 ^ (octaves - 1); ratio *= 2) {
      printf "  <line x1=\"%.0f\" y1=\"%d\" x2=\"%.0f\" y2=\"%d\" stroke=\"%s\"/>\n", place(ratio), top - 8, place(ratio), bottom, ratio == 1 ? "black" : "#ccc"
      text(place(ratio), bottom + 16, "middle", ratio)
    }
    for (f = 1; f <= families; ++f) {
      y = top + (f - 1) * (sizes * bar + gap)
      text(left - 8, y + (sizes + 1) / 2 * bar + 1, "end", name[f])
      for (i = 1; i <= sizes; ++i) {
        from = place(1); to = place(mean[f, i])
        printf "  <rect x=\"%.1f\" y=\"%d\" width=\"%.1f\" height=\"%d\" fill=\"%s\"/>\n", from < to ? from : to, y + (i - 1) * bar, (from < to ? to - from : from - to) + 0.5, bar - 1, colour[i]
      }
    }
    print "</svg>"
  }
' "$table" >docs/performance.svg
