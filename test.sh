#!/usr/bin/env bash
# Builds the program and runs every test: fuzzing, the tests with sanitizers, and the tests as they are.
# With an argument, only those of one preset: fuzz, asan or dev.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/scripts/packages.sh"

install_packages "${build_packages[@]}" "${test_packages[@]}" "${screen_packages[@]}"
for preset in ${1:-fuzz asan dev}; do
    cmake -S "$here" --preset "$preset"
    cmake --build "$here/build/$preset"
    ctest --test-dir "$here/build/$preset" --output-on-failure --parallel 2
done
