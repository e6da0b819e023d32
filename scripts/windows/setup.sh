# What the scripts for Windows share; sourced, from the repository's root, after scripts/setup.sh.

WINDOWS_PACKAGES=(g++-mingw-w64-x86-64-posix qt6-base-dev qt6-base-dev-tools qt6-translations-l10n)
WINDOWS_TEST_PACKAGES=(googletest)
WINE_PACKAGES=(wine wine64 xvfb fonts-liberation fonts-noto-cjk)

# find_qt_windows: sets VELDRIN_QT_WINDOWS to the folder of Qt for Windows. The environment names it, or a folder that
# an archive with a folder qtwin was unpacked to; else it is the one that scripts/windows/build-qt has made.
find_qt_windows() {
  local folder
  for folder in ${VELDRIN_QT_WINDOWS:+"$VELDRIN_QT_WINDOWS" "$VELDRIN_QT_WINDOWS/qtwin"} "$PWD/build/qt-windows"; do
    if [ -f "$folder/lib/cmake/Qt6/Qt6Config.cmake" ]; then
      VELDRIN_QT_WINDOWS=$(realpath "$folder")
      export VELDRIN_QT_WINDOWS
      return
    fi
  done
  return 1
}

# why_not_windows: what keeps scripts/windows/test from running here without anything being installed; empty for nothing.
why_not_windows() {
  if ! (find_qt_windows); then
    echo "no Qt for Windows (VELDRIN_QT_WINDOWS)"
  elif ! command -v wine >/dev/null || ! command -v Xvfb >/dev/null; then
    echo "Wine or Xvfb is not installed"
  elif ! command -v x86_64-w64-mingw32-g++-posix >/dev/null; then
    echo "g++-mingw-w64-x86-64-posix is not installed"
  fi
}

# need_qt_windows: find_qt_windows, and ends the script where there is none.
need_qt_windows() {
  find_qt_windows && return
  if [ -n "${VELDRIN_QT_WINDOWS:-}" ]; then
    echo "No Qt for Windows in VELDRIN_QT_WINDOWS ($VELDRIN_QT_WINDOWS): it lacks lib/cmake/Qt6." >&2
  else
    echo "No Qt for Windows: let VELDRIN_QT_WINDOWS name its folder." >&2
  fi
  echo "scripts/windows/build-qt builds one in half an hour, in build/qt-windows, where it is found without being named." >&2
  exit 1
}

# build_windows [TARGET...]: the preset windows, anew where it was configured with another Qt, and beside the programs
# what they are loaded with.
build_windows() {
  local folder=build/windows compiler runtime library
  if [ -f "$folder/CMakeCache.txt" ] &&
    ! grep -qxF "VELDRIN_QT_WINDOWS:PATH=$VELDRIN_QT_WINDOWS" "$folder/CMakeCache.txt"; then
    rm -rf "$folder/CMakeCache.txt" "$folder/CMakeFiles" "$folder/build.ninja"
  fi
  build windows "$@"
  compiler=x86_64-w64-mingw32-g++-posix
  mkdir -p "$folder/bin/platforms" "$folder/bin/translations"
  for runtime in libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll; do
    cp -u "$("$compiler" -print-file-name="$runtime")" "$folder/bin"
  done
  for library in Core Gui Widgets PrintSupport; do
    cp -u "$VELDRIN_QT_WINDOWS/bin/Qt6$library.dll" "$folder/bin"
  done
  cp -u "$VELDRIN_QT_WINDOWS"/plugins/platforms/q{windows,offscreen}.dll "$folder/bin/platforms"
  cp -u /usr/share/qt6/translations/qtbase_ja.qm "$folder/bin/translations"
}
