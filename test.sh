#!/usr/bin/env bash
# Builds the program and runs every test. An argument names the preset: dev (default) or asan.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/scripts/packages.sh"
preset=${1:-dev}

install_packages "${build_packages[@]}" "${test_packages[@]}" "${screen_packages[@]}"
cmake -S "$here" --preset "$preset"
cmake --build "$here/build/$preset"
ctest --test-dir "$here/build/$preset" --output-on-failure --parallel 2
