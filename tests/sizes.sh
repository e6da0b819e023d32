#!/bin/sh
# A folder holds 35 source files at most, and a source file 300 lines. One that has to be longer says why in its first
# ten lines, in a comment that begins "Long, because". Scripts lie by window and matter, as many as that has.
files=35
lines=300
cd "$(dirname "$0")/.." || exit 1
sources() { find src tests bench -type f \( -name '*.cpp' -o -name '*.h' \) | LC_ALL=C sort; }
{
  sources | sed 's,/[^/]*$,,' | uniq -c |
    awk -v most=$files '$1 > most { print $2 ": " $1 " files, and " most " at most stand in a folder" }'
  sources | while read -r file; do
    count=$(wc -l < "$file")
    [ "$count" -le $lines ] || head -n 10 "$file" | grep -q '^// Long, because ' ||
      echo "$file: $count lines, and no reason in its head for more than $lines"
  done
} | awk '{ print; wrong++ } END { exit wrong > 0 }'
