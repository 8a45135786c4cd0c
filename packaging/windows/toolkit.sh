#!/usr/bin/env bash
# Qt for Windows as static libraries, from the distribution's own source package, built once
# and kept in a cache folder.
#   toolkit.sh folder    says where they are, or will be
#   toolkit.sh build     builds them there, unless they are there already
set -euo pipefail
toolchain=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)/toolchain.cmake
cache=${PIZARRIN_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/pizarrin}

options=(
  -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF -DINPUT_opengl=no
  -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF
  # The source package lacks its header; classes are laid out without it.
  -DFEATURE_tabletevent=OFF
)
for feature in sql network dbus xml printsupport concurrent vulkan direct2d1_1 zstd icu glib \
    system_zlib system_pcre2 system_png system_jpeg system_freetype system_harfbuzz \
    system_doubleconversion system_libb2 gif ico style_windowsvista style_windows11; do
  options+=("-DFEATURE_$feature=OFF")
done
for feature in testlib png jpeg freetype harfbuzz; do
  options+=("-DFEATURE_$feature=ON")
done

# The tools that run here come from the distribution: the source must be of their version.
version=$(dpkg-query -W -f '${source:Version}' qt6-base-dev)
compiler=$(dpkg-query -W -f '${Version}' g++-mingw-w64-x86-64-posix)
recipe=$(sha256sum <<<"$compiler ${options[*]}" | cut -c -12)
folder=$cache/qt-$version-$recipe
work=$folder.work

# The machine's own archives, as archives of sources.
list_sources() {
  local keyring=/usr/share/keyrings/debian-archive-keyring.gpg option=
  [ ! -e "$keyring" ] || option="[signed-by=$keyring] "
  apt-get indextargets --format "deb-src $option\$(REPO_URI) \$(RELEASE) \$(COMPONENT)" \
    'Created-By: Packages' 'Origin: Debian' | sort -u
}

# With a list of sources beside the machine's own, which is neither read nor changed.
fetch_source() {
  local apt
  mkdir -p apt/lists/partial
  list_sources >apt/sources.list
  [ -s apt/sources.list ] || { echo "Falta la lista de paquetes: sudo apt-get update" && exit 1; }
  apt=(apt-get -q -o Dir::Etc::SourceList="$PWD/apt/sources.list"
    -o Dir::Etc::SourceParts=/dev/null -o Dir::State::Lists="$PWD/apt/lists"
    -o Dir::Cache="$PWD/apt" -o APT::Sandbox::User="$(id -un)")
  "${apt[@]}" update
  "${apt[@]}" source --download-only "qt6-base=$version"
  rm -rf apt
  dpkg-source --extract ./*.dsc extracted
  mv extracted source # only a whole one has that name
}

# Goes on where an earlier one was cut short: what is there was made of the same source with the
# same options.
build() {
  rm -rf "$folder" "$work/extracted"
  mkdir -p "$work"
  cd "$work"
  [ -d source ] || fetch_source
  cmake -S source -B build -G Ninja -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
    -DCMAKE_INSTALL_PREFIX="$folder" -DQT_HOST_PATH=/usr \
    -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake" \
    "${options[@]}"
  cmake --build build
  cmake --install build --strip
  rm -rf "$work"
  touch "$folder/complete"
}

case ${1:-} in
  folder) echo "$folder" ;;
  build) [ -e "$folder/complete" ] || build ;;
  *) sed -n '2,/^[^#]/s/^# \{0,1\}//p' "${BASH_SOURCE[0]}" >&2; exit 2 ;;
esac
