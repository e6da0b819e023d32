# A user's session on a display: what the desktop knows of the program and of its files, and what opens them.
set -euo pipefail
cd

fail() {
  echo "failed: $*" >&2
  exit 1
}
is() { [ "$2" = "$3" ] || fail "$1 is \"$2\", not \"$3\""; }
kind() { gio info -a standard::content-type "$1" | sed -n 's/.*standard::content-type: //p'; }

[ -n "${DISPLAY:-}" ] || exec xvfb-run -a -s "-screen 0 1280x1024x24" bash "$0"
export XDG_RUNTIME_DIR=$HOME/session
mkdir -p -m 700 "$XDG_RUNTIME_DIR"

# By name and by what the first line says.
samples=/usr/share/veldrin
cp $samples/DAT/DRY.nx4 plan.nx4
cp $samples/DAT/DRY.nx4 plan.of-another-machine
cp $samples/LIST/NX4.RAT a-list
is "the plan's kind" "$(kind plan.nx4)" application/x-veldrin-plan
is "the other plan's kind" "$(kind plan.of-another-machine)" application/x-veldrin-plan
is "the list's kind" "$(kind a-list)" application/x-veldrin-list
is "the named list's kind" "$(kind $samples/LIST/VT2.RAT)" application/x-veldrin-list
for kind in plan list; do
  is "what opens a $kind" "$(xdg-mime query default application/x-veldrin-$kind)" veldrin.desktop
done

# await COMMAND...: until it holds.
await() {
  for _ in $(seq 300); do
    ! "$@" >/dev/null 2>&1 || return 0
    sleep 0.1
  done
  fail "waited in vain for: $*"
}
gone() { ! pgrep -x -u "$USER" veldrin; }

# opens NAME COMMAND...: a window comes up whose title has the name; the program is ended as a session's end does.
opens() {
  local name=$1
  shift
  "$@" &
  await xdotool search --onlyvisible --name "$name"
  [ -z "${during:-}" ] || $during
  pkill -TERM -x -u "$USER" veldrin
  await gone
  wait
}
export USER=${USER:-$(id -un)}
opens "NX4" veldrin
opens "plan.nx4" gio open plan.nx4
opens "plan.of-another-machine" gio open plan.of-another-machine
opens "VT2" gio open $samples/LIST/VT2.RAT

# F1: the page of the guide goes to the user's browser.
cat >browser <<'BROWSER'
#!/bin/sh
echo "$1" >"$HOME/page"
BROWSER
chmod +x browser
export BROWSER=$HOME/browser
press_help() {
  xdotool search --onlyvisible --name "NX4" windowfocus --sync key F1
  await test -s page
  case $(cat page) in
    file:///usr/share/doc/veldrin/guide/*.html) ;;
    *) fail "F1 opened $(cat page)" ;;
  esac
}
during=press_help opens "NX4" veldrin

# Option, Regist Extention, its entry: the user ties the plans of NX4 to the program that is installed, and unties them.
# The information behind it is answered by Enter.
own=$HOME/.local/share
press_entry() {
  xdotool search --onlyvisible --name "NX4" windowfocus --sync
  for key in alt+o Up Right Return Return; do
    sleep 1
    xdotool key $key
  done
}
tie() {
  press_entry
  await grep -qs '^application/x-veldrin-plan=veldrin.desktop$' .config/mimeapps.list
  await grep -qs 'application/x-veldrin-plan:\*.nx4' "$own/mime/globs2"
  [ ! -e "$own/applications/veldrin-plan.desktop" ] || fail "the user got an entry beside the installed one"
}
untie() {
  press_entry
  await test ! -e "$own/mime/packages/veldrin-nx4.xml"
}
during=tie opens "NX4" veldrin
is "the tied plan's kind" "$(kind plan.nx4)" application/x-veldrin-plan
during=untie opens "NX4" veldrin

# The console, its completion and the tools.
veldrin-plan $samples/LIST/NX4.RAT --speed 104,134,163,185,204,216 | grep -q 216
bash -c '. /usr/share/bash-completion/completions/veldrin-plan && complete -p veldrin-plan' >/dev/null
mkdir -p scripts share
ln -sfn $samples share/veldrin
sed 's,^screenshot .*,,' /test/road.script >scripts/road.script
for program in veldrin-script veldrin-window-script; do
  $program scripts/road.script | grep -q '^Form2.Label6.Caption = '
done
