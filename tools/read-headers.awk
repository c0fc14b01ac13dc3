# What the public headers say of each function, for scripts about all of them: a line of fields with tabs between them,
#   name  operation  type  layout and shape  header  subject of the header  group  title  words
# The group is the one whose page describes the function, the title that of the group or of its part (@name). The words
# are those of the comments around the function, from where they speak of statuses: vemiErr..., vemiWarn..., and null,
# size and step, which status.h explains.

function told(text,    words, word) {
  if (!match(text, /[Ss]tatus(es)?(\*\*|, in the order)|@return/)) return ""
  text = substr(text, RSTART)
  while (match(text, /vemi(Err|Warn)[A-Za-z]+|[Nn]ull|[Ss]ize|[Ss]tep/)) {
    word = substr(text, RSTART, RLENGTH)
    words = words " " (word ~ /^vemi/ ? word : tolower(word))
    text = substr(text, RSTART + RLENGTH)
  }
  return words " "
}

# The rest of the line behind a command, and of the next line if the title goes on there.
function titleBehind(text, command) {
  text = substr(text, index(text, command) + length(command))
  sub(/\n *\*( *\n.*| *@.*|\/.*)/, "", text)
  gsub(/\n *\* */, " ", text)
  gsub(/^ +| +$/, "", text)
  return text
}

function endOfComment(    title) {
  if (comment ~ /@\{/) {
    ++depth
    group[depth] = group[depth - 1]
    titles[depth] = titles[depth - 1]
    if (comment ~ /@defgroup/) {
      title = titleBehind(comment, "@defgroup")
      group[depth] = title
      sub(/ .*/, "", group[depth])
      titles[depth] = substr(title, length(group[depth]) + 2)
      if (depth == 1) subject = titles[depth]
    } else if (comment ~ /@name/) {
      titles[depth] = titleBehind(comment, "@name")
    }
    words[depth] = words[depth - 1] told(comment)
    alone = ""
  } else if (comment ~ /@}/) {
    --depth
    alone = ""
  } else {
    alone = told(comment)
  }
}

FNR == 1 {
  if (depth != 0) exit 1  # a group has no end
  header = FILENAME
  sub(/.*\//, "", header)
  alone = ""
}
/^ *\/\*\*/ { comment = ""; inside = 1 }
inside { comment = comment "\n" $0 }
inside && /\*\// { inside = 0; endOfComment() }

/^VEMI_API / {
  if (!match($0, /vemi[A-Za-z0-9_]+\(/)) exit 1
  name = substr($0, RSTART, RLENGTH - 1)
  operation = name
  type = shape = ""
  if (match(name, /_[0-9]+[usf]c?([0-9]+[usf]c?)?(_|$)/)) {
    operation = substr(name, 1, RSTART - 1)
    type = substr(name, RSTART + 1, RLENGTH - 1)
    sub(/_$/, "", type)
    shape = substr(name, RSTART + RLENGTH)
  }
  print name "\t" operation "\t" type "\t" shape "\t" header "\t" subject "\t" group[depth] "\t" titles[depth] "\t" \
    words[depth] alone
}
