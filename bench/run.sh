#!/usr/bin/env bash
# Builds and runs the benchmarks on a private screen, and tells the figures beside their limits.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$here/scripts/packages.sh"
. "$here/scripts/screen.sh"

install_packages "${build_packages[@]}" "${screen_packages[@]}" libbenchmark-dev
on_private_bus "$@" # without a bus, each start would open one of its own
cmake -S "$here" --preset bench
cmake --build "$here/build/bench"
folder=$here/build/bench
open_screen
for program in start_up_bench bench; do
    "$folder/bench/$program" --benchmark_repetitions=15 --benchmark_min_time=0.2 \
        --benchmark_enable_random_interleaving=true --benchmark_display_aggregates_only=true \
        "$@" 2>/dev/null
done
