#!/usr/bin/env bash
# Makes the Debian package: build/release/cirrava-pal_VERSION_ARCHITECTURE.deb
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$here/scripts/packages.sh"

umask 022 # the package's folders take their permissions from it
install_packages "${build_packages[@]}" "${package_packages[@]}"
cmake -S "$here" --preset release
rm -f "$here"/build/release/cirrava-pal_*.deb
cmake --build "$here/build/release" --target package
