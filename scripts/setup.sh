# What run and test share; sourced, from the repository's root.

BUILD_PACKAGES=(g++ cmake ninja-build python3)
DESKTOP_PACKAGES=(qt6-base-dev qt6-translations-l10n fonts-liberation fonts-noto-cjk)
TEST_PACKAGES=(libgtest-dev clang libclang-rt-dev mold clang-format git poppler-utils shared-mime-info xdg-utils
  desktop-file-utils appstream libglib2.0-bin mandoc)
PACKAGE_PACKAGES=(dpkg-dev file git)

# quietly LOG COMMAND...: the output goes to LOG and is shown only when the command fails, without the lines
# that merely count steps.
quietly() {
  local log=$1 status=0
  shift
  mkdir -p "$(dirname "$log")"
  "$@" >"$log" 2>&1 || status=$?
  if [ "$status" -ne 0 ]; then
    sed -E '/^\[[0-9]+\/[0-9]+\] /d' "$log" >&2
    echo "failed, status $status: $* (all of it in $log)" >&2
  fi
  return "$status"
}

# need PACKAGE...: installs the Debian packages that are not there yet.
need() {
  local package missing=() apt=(env DEBIAN_FRONTEND=noninteractive apt-get -q)
  command -v dpkg-query >/dev/null || return 0 # Not Debian: CMake tells what it lacks.
  for package in "$@"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)" = installed ] ||
      missing+=("$package")
  done
  [ "${#missing[@]}" -gt 0 ] || return 0
  [ "$(id -u)" -eq 0 ] || apt=(sudo "${apt[@]}")
  echo "Installing ${missing[*]}"
  quietly build/install.log "${apt[@]}" update
  quietly build/install.log "${apt[@]}" install -y --no-install-recommends "${missing[@]}"
}

# build PRESET [TARGET...]: configures where that is due (Ninja itself notices changed lists and new files) and builds.
build() {
  local preset=$1
  local folder=build/$preset
  shift
  if [ ! -f "$folder/build.ninja" ] || [ CMakePresets.json -nt "$folder/build.ninja" ]; then
    quietly "$folder/configure.log" cmake --fresh --preset "$preset"
  fi
  quietly "$folder/build.log" cmake --build --preset "$preset" ${1:+--target "$@"}
}

# source_date: when the source was made, in seconds since 1970: the commit's time; in an unpacked source archive the time
# that all of its files bear. The folder may be somebody else's, as where a container looks at it.
source_date() {
  if [ -e .git ]; then git -c safe.directory='*' log -1 --format=%ct; else stat -c %Y CHANGELOG.md; fi
}
