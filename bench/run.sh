#!/usr/bin/env bash
# Builds and runs the benchmarks on a private screen, and tells the figures beside their limits.
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$top/scripts/packages.sh"
. "$top/scripts/screen.sh"

install_packages "${build_packages[@]}" "${screen_packages[@]}"
on_private_bus "$@" # without a bus, each start would open one of its own
cmake -S "$top" --preset bench
cmake --build "$top/build/bench"
folder=$top/build/bench
open_screen 1280x800
export QT_LOGGING_RULES=default.warning=false # that there is no session, at each start
/usr/bin/python3 "$top/bench/promises.py" "$folder/bench"
