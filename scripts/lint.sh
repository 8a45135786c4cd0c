#!/usr/bin/env bash
# lint.sh [FILE…]: clang-tidy (.clang-tidy) and clazy (level 1) on sources of src/, all when none
# is named; shellcheck on every script. Stops at the first kind of fault, with all of that kind.
# The sources are looked at joined (join_sources.py): one by one they take many times as long.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/setup.sh
. scripts/setup.sh

need_packages "${build_packages[@]}" git python3 clang clang-tidy clazy shellcheck
check_scripts
if ! clang-tidy --version | grep -q 'version 14\.'; then # others know other checks
  echo "Fuentes: sin comprobar, hace falta clang-tidy 14 (Debian 12)"
  exit
fi

quietly "configurar lint" cmake -G Ninja -B build/lint -S . -DCMAKE_CXX_COMPILER=clang++ \
  -DCMAKE_EXPORT_COMPILE_COMMANDS=ON -DPIZARRIN_TESTS=OFF
if [ $# -eq 0 ]; then
  mapfile -t files < <(git ls-files 'src/*.cpp')
else
  files=("$@")
fi
joined=$(python3 scripts/join_sources.py build/lint "${files[@]}")
lint() { # tool...
  xargs <<<"$joined" -P "$(nproc)" -n 1 "$@"
}
# That a source is included is how they are joined.
quietly "clang-tidy" lint clang-tidy -p build/lint/joined --quiet --checks=-bugprone-suspicious-include
echo "clang-tidy: ${#files[@]} ficheros, bien"
quietly "clazy" lint clazy-standalone -p build/lint/joined --checks=level1 --extra-arg=-Werror \
  --extra-arg=-Wno-shadow --header-filter='/src/.*\.(h|cpp)$'
echo "clazy: ${#files[@]} ficheros, bien"
