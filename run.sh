#!/usr/bin/env bash
# Sets up what is needed, builds Kestrella.exe and starts it under Wine: on your display when
# DISPLAY is set, else on a virtual one (Xvfb). Uses $WINEPREFIX when set, otherwise a prefix
# of its own under build-win/, so ~/.wine is never touched unasked. Arguments go to the program.
set -euo pipefail
cd "$(dirname "$0")"
source tools/setup.sh

kes_install
kes_locale
kes_build_win

export WINEDEBUG=-all
export WINEPREFIX="${WINEPREFIX:-$PWD/build-win/wineprefix}"
[ -d "$WINEPREFIX/drive_c" ] || wineboot -i >/dev/null 2>&1

if [ -z "${DISPLAY:-}" ]; then
  Xvfb :91 -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 &
  xvfb=$!
  trap 'kill $xvfb 2>/dev/null || true' EXIT
  export DISPLAY=:91
  # Wine needs the server up before it starts, or its windows go nowhere.
  for _ in $(seq 100); do [ -e /tmp/.X11-unix/X91 ] && break; sleep 0.1; done
  echo "No display: Kestrella runs on Xvfb :91 (a picture: DISPLAY=:91 import -window root shot.png)"
fi
echo "Program folder: build-win/program (kestrella.dat, daten\ and Kestrella.log live there)"
cd build-win/program
LC_ALL=de_DE.UTF-8 wine Kestrella.exe "$@"
