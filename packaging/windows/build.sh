#!/usr/bin/env bash
# Builds the program for 64-bit Windows on Debian, with Qt inside, into dist/: an archive that
# runs from wherever it is unpacked, and an installer.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. scripts/setup.sh
. packaging/windows/setup.sh

# The licences of what the program has inside. Texts get the line ends that Windows' oldest
# editor wants.
add_texts() { # folder
  local package
  mkdir -p "$1/licencias"
  for package in qt6-base-dev fonts-sil-andika mingw-w64-x86-64-dev \
      gcc-mingw-w64-x86-64-posix-runtime; do
    cp "/usr/share/doc/$package/copyright" "$1/licencias/$package.txt"
  done
  for licence in LGPL-3 GPL-3; do
    cp "/usr/share/common-licenses/$licence" "$1/licencias/$licence.txt"
  done
  sed -i 's/$/\r/' "$1"/*.txt "$1"/licencias/*.txt
}

# Windows lacks the letters that children learn to read with; the program loads them from here.
add_fonts() { # folder
  local font
  for font in /usr/share/fonts/truetype/andika/Andika-{Regular,Bold}.ttf; do
    install -D -m 644 "$font" "$1/fonts/$(basename "$font")"
  done
}

# What the uninstaller deletes: what the folder has, but the bank.
list_deletions() { # folder
  find "$1" -type f ! -name Problemas3.dat -printf "Delete \"\$INSTDIR/%P\"\n" | tr / \\\\
  find "$1" -mindepth 1 -depth -type d -printf "RMDir \"\$INSTDIR/%P\"\n" | tr / \\\\
}

configure_windows nsis zip fonts-sil-andika
build_windows pizarrin pizarrin-banco
name=$(package_name)
folder=$windows_build/package/$name
archive=$PWD/dist/$name-windows.zip
installer=$PWD/dist/$name-setup.exe

rm -rf "$folder" "$archive" "$installer"
mkdir -p dist
quietly "reunir archivos de windows" cmake --install "$windows_build" --prefix "$folder" --strip
add_texts "$folder"
add_fonts "$folder"
(cd "$windows_build/package" && zip -qrX9 "$archive" "$name")
list_deletions "$folder" >"$windows_build/package/files.nsh"
quietly "hacer instalador de windows" makensis -V2 -NOCD -DFOLDER="$PWD/$folder" \
  -DFILES="$PWD/$windows_build/package/files.nsh" -DINSTALLER="$installer" \
  -DVERSION="${name#Pizarrin-}" -DICON="$PWD/art/pizarrin.ico" -DSIDE="$PWD/art/installer.bmp" \
  packaging/windows/installer.nsi
ls -1 dist/"$name"-*
