#!/usr/bin/env bash
# Renders the SVG masters in this folder to the PNG files used by the program, and the icon of the
# program for Windows. Needs rsvg-convert and convert (Debian packages librsvg2-bin and imagemagick).
set -euo pipefail

art="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
out="$art/../src/ui/resources"
mkdir -p "$out"

render() { # master width height output
    rsvg-convert --width "$2" --height "$3" --output "$out/$4" "$art/$1"
}

render picture.svg 144 192 picture@2x.png
# One simple filter for all rows is read twice as fast as the best one for each.
convert "$out/picture@2x.png" -define png:compression-filter=2 -define png:compression-level=9 -strip \
    "$out/picture@2x.png"

for size in 16 32 48 64 128 256; do
    render icon.svg "$size" "$size" "icon-$size.png"
done
convert "$out"/icon-{16,32,48,64,256}.png "$art/../packaging/windows/cirrava-pal.ico"
