#!/usr/bin/env bash
# Builds Cirrava PAL and opens its window. With no display, shows the program at work on a private
# screen instead and leaves pictures and palette files.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/scripts/packages.sh"

has_display() { [[ -n ${DISPLAY:-} || -n ${WAYLAND_DISPLAY:-} ]]; }

install_packages "${build_packages[@]}"
cmake -S "$here" --preset release
cmake --build "$here/build/release"

if has_display; then
    exec "$here/build/release/cirrava-pal"
fi
echo "There is no display here: showing the program on a private screen instead."
install_packages "${screen_packages[@]}"
folder=$(mktemp --directory --tmpdir cirrava-pal.XXXXXX)
"$here/tests/tour.sh" "$here/build/release/cirrava-pal" "$folder"
echo "The pictures and palette files are in $folder"
