#!/usr/bin/env bash
# Starts the program on a dark desktop with a large font, and compares its window with the usual one.
# desktop.sh PROGRAM FOLDER: leaves both pictures in FOLDER.
set -euo pipefail
program=$(realpath "$1")
folder=$(realpath "$2")
tests=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$tests/screen.sh"
. "$tests/places.sh"

# picture_with NAME [VARIABLE=VALUE...]
picture_with() {
    xdotool mousemove 0 0 # no button is under it
    env "${@:2}" "$program" &
    local program_id=$!
    in_window "Cirrava PAL"
    window=$(xdotool getactivewindow)
    see $swatch 000000
    import -window "$window" "$folder/$1.png"
    click $quit
    wait "$program_id" || fail "the program ended with status $?"
}

mkdir -p "$folder/dark"
cat >"$folder/dark/kdeglobals" <<'END'
[General]
font=DejaVu Sans,14,-1,5,50,0,0,0,0,0
[Colors:Window]
BackgroundNormal=35,38,41
ForegroundNormal=252,252,252
[Colors:Button]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252
[Colors:View]
BackgroundNormal=27,30,32
ForegroundNormal=252,252,252
END

open_screen
picture_with usual
picture_with dark XDG_CONFIG_HOME="$folder/dark" XDG_CURRENT_DESKTOP=KDE KDE_SESSION_VERSION=5
different=$(compare -metric AE "$folder/usual.png" "$folder/dark.png" null: 2>&1) ||
    fail "$different pixels differ on a dark desktop"
echo "The window looks the same on a dark desktop."
