# A Wine of one's own: its folder, its server, its display; sourced, from the repository's root.

# start_wine FOLDER: makes the folder anew and leaves nothing behind when the script ends.
start_wine() {
  export WINEPREFIX=$1 WINEDEBUG=-all WINEARCH=win64
  # Without these two Wine would ask whether it may fetch its .NET and its browser.
  export WINEDLLOVERRIDES="mscoree=;mshtml="
  unset WAYLAND_DISPLAY QT_QPA_PLATFORM
  trap end_wine EXIT
  [ ! -d "$WINEPREFIX" ] || timeout 60 wineserver -k || true
  rm -rf "$WINEPREFIX"
  mkdir -p "$WINEPREFIX"
  start_display
  # Without a screen Qt takes fonts from one folder only. Wine keeps what begins with QT_ to itself, and hands on what
  # begins with WINEQT_.
  mkdir -p "$WINEPREFIX.fonts"
  ln -sf /usr/share/fonts/truetype/liberation*/LiberationSans-*.ttf /usr/share/fonts/opentype/noto/NotoSansCJK-*.ttc \
    "$WINEPREFIX.fonts"
  export WINEQT_QPA_FONTDIR=Z:$WINEPREFIX.fonts
  timeout 300 wineboot --init >"$WINEPREFIX.log" 2>&1 || {
    echo "Wine does not start ($WINEPREFIX.log)" >&2
    exit 1
  }
  # Wine manages its windows by itself: nothing else would bring them to the front.
  wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d Default /f >>"$WINEPREFIX.log" 2>&1
  wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v Default /d 1280x1024 /f >>"$WINEPREFIX.log" 2>&1
  # A server that stays spares each program its start, and the race with the end of the one before.
  timeout 60 wineserver --wait
  wineserver --persistent
}

# start_display: an X server that nobody sees, by the first number that is free.
start_display() {
  local told
  told=$(mktemp)
  Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$told" >/dev/null 2>&1 &
  XVFB=$!
  for _ in $(seq 100); do
    [ ! -s "$told" ] || break
    sleep 0.1
  done
  DISPLAY=:$(cat "$told")
  export DISPLAY
  rm -f "$told"
  if [ "$DISPLAY" = : ]; then
    echo "Xvfb does not start" >&2
    exit 1
  fi
}

end_wine() {
  timeout 60 wineserver --kill >/dev/null 2>&1 || true
  [ -z "${XVFB:-}" ] || kill "$XVFB" 2>/dev/null || true
}
