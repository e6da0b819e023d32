#!/bin/sh
# The whole tree as clang-format would write it. "format.sh -i" rewrites it instead. Version 14 decides.
cd "$(dirname "$0")/.." || exit 1
formatter=$(command -v clang-format-14 || command -v clang-format) || { echo "clang-format is missing"; exit 1; }
case ${1-} in
  -i) mode=-i ;;
  *) mode='--dry-run -Werror' ;;
esac
for folder in src tests bench; do
  [ ! -d "$folder" ] || find "$folder" \( -name '*.cpp' -o -name '*.h' \) -print0
done | xargs -0 -r -n 20 -P 2 "$formatter" --style=file $mode
