#!/usr/bin/env bash
# Installs what is missing, builds the program and its tests, optimised (GCC) and with the
# sanitizers (Clang), and runs every test in both; the optimised ones of screens in real windows too,
# and with a screen reader.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. scripts/setup.sh

cmake_options=()
if [ -n "${CI:-}" ]; then
  cmake_options=(-DPIZARRIN_WERROR=ON)
fi

run_tests() { # test preset
  quietly "probar $1" ctest --preset "$1" --no-tests=error -j "$(nproc)"
  echo "Pruebas ($1):"
  grep -A 3 'tests passed' "build/probar-$1.log"
}

need_packages "${build_packages[@]}" clang libclang-rt-dev xvfb openbox xdotool dbus-daemon dbus-bin at-spi2-core \
  orca speech-dispatcher python3-gi gir1.2-atspi-2.0
for preset in release asan; do
  build_preset "$preset"
  run_tests "$preset"
done
run_tests windows
run_tests orca # last, on a machine that does nothing else: a reader falls behind on a busy one
