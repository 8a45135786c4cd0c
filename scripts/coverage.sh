#!/usr/bin/env bash
# coverage.sh: which lines of src/core and of the models their own tests run. Prints a row a
# file and every line that no test reaches.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/setup.sh
. scripts/setup.sh

need_packages "${build_packages[@]}" gcovr
quietly "configurar coverage" cmake -G Ninja -B build/coverage -S . -DCMAKE_BUILD_TYPE=Debug \
  -DCMAKE_CXX_FLAGS_DEBUG='-O0 --coverage'
quietly "compilar coverage" cmake --build build/coverage --target model_tests
find build/coverage -name '*.gcda' -delete
quietly "probar coverage" ctest --test-dir build/coverage --no-tests=error -j "$(nproc)" -L model
# A header's lines may be compiled into the tests alone.
gcovr --root . --filter 'src/' build/coverage/src build/coverage/tests
