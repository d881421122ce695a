#!/usr/bin/env bash
# Builds the program and runs every test: fuzzing, the tests with sanitizers, and the tests as they are.
# With an argument, only those of one preset: fuzz, asan or dev.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. scripts/packages.sh

install_packages "${build_packages[@]}" "${test_packages[@]}" "${screen_packages[@]}"
for preset in ${1:-fuzz asan dev}; do
    cmake --preset "$preset"
    cmake --build --preset "$preset"
    ctest --preset "$preset" --parallel 2
done
