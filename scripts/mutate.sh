#!/usr/bin/env bash
# mutate.sh FILE…: changes every operator and constant of a model's file in turn and runs its
# tests; prints the mutants that no test notices. FILE is a .cpp or .h of src/. A survivor is a
# missing test, or is proved equivalent in tests/equivalent_mutants.md.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/setup.sh
. scripts/setup.sh

need_packages "${build_packages[@]}" python3
quietly "configurar mutate" cmake -G Ninja -B build/mutate -S . -DCMAKE_BUILD_TYPE=Debug \
  -DCMAKE_CXX_FLAGS_DEBUG=-O0 -DCMAKE_EXPORT_COMPILE_COMMANDS=ON
quietly "compilar mutate" cmake --build build/mutate --target model_tests
status=0
for file in "$@"; do
  python3 scripts/mutate.py "$file" || status=1
done
exit "$status"
