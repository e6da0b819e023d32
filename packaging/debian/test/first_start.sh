# A user's first start of the program, without a display; it is ended by the session.
set -euo pipefail
cd
veldrin_home=$HOME/.local/share/veldrin
settings=$HOME/.config/veldrin/registry.txt
rm -f "$settings"
QT_QPA_PLATFORM=offscreen veldrin 2>error &
program=$!
for _ in $(seq 300); do
  [ ! -e "$settings" ] || break
  kill -0 "$program"
  sleep 0.1
done
kill -TERM "$program"
wait "$program"
[ ! -s error ] || { cat error; exit 1; }
for sample in LIST/NX4.RAT LIST/NX4.CMB DAT/DRY.nx4 rollup.wav; do
  [ -w "$veldrin_home/$sample" ] || { echo "$sample is not there"; exit 1; }
done
