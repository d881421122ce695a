#!/usr/bin/env bash
# Starts the program under Wayland, takes its picture and quits it, with a compositor that has no
# screen. wayland.sh PROGRAM FOLDER: leaves the picture in FOLDER.
set -euo pipefail
program=$(realpath "$1")
folder=$(realpath "$2")
tests=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$tests/screen.sh"

on_private_bus "$@"
unset DISPLAY
XDG_RUNTIME_DIR=$(mktemp --directory)
export XDG_RUNTIME_DIR XDG_SESSION_TYPE=wayland WAYLAND_DISPLAY=cirrava-test
weston --backend=headless-backend.so --use-pixman --width=1280 --height=800 --idle-time=0 \
    --socket="$WAYLAND_DISPLAY" --debug --log="$folder/weston.log" & # --debug allows pictures
started+=($!)
wait_until test -S "$XDG_RUNTIME_DIR/$WAYLAND_DISPLAY"
open_accessibility_bus
"$program" &
program_id=$!

# The face of the button of the working scale, of 97 x 33 pixels, less its caption.
window_is_on_picture() {
    rm -f wayland-screenshot-*.png
    weston-screenshooter
    local green
    green=$(convert wayland-screenshot-*.png -fill black +opaque '#00ff00' -fill white \
        -opaque '#00ff00' -format '%[fx:round(mean*w*h)]' info:)
    ((green > 2000))
}
cd "$folder"
wait_until window_is_on_picture
mv wayland-screenshot-*.png wayland.png

/usr/bin/python3 "$tests/accessible_program.py" Quit
wait "$program_id" || fail "the program ended with status $?"
rm -r "$XDG_RUNTIME_DIR"
echo "The program starts, shows its window and quits under Wayland."
