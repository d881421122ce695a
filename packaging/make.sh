#!/usr/bin/env bash
# Makes the Debian package: build/release/cirrava-pal_VERSION_ARCHITECTURE.deb
# What comes with it (debug symbols, .buildinfo, .changes) stays in build/debian.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$here/scripts/packages.sh"

install_packages "${build_packages[@]}" "${package_packages[@]}"
folder=$here/build/debian
rm -rf "$folder" "$here"/build/release/cirrava-pal_*.deb
# From a copy, since building leaves files in debian/ and beside the source. Its files get the time of
# now: all later than the changelog's, which then stands for them in the package.
mkdir -p "$folder/source" "$here/build/release"
tar --create --directory "$here" --exclude=./build --exclude=./.git . |
    tar --extract --touch --directory "$folder/source"
(cd "$folder/source" && dpkg-buildpackage --build=binary --no-sign)
cp "$folder"/cirrava-pal_*.deb "$here/build/release"
