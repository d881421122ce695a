#!/usr/bin/env bash
# Starts and quits the program under Wayland, with a compositor that has no screen. try_wayland.sh PROGRAM
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$top/scripts/screen.sh"

on_private_bus "$@"
folder=$(mktemp --directory)
unset DISPLAY
export XDG_RUNTIME_DIR=$folder XDG_SESSION_TYPE=wayland WAYLAND_DISPLAY=cirrava-test
weston --backend=headless-backend.so --use-pixman --width=1280 --height=800 --idle-time=0 \
    --socket="$WAYLAND_DISPLAY" --log="$folder/weston.log" &
wait_until test -S "$folder/$WAYLAND_DISPLAY"
open_accessibility_bus
"$1" &
program_id=$!
/usr/bin/python3 "$top/scripts/accessible.py"
expect_end
rm -r "$folder"
echo "The program starts, shows its window and quits under Wayland."
