#!/usr/bin/env bash
# mutate.sh FILE…: changes every operator and constant of a model's file in turn and runs its
# tests; prints the mutants that no test notices. FILE is a .cpp or .h of src/, or a folder with all
# its models. A survivor is a missing test, or is listed with its proof in
# tests/equivalent_mutants.md. JOBS=1 tries one mutant at a time.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/setup.sh
. scripts/setup.sh

need_packages "${build_packages[@]}" python3
# shellcheck disable=SC2034 # for build_preset
cmake_options=(-DCMAKE_EXPORT_COMPILE_COMMANDS=ON)
build_preset release model_tests
exec python3 scripts/mutate.py "$@"
