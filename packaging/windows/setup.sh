# shellcheck shell=bash
# Shared by build.sh and test.sh: installs what is missing, builds Qt for Windows unless the
# cache has it, and configures the build. Sourced, after scripts/setup.sh.

windows_packages=(g++ cmake ninja-build dpkg-dev g++-mingw-w64-x86-64-posix qt6-base-dev
  qt6-translations-l10n)
windows_build=build/windows

package_name() { # what the archive and the installer are called, but for their ends
  sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=/Pizarrin-/p' "$windows_build/CMakeCache.txt"
}

configure_windows() { # packages that the caller needs too
  local toolkit fresh=()
  need_packages "${windows_packages[@]}" "$@"
  toolkit=$(packaging/windows/toolkit.sh folder)
  [ -e "$toolkit/complete" ] ||
    echo "Compilo Qt para Windows; solo esta vez, y puede durar una hora: $toolkit"
  quietly "compilar Qt para Windows" packaging/windows/toolkit.sh build
  # What is remembered of another toolkit would be found before this one.
  grep -qsF "$toolkit/" "$windows_build/CMakeCache.txt" || fresh=(--fresh)
  # Debian 13 would leave the plug-ins out, which a static toolkit has nowhere else: without them
  # no window comes up.
  quietly "configurar windows" cmake ${fresh+"${fresh[@]}"} -S . -B "$windows_build" -G Ninja \
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_TOOLCHAIN_FILE="$toolkit/lib/cmake/Qt6/qt.toolchain.cmake" \
    -DQT_CHAINLOAD_TOOLCHAIN_FILE="$PWD/packaging/windows/toolchain.cmake" \
    -DCMAKE_CROSSCOMPILING_EMULATOR="$PWD/packaging/windows/wine.sh" \
    -DQT_SKIP_AUTO_PLUGIN_INCLUSION=OFF \
    ${cmake_options+"${cmake_options[@]}"}
}

build_windows() { # targets
  local target arguments=()
  for target in "$@"; do
    arguments+=(--target "$target")
  done
  quietly "compilar windows" cmake --build "$windows_build" ${arguments+"${arguments[@]}"}
}
