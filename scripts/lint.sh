#!/usr/bin/env bash
# lint.sh [FILE…]: clang-tidy (.clang-tidy) and clazy (level 1) on sources of src/, all when none
# is named; shellcheck on every script. Stops at the first kind of fault, with all of that kind.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/setup.sh
. scripts/setup.sh

need_packages "${build_packages[@]}" git clang clang-tidy clazy shellcheck
check_scripts

quietly "configurar lint" cmake -G Ninja -B build/lint -S . -DCMAKE_CXX_COMPILER=clang++ \
  -DCMAKE_EXPORT_COMPILE_COMMANDS=ON -DPIZARRIN_TESTS=OFF
quietly "preparar lint" cmake --build build/lint --target pizarrin_core_autogen pizarrin_screens_autogen
if [ $# -eq 0 ]; then
  mapfile -t files < <(git ls-files 'src/*.cpp')
else
  files=("$@")
fi
# In turn on every core; a file that fails is named with its fault.
lint() { # tool...
  printf '%s\0' "${files[@]}" | xargs -0 -P "$(nproc)" -n 4 "$@"
}
quietly "clang-tidy" lint clang-tidy -p build/lint --quiet
echo "clang-tidy: ${#files[@]} ficheros, bien"
quietly "clazy" lint clazy-standalone -p build/lint --checks=level1 --extra-arg=-Werror \
  --header-filter='/src/.*\.h$'
echo "clazy: ${#files[@]} ficheros, bien"
