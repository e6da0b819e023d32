#!/bin/sh
# include_arrows.sh FOLDER:BELOW,BELOW...: reads every #include under src/ and prints each that
# - points to a folder that its own may not use (a folder uses itself, its BELOW and what those use),
# - names a project header in any other way than "folder/unit.h",
# - brings Qt in outside desktop/,
# - stands before a source's own header, or
# - closes a circle of files.
cd "$(dirname "$0")/../src" || exit 1
find . \( -name '*.cpp' -o -name '*.h' \) | sed 's,^\./,,' | LC_ALL=C sort | awk -v table="$*" '
function Folder(path) { return path ~ /\// ? substr(path, 1, index(path, "/") - 1) : "src/ itself" }
function Fault(text) { print text; faults++ }
BEGIN {
  # Folders below stand earlier in the table, so what they use is known.
  rows = split(table, row, " ")
  for (r = 1; r <= rows; r++) {
    split(row[r], part, ":")
    use[part[1]] = " " part[1] " "
    count = split(part[2], below, ",")
    for (b = 1; b <= count; b++) use[part[1]] = use[part[1]] use[below[b]]
  }
}
{ file[NR] = $0; known[$0] = 1 }
END {
  for (f = 1; f <= NR; f++) Read(file[f])
  Circles()
  if (faults) { print faults " wrong in the includes"; exit 1 }
}
function Read(path,    line, number, place, quoted, name, own, first, folder) {
  folder = Folder(path)
  if (!(folder in use)) Fault("src/" path ": " folder " is no folder of the table")
  own = path
  if (!sub(/\.cpp$/, ".h", own) || !(own in known)) own = ""
  while ((getline line < path) > 0) {
    number++
    sub(/\r$/, "", line)
    if (line !~ /^[ \t]*#[ \t]*include[ \t]*["<]/) continue
    place = "src/" path ":" number ": " line
    name = line
    quoted = sub(/^[^"<]*"/, "", name)
    sub(/^[^<]*</, "", name)
    sub(/[">].*$/, "", name)
    if (!first++ && own != "" && name != own) Fault(place "   (its own header, \"" own "\", comes first)")
    if (name ~ /^(Qt|Q[A-Z])/) {
      if (folder != "desktop") Fault(place "   (Qt stands in desktop/ alone)")
    } else if (quoted && name ~ /\.moc$/ && folder == "desktop") {
      continue
    } else if (quoted && !(name in known)) {
      Fault(place "   (no file src/" name ")")
    } else if (name in known) {
      if (!quoted) Fault(place "   (project headers stand in quotes)")
      if (name ~ /\.cpp$/) Fault(place "   (a source is not included)")
      if (!index(use[folder], " " Folder(name) " ")) Fault(place "   (" folder " may not use " Folder(name) ")")
      includes[path] = includes[path] " " name
    }
  }
  close(path)
  if (own != "" && !first) Fault("src/" path ": does not include its own header")
}
# Takes away, again and again, the files that include none that is left; what stays leads into circles.
function Circles(    f, i, count, name, free, left, went, path) {
  for (f = 1; f <= NR; f++) left[file[f]] = 1
  do {
    went = 0
    for (f = 1; f <= NR; f++) {
      if (!(file[f] in left)) continue
      free = 1
      count = split(includes[file[f]], name, " ")
      for (i = 1; i <= count; i++) if (name[i] in left) free = 0
      if (free) { delete left[file[f]]; went = 1 }
    }
  } while (went)
  for (f = 1; f <= NR; f++) {
    if (!(file[f] in left) || file[f] !~ /\.h$/) continue
    path = file[f]
    while (path in left) {
      delete left[path]
      chain = chain path " -> "
      count = split(includes[path], name, " ")
      for (i = 1; i <= count; i++) if (name[i] in left || index(" " chain, " " name[i] " ")) { path = name[i]; break }
    }
    Fault("src/: a circle: " chain path)
    return
  }
}
'
