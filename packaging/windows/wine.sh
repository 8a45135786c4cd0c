#!/usr/bin/env bash
# Runs a program for Windows under Wine, as on Windows 10, in the folder WINEPREFIX, which it
# makes the first time: one of the build's own unless set. Names of files have accents whatever
# the locale. WINE_ERRORS is a file for what it says on standard error.
set -euo pipefail
prefix=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)/build/windows/wine
export WINEPREFIX=${WINEPREFIX:-$prefix} LC_ALL=C.UTF-8
# No offers to fetch what only other programs need, and no entries in this desktop's menus.
export WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
# Wine keeps the toolkit's settings from programs, unless they are said to be meant for them.
for name in "${!QT_@}"; do
  export "WINE$name=${!name}"
done

if [ ! -e "$WINEPREFIX/system.reg" ]; then
  mkdir -p "$WINEPREFIX"
  wine wineboot --init
  wine reg add 'HKCU\Software\Wine' /v Version /d win10 /f
  wineserver --wait
fi

# Programs that Wine starts behind the first one with windows keep its standard error, and run as
# long as any other: whoever reads that to its end would wait for all.
[ -z "${WINE_ERRORS:-}" ] || exec 2>>"$WINE_ERRORS"
exec wine "$@"
