#!/usr/bin/env bash
# Builds the Debian package and the portable archive into dist/.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/setup.sh
need_packages "${build_packages[@]}" dpkg-dev file patchelf

# Libraries that every Linux desktop has and that must be its own: the C library, what talks
# to the display, and what reads the system's fonts. (The GL dispatchers go along: the toolkit
# links them, and a school's machine without a graphics driver may lack them.)
system_libraries='^(ld-linux|libc|libm|libdl|librt|libpthread|libresolv|libstdc\+\+|libgcc_s|libX11|libX11-xcb|libxcb|libXau|libXdmcp|libfontconfig|libfreetype|libexpat|libz)\.so'

copy_libraries() { # destination, files...
  local destination=$1 path name
  shift
  ldd "$@" | awk '$2 == "=>" && $3 ~ /^\// { print $3 }' | sort -u | while read -r path; do
    name=$(basename "$path")
    [[ $name =~ $system_libraries ]] && continue
    install -m 644 "$path" "$destination/$name"
    # shellcheck disable=SC2016 # the loader expands it
    patchelf --set-rpath '$ORIGIN' "$destination/$name"
  done
}

# Fonts that a school's machine may lack, each with its licence; the program loads them where
# the system has no better.
copy_fonts() { # destination
  local font
  for font in /usr/share/fonts/truetype/andika/Andika-{Regular,Bold}.ttf \
      /usr/share/fonts/opentype/urw-base35/NimbusMonoPS-{Regular,Bold}.otf; do
    install -D -m 644 "$font" "$1/$(basename "$font")"
  done
  install -m 644 /usr/share/doc/fonts-sil-andika/copyright "$1/Andika-licencia.txt"
  install -m 644 /usr/share/doc/fonts-urw-base35/copyright "$1/NimbusMonoPS-licencia.txt"
}

build_deb() {
  quietly "configurar paquete" cmake -S . -B build/deb -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DPIZARRIN_TESTS=OFF -DCMAKE_INSTALL_PREFIX=/usr \
    ${PIZARRIN_CONTACT+-DPIZARRIN_CONTACT="$PIZARRIN_CONTACT"}
  quietly "compilar paquete" cmake --build build/deb
  (umask 022 && quietly "empaquetar deb" cpack --config build/deb/CPackConfig.cmake -B dist)
  rm -rf dist/_CPack_Packages
}

build_portable() {
  local version folder plugins plugin
  quietly "configurar portatil" cmake -S . -B build/portable -G Ninja \
    -DCMAKE_BUILD_TYPE=Release -DPIZARRIN_TESTS=OFF -DPIZARRIN_LAYOUT=portable
  quietly "compilar portatil" cmake --build build/portable
  version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' build/portable/CMakeCache.txt)
  folder=build/portable/pizarrin-$version
  rm -rf "$folder"
  quietly "instalar portatil" cmake --install build/portable --prefix "$folder" --strip
  plugins=$(qtpaths6 --query QT_INSTALL_PLUGINS)
  mkdir -p "$folder/lib"
  for plugin in platforms/libqxcb.so imageformats/libqjpeg.so \
      platforminputcontexts/libcomposeplatforminputcontextplugin.so; do
    [ -e "$plugins/$plugin" ] || continue
    install -D -m 644 "$plugins/$plugin" "$folder/plugins/$plugin"
    # shellcheck disable=SC2016 # the loader expands it
    patchelf --set-rpath '$ORIGIN/../../lib' "$folder/plugins/$plugin"
  done
  copy_libraries "$folder/lib" "$folder/pizarrin" "$folder/pizarrin-banco" "$folder"/plugins/*/*.so
  printf '[Paths]\nPlugins = plugins\n' >"$folder/qt.conf"
  copy_fonts "$folder/fonts"
  mkdir -p dist
  tar -C build/portable -czf "dist/pizarrin-$version-portatil-$(uname -m).tar.gz" \
    --owner=0 --group=0 "pizarrin-$version"
}

build_deb
build_portable
ls -1 dist
