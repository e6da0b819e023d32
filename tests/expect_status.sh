#!/bin/sh
# expect_status.sh RUNNER SCRIPT: holds when RUNNER ends with the status that SCRIPT's first line announces,
# "# exit 1" or "# exit 2", and its output holds the text of each line "# says TEXT".
expected=$(sed -n '1s/^# exit \([12]\)[[:space:]]*$/\1/p' "$2")
if [ -z "$expected" ]; then
  echo "$2:1: the first line must be \"# exit 1\" or \"# exit 2\""
  exit 1
fi
output=$("$1" "$2" 2>&1)
status=$?
printf '%s\n' "$output"
if [ "$status" -ne "$expected" ]; then
  echo "$2: expected exit status $expected, found $status"
  exit 1
fi
sed -n 's/^# says //p' "$2" | {
  missing=0
  while IFS= read -r text; do
    case $output in
      *"$text"*) ;;
      *) echo "$2: the output lacks: $text"; missing=1 ;;
    esac
  done
  exit "$missing"
}
