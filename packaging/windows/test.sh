#!/usr/bin/env bash
# Tests the program for Windows under Wine: every test of models and screens, then the archive
# and the installer that build.sh has left in dist/, in real windows.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. scripts/setup.sh
. packaging/windows/setup.sh

# The programs may ask for no more libraries than Windows has had since version 10.
check_imports() {
  local strange
  x86_64-w64-mingw32-objdump -p "$windows_build"/bin/pizarrin{,-banco}.exe |
    sed -n 's/^\tDLL Name: //p' | tr '[:upper:]' '[:lower:]' | sort -u >"$windows_build/imports"
  strange=$(grep -vxFf packaging/windows/imports.txt "$windows_build/imports" || true)
  [ -z "$strange" ] || { echo "not on every Windows: $strange" >&2 && return 1; }
}

# The toolkit's display without windows reads its fonts from one folder: those that stand in for
# the ones of Windows, and the one that the archive brings.
gather_fonts() {
  local file
  rm -rf "$windows_build/fonts"
  mkdir -p "$windows_build/fonts"
  for file in /usr/share/fonts/truetype/{liberation,dejavu,andika}*/*.ttf; do
    ln -sf "$file" "$windows_build/fonts"
  done
}

configure_windows wine wine64 unzip xvfb openbox dbus-daemon dbus-bin at-spi2-core xdotool \
  x11-xkb-utils imagemagick fonts-liberation fonts-dejavu-core fonts-sil-andika
packed=dist/$(package_name)
if ! [ -e "$packed-windows.zip" ] || ! [ -e "$packed-setup.exe" ]; then
  echo "Falta $packed-*: packaging/windows/build.sh lo hace" >&2
  exit 1
fi
build_windows all
check_imports
gather_fonts
export QT_QPA_FONTDIR=$PWD/$windows_build/fonts
quietly "preparar wine" packaging/windows/wine.sh cmd /c ver
rm -rf "$windows_build/errors.txt" "$windows_build/pictures"
# What a test says goes to a debugger else, where there is no console. With the toolkit's own
# patience a function with many rows would end on a slow machine.
WINE_ERRORS=$PWD/$windows_build/errors.txt QT_FORCE_STDERR_LOGGING=1 \
  QTEST_FUNCTION_TIMEOUT=900000 quietly "probar wine" \
  ctest --test-dir "$windows_build" --verbose -j "$(nproc)"
grep -E 'tests passed|^[0-9]+: SKIP' build/probar-wine.log
WINDOW_PLATFORM=windows quietly "recorrer wine" tests/support/on_display.sh \
  packaging/windows/walk.sh \
  "$packed-windows.zip" "$packed-setup.exe" "$windows_build/bin/without_rights.exe" \
  "$windows_build/pictures"
tail -n 1 build/recorrer-wine.log
