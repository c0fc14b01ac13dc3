#!/bin/bash
# Writes the reference's page "Find a function": all functions by task, by type and layout, and by status, from the
# headers and the list of statuses. Each name stands there as a link. A function of the list that no header declares,
# and one that returns a status and is not in the list, end it with a failure.
# usage: find-functions.sh INCLUDE_FOLDER STATUSES
set -euo pipefail
export LC_ALL=C
include=$1 list=$2
tools=$(dirname "$0")

awk -F'\t' '
  FILENAME == ARGV[1] {
    if (match($0, /vemi(Warn|Err)[A-Za-z0-9]+ = -?[0-9]+/)) {
      split(substr($0, RSTART, RLENGTH), parts, " = ")
      status[++statuses] = parts[1]
      value[parts[1]] = parts[2]
      meaning[parts[1]] = $0
      gsub(/.*\/\*\*< *| *\*\/.*/, "", meaning[parts[1]])
    }
    next
  }
  FILENAME == ARGV[2] { readFunction(); next }
  { readStatuses() }

  function readFunction(    layout) {
    name[++functions] = $1
    operationOf[$1] = $2
    type[$1] = $3
    shape[$1] = $4
    if (!($2 in group)) {
      operation[++operations] = $2
      subject[$2] = $6
      group[$2] = $7
      title[$2] = $8
    }
    members[$2] = members[$2] " " $1
    ++count[$2]
    layout = $3 == "" ? "" : $4
    sub(/Sfs$/, "", layout); sub(/R$/, "", layout); sub(/I$/, "", layout); sub(/M$/, "", layout); sub(/^I/, "", layout)
    if (!(($3, layout) in works)) {
      layouts[$3] = layouts[$3] " " layout
      if (!($3 in seenType) && $3 != "") types[++typeCount] = $3
      seenType[$3] = 1
    }
    if (!(($3, layout, $2) in seen)) works[$3, layout] = works[$3, layout] ", " link($1, short($2))
    seen[$3, layout, $2] = 1
  }

  # A line of the list: an operation, and statuses with the functions if they are not all.
  function readStatuses(    words, n, i, at, which, parts, k, all, m, j) {
    n = split($0, words, " ")
    if (!(words[1] in group)) stop("no header has " words[1] ", which the list of statuses names")
    for (i = 2; i <= n; ++i) {
      at = index(words[i], "(")
      which = at ? substr(words[i], at + 1, length(words[i]) - at - 1) : ""
      words[i] = at ? substr(words[i], 1, at - 1) : words[i]
      if (!(words[i] in value)) stop("status.h has no " words[i] ", which the list of statuses names")
      returning[words[i]] = returning[words[i]] " " words[1]
      only[words[i], words[1]] = which
      total[words[i]] += at ? 0 : count[words[1]]
      m = split(members[words[1]], all, " ")
      k = split(which, parts, ",")
      for (j = 1; j <= k; ++j) {
        found = 0
        for (f = 1; f <= m; ++f) if (parts[j] == type[all[f]] || parts[j] == type[all[f]] "_" shape[all[f]]) ++found
        if (!found) stop("no header has " words[1] "_" parts[j] ", which the list of statuses names")
        total[words[i]] += found
      }
    }
    listed[words[1]] = 1
  }
  function stop(why) { print why >"/dev/stderr"; failed = 1; exit 1 }

  function short(operation) { return substr(operation, 5) }
  function link(name, text) { return "@ref " name " \"" text "\"" }
  function page(operation) { return "@ref " group[operation] " \"" short(operation) "\"" }

  # What a title says behind the names that it begins with.
  function task(title) {
    sub(/^vemi[^:]*: /, "", title)
    gsub(/\*/, "\\*", title)
    return title ~ /^vemi/ ? "" : title
  }
  # A line for each type.
  function membersOf(operation,    all, n, i, t, kinds, kind, line) {
    n = split(members[operation], all, " ")
    for (i = 1; i <= n; ++i) {
      t = type[all[i]]
      if (!(t in line)) {
        kind[++kinds] = t
        line[t] = t == "" ? "" : "**" t "**"
      }
      line[t] = line[t] " " link(all[i], t == "" ? all[i] : shape[all[i]] == "" ? t : shape[all[i]])
    }
    for (i = 1; i <= kinds; ++i) t = i == 1 ? line[kind[1]] : t "<br>" line[kind[i]]
    return t
  }
  function byTask(    i, o, lastSubject, lastTask) {
    print "# By task {#find_task}\n"
    for (i = 1; i <= operations; ++i) {
      o = operation[i]
      if (subject[o] != lastSubject) print "\n## " subject[o] "\n\n| vemi... | what it is about | functions, by type |\n|---|---|---|"
      print "| " page(o) " | " (title[o] == lastTask && subject[o] == lastSubject ? "" : task(title[o])) " | " membersOf(o) " |"
      lastSubject = subject[o]
      lastTask = title[o]
    }
  }
  # Types of one element first, then what leads from one type to another.
  function byType(    i, k, n, parts, order) {
    print "\n# By type and layout {#find_type}\n"
    print "Which operations have functions of a type and a layout; each links to its first one. Where source and destination"
    print "differ, both are told, source first. C3C and C4C are one channel of interest of three or four.\n"
    n = split("8u 8s 16u 16s 32u 32s 32f 64s 64f 16sc 32sc 32fc", parts, " ")
    for (i = 1; i <= n; ++i) if (parts[i] in layouts) { order = order " " parts[i]; done[parts[i]] = 1 }
    for (i = 1; i <= n; ++i) for (k = 1; k <= typeCount; ++k) {
      if (!(types[k] in done) && index(types[k], parts[i]) == 1) { order = order " " types[k]; done[types[k]] = 1 }
    }
    for (k = 1; k <= typeCount; ++k) if (!(types[k] in done)) order = order " " types[k]
    n = split(order, types, " ")
    print "| type | layout | vemi... |\n|---|---|---|"
    for (i = 1; i <= n; ++i) {
      typeCell = "**" types[i] "**"
      split("", parts)
      k = split(layouts[types[i]], parts, " ")
      if ((types[i], "") in works) row(types[i], "")
      for (j = 1; j <= k; ++j) row(types[i], parts[j])
    }
    row("", "")
  }
  function row(type, layout) {
    if (!((type, layout) in works)) return
    print "| " typeCell " | " layout " | " substr(works[type, layout], 3) " |"
    typeCell = ""
  }
  function some(status, o,    which) {
    which = only[status, o]
    gsub(/,/, " ", which)
    return ", " page(o) (which == "" ? "" : " (" which ")")
  }
  function byStatus(    i, k, n, s, o, cell, wide) {
    print "\n# By status {#find_status}\n"
    print "What functions were seen to return by a program that gives each good arguments, every bad one, and no memory; a test"
    print "holds the descriptions against it. vemiOk is returned by all but vemiDrawText, which does"
    print "nothing, and " silent ", which have no status. In brackets: the functions, if not all of the operation.\n"
    print "| status | value | meaning | vemi... |\n|---|---|---|---|"
    for (i = 1; i <= statuses; ++i) {
      s = status[i]
      if (!(s in total)) continue
      wide = total[s] > functions / 2
      cell = ""
      for (k = 1; k <= operations; ++k) {
        o = operation[k]
        if (!wide && (s, o) in only) cell = cell some(s, o)
        if (wide && o in listed && !((s, o) in only)) cell = cell ", " page(o)
        if (wide && only[s, o] != "") partly[s] = partly[s] some(s, o)
      }
      if (wide) cell = "all but " substr(cell, 3) (partly[s] == "" ? "" : "; of some only these: " substr(partly[s], 3))
      else cell = substr(cell, 3)
      print "| @ref " s " | " value[s] " | " meaning[s] " | " cell " |"
    }
  }
  END {
    if (failed) exit 1
    for (i = 1; i <= operations; ++i) {
      if (operation[i] in listed) continue
      if (operation[i] !~ /^vemi(Malloc|Free|GetLibVersion)$/) stop(operation[i] " is not in the list of statuses")
      silent = silent (silent == "" ? "" : ", ") operation[i]
    }
    print "# Find a function {#find}\n"
    print "All " functions " of them: [by task](@ref find_task), [by type and layout](@ref find_type), [by status](@ref find_status).\n"
    byTask()
    byType()
    byStatus()
  }' "$include/vemi/status.h" <(awk -f "$tools/read-headers.awk" "$include"/vemi/*.h) "$list"
