#!/usr/bin/env bash
# Runs a program for Windows under Wine, in a Wine of the build's own, which it makes the first
# time. Waits until all that the program has started is gone.
set -euo pipefail
prefix=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)/build/windows/wine
export WINEPREFIX=${WINEPREFIX:-$prefix}
# No offers to fetch what only other programs need, and no entries in this desktop's menus.
export WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='

if [ ! -e "$WINEPREFIX/system.reg" ]; then
  mkdir -p "$WINEPREFIX"
  wine wineboot --init
  wineserver=$(command -v wineserver || echo /usr/lib/wine/wineserver)
  "$wineserver" --wait
fi
status=0
wine "$@" || status=$?
exit "$status"
