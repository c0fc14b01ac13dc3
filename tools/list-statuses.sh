#!/bin/bash
# What tools/statuses.txt holds: for each operation a line with the statuses that its functions were seen to return,
# each followed by the functions if they are not all of the operation's: types, or types with layout and shape.
# usage: list-statuses.sh INCLUDE_FOLDER OBSERVED, the lines `name status` that vemi_statuses prints
set -euo pipefail
export LC_ALL=C
include=$1 observed=$2
tools=$(dirname "$0")

awk -F'\t' '
  FILENAME == ARGV[1] {
    if (match($0, /vemi(Warn|Err)[A-Za-z0-9]+ = -?[0-9]+/)) {
      split(substr($0, RSTART, RLENGTH), parts, " = ")
      number[++statuses] = parts[2]
      status[statuses] = parts[1]
    }
    next
  }
  FILENAME == ARGV[2] {
    if (!($2 in members)) operation[++operations] = $2
    names[$2, ++members[$2]] = $1
    typeOf[$1] = $3
    shapeOf[$1] = $4
    ++ofType[$2, $3]
    next
  }
  { split($0, seen, " "); returns[seen[1], seen[2]] = 1 }

  # The functions of the operation that return the status; nothing if all do, "-" if none does.
  function which(o, s,    i, n, name, type, count, list, done) {
    for (i = 1; i <= members[o]; ++i) {
      if ((names[o, i], s) in returns) { ++n; ++count[typeOf[names[o, i]]] }
    }
    if (n == 0) return "-"
    if (n == members[o]) return ""
    for (i = 1; i <= members[o]; ++i) {
      name = names[o, i]
      type = typeOf[name]
      if (!((name, s) in returns) || type in done) continue
      if (count[type] == ofType[o, type]) done[type] = 1
      list = list "," type (type in done ? "" : "_" shapeOf[name])
    }
    return "(" substr(list, 2) ")"
  }
  END {
    for (i = 1; i <= operations; ++i) {
      line = operation[i]
      for (k = 1; k <= statuses; ++k) {
        list = which(operation[i], number[k])
        if (list != "-") line = line " " status[k] list
      }
      if (line != operation[i]) print line
    }
  }' "$include/vemi/status.h" <(awk -f "$tools/read-headers.awk" "$include"/vemi/*.h) "$observed" | sort
