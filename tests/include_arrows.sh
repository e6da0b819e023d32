#!/bin/sh
# include_arrows.sh QT_ROOM,QT_ROOM... ROOM:BELOW,BELOW...: reads every #include and every forward declaration under
# src/ and prints each that
# - points to a room that its own may not use (a room uses itself, its BELOW and what those use); a file is in the
#   innermost room of the table that its path lies in,
# - declares a type that stands in such a room,
# - names a project header in any other way than "room/unit.h",
# - brings Qt in outside the rooms for it,
# - stands before a source's own header, or
# - closes a circle of files.
qt=$1
shift
cd "$(dirname "$0")/../src" || exit 1
find . \( -name '*.cpp' -o -name '*.h' \) | sed 's,^\./,,' | LC_ALL=C sort | awk -v table="$*" -v qt="$qt" '
function Room(path) {
  while (path ~ /\//) {
    sub(/\/[^\/]*$/, "", path)
    if (path in use) return path
  }
  return "src/ itself"
}
function Fault(text) { print text; faults++ }
function MayUse(room, other) { return index(use[room], " " other " ") }
BEGIN {
  # Whatever its indentation, a friend too, and an enumeration with its width.
  forward = "^[ \t]*(friend )?(struct|class|enum class) [A-Za-z0-9_]+( *: *[A-Za-z0-9_:]+)? *;"
  # Rooms below stand earlier in the table, so what they use is known.
  rows = split(table, row, " ")
  for (r = 1; r <= rows; r++) {
    split(row[r], part, ":")
    use[part[1]] = " " part[1] " "
    count = split(part[2], below, ",")
    for (b = 1; b <= count; b++) use[part[1]] = use[part[1]] use[below[b]]
  }
  count = split(qt, below, ",")
  for (b = 1; b <= count; b++) hasQt[below[b]] = 1
}
{ file[NR] = $0; known[$0] = 1 }
END {
  for (f = 1; f <= NR; f++) FindTypes(file[f])
  for (f = 1; f <= NR; f++) Read(file[f])
  Circles()
  if (faults) { print faults " wrong in the includes"; exit 1 }
}
# Types that a header defines at the left margin, each in its room.
function FindTypes(path,    line, name) {
  if (path !~ /\.h$/) return
  while ((getline line < path) > 0) {
    if (line !~ /^(struct|class|enum class) [A-Za-z0-9_]+/ || line ~ forward) continue
    name = line
    sub(/^(struct|class|enum class) /, "", name)
    sub(/[^A-Za-z0-9_].*$/, "", name)
    home[name] = Room(path)
  }
  close(path)
}
function Read(path,    line, number, place, quoted, name, own, first, folder) {
  folder = Room(path)
  if (!(folder in use)) Fault("src/" path ": " folder " is no room of the table")
  own = path
  if (!sub(/\.cpp$/, ".h", own) || !(own in known)) own = ""
  while ((getline line < path) > 0) {
    number++
    sub(/\r$/, "", line)
    place = "src/" path ":" number ": " line
    if (line ~ forward) {
      name = line
      sub(/^[ \t]*(friend )?(struct|class|enum class) /, "", name)
      sub(/[ :;].*$/, "", name)
      if (name in home && !MayUse(folder, home[name])) Fault(place "   (stands in " home[name] ", which " folder " may not use)")
    }
    if (line !~ /^[ \t]*#[ \t]*include[ \t]*["<]/) continue
    name = line
    quoted = sub(/^[^"<]*"/, "", name)
    sub(/^[^<]*</, "", name)
    sub(/[">].*$/, "", name)
    if (!first++ && own != "" && name != own) Fault(place "   (its own header, \"" own "\", comes first)")
    if (name ~ /^(Qt|Q[A-Z])/) {
      if (!(folder in hasQt)) Fault(place "   (no Qt in " folder ")")
    } else if (quoted && name ~ /\.moc$/ && folder in hasQt) {
      continue
    } else if (quoted && !(name in known)) {
      Fault(place "   (no file src/" name ")")
    } else if (name in known) {
      if (!quoted) Fault(place "   (project headers stand in quotes)")
      if (name ~ /\.cpp$/) Fault(place "   (a source is not included)")
      if (!MayUse(folder, Room(name))) Fault(place "   (" folder " may not use " Room(name) ")")
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
