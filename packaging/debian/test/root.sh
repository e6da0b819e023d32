# What the administrator of a fresh Debian does with the packages; scripts/test-package runs it inside. The log of apt
# is shown only where something fails.
set -euo pipefail
cd /test

say() { echo "  $*"; }
fail() {
  echo "failed: $*" >&2
  exit 1
}
quiet() { "$@" >>/test/log 2>&1 || { tail -30 /test/log >&2; fail "$*"; }; }
# as USER SCRIPT...: a session of a user, with nothing that this one has.
as() {
  local user=$1
  shift
  setpriv --reuid "$user" --regid "$user" --init-groups --reset-env bash "$@" || fail "$user: $*"
}

quiet apt-get update
quiet apt-get install -y --no-install-recommends ./old/veldrin_0.9.0_*.deb
say "0.9.0 is installed with what it depends on, and nothing else"
veldrin --version >/dev/null
for user in rider second; do
  useradd --create-home --shell /bin/bash "$user"
  as "$user" /test/first_start.sh
done
say "it starts for two users, who get the samples"
echo "mine" >/home/rider/.local/share/veldrin/DAT/MINE.nx4
echo "changed by the user" >>/home/rider/.local/share/veldrin/DAT/RAIN.nx4
chown rider: /home/rider/.local/share/veldrin/DAT/MINE.nx4
own() { (cd "/home/$1" && find .local/share/veldrin -type f -print0 | sort -z | xargs -0 md5sum); }
before=$(own rider)

quiet apt-get install -y --no-install-recommends ./new/veldrin_*.deb ./new/veldrin-tools_*.deb
[ "$(dpkg-query -W -f '${Version}' veldrin)" != 0.9.0 ] || fail "it is still the old version"
[ ! -e /usr/share/veldrin/LIST/OLD.RAT ] || fail "a file of the old version is left"
! grep -q 0.9.0 /usr/share/veldrin/DAT/DRY.nx4 || fail "a sample is the old one"
[ "$(own rider)" = "$before" ] || fail "the upgrade touched the user's files"
quiet dpkg --verify veldrin veldrin-tools
[ -z "$(dpkg --verify veldrin veldrin-tools)" ] || fail "files differ from what was packed"
say "upgraded; the user's files are as they were"

# What is recommended comes along where somebody installs the package without asking for less.
read -r -a recommended < <(dpkg-query -W -f '${Recommends}\n' veldrin | sed 's/([^)]*)//g; s/,//g')
quiet apt-get install -y --no-install-recommends "${recommended[@]}" file libglib2.0-bin procps xauth xdotool xvfb
as rider /test/session.sh
say "a window comes up; files are known and open; the guide opens; scripts run"
as second /test/first_start.sh
before=$(own rider)

(dpkg -L veldrin; dpkg -L veldrin-tools) | sort -u >installed
quiet apt-get remove -y veldrin veldrin-tools
while read -r path; do
  [ -d "$path" ] || [ ! -e "$path" ] || fail "$path is left"
done <installed
left=$(find / -xdev \( -path /proc -o -path /test -o -path /home -o -path /tmp -o -path /var/cache/apt \) -prune -o \
  -iname '*veldrin*' -print)
[ -z "$left" ] || fail "left: $left"
! grep -rqs veldrin /usr/share/mime /usr/share/applications || fail "the desktop still knows it"
[ "$(own rider)" = "$before" ] || fail "the removal touched the user's files"
! dpkg-query -W veldrin >/dev/null 2>&1 || fail "dpkg still knows it"
say "removed; nothing is left but the users' files"
