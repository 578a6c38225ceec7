#!/usr/bin/env bash
# Sets up what is needed, builds both trees and runs every suite: unit and contract tests
# natively (against the fakes), the contract tests under Wine (against the real API), and
# the end-to-end tests of the real program under Wine and Xvfb.
set -euo pipefail
cd "$(dirname "$0")"
source tools/setup.sh

kes_install
kes_locale
kes_build_native
kes_build_win

echo "== native: unit and contract tests against the fakes"
ctest --test-dir build-native --output-on-failure --no-tests=error -j2

echo "== Windows build under Wine: contract tests against the real API, end-to-end tests"
export WINEDEBUG=-all
export WINEPREFIX="$PWD/build-win/test-prefix"
[ -d "$WINEPREFIX/drive_c" ] || wineboot -i >/dev/null 2>&1
if [ -z "${DISPLAY:-}" ]; then
  Xvfb :92 -screen 0 1280x1024x24 >/dev/null 2>&1 &
  xvfb=$!
  trap 'kill $xvfb 2>/dev/null || true; wineserver -k 2>/dev/null || true' EXIT
  export DISPLAY=:92
  # Wine needs the server up before it starts, or its windows go nowhere.
  for _ in $(seq 100); do [ -e /tmp/.X11-unix/X92 ] && break; sleep 0.1; done
fi
ctest --test-dir build-win --output-on-failure --no-tests=error
