#!/usr/bin/env bash
# Sets up what is needed, builds Kestrella.exe and starts it under Wine: on your display when
# DISPLAY is set, else on a virtual one (Xvfb). Uses $WINEPREFIX when set, otherwise a prefix
# of its own under build-win/, so the Wine prefix in the home folder is never touched unasked. Arguments go to the program.
set -euo pipefail
cd "$(dirname "$0")"
source tools/setup.sh
kes_fixed_layout "$PWD/$(basename "$0")" "$@"

kes_install
kes_locale
kes_build_win

export WINEDEBUG=-all
export WINEPREFIX="${WINEPREFIX:-$PWD/build-win/wineprefix}"
[ -d "$WINEPREFIX/drive_c" ] || wineboot -i >/dev/null 2>&1

if [ -z "${DISPLAY:-}" ]; then
  # Up before any Wine program opens a window: without a server its windows go nowhere.
  kes_xvfb
  trap 'exit 143' TERM INT  # so that the EXIT trap ends the server
  trap 'kill $KES_XVFB_PID 2>/dev/null || true' EXIT
  echo "No display: Kestrella runs on Xvfb $DISPLAY (a picture: DISPLAY=$DISPLAY import -window root shot.png)"
fi
echo "Program folder: build-win/program (kestrella.dat, daten\ and Kestrella.log live there)"
cd build-win/program
LC_ALL=de_DE.UTF-8 wine Kestrella.exe "$@"
