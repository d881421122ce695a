#!/usr/bin/env bash
# The typical use of the built program, by real clicks and keys on a private screen of a dark desktop.
# A program for Windows runs under Wine.
# tour.sh PROGRAM [FOLDER]: leaves pictures and palette files in FOLDER, an empty one; in one of its
# own without, which it keeps only when it fails.
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$top/scripts/screen.sh"
. "$top/scripts/places.sh"

# save_as DIALOG-TITLE FILE: answers the file dialog, up to the prompt.
save_as() {
    choose_file "$1" "$drive$folder/$2"
    in_window "Ready to create"
}

# keys KEY...: presses each; 4*Tab is Tab four times.
keys() {
    local key
    for key in "$@"; do
        [[ $key == *\** ]] || key="1*$key"
        xdotool key --repeat "${key%\**}" "${key#*\*}"
    done
}

# expect_file FILE SIZE SHA256: waits for the size, then compares the whole.
expect_file() {
    wait_until has_size "$1" "$2"
    [[ $(sha256sum <"$1") == "$3  -" ]] || fail "$1 differs from what it must be"
    echo "$1: $2 bytes, each as it must be"
}

on_private_bus "$@"
program=("$(realpath "$1")")
drive=
if [[ $1 == *.exe ]]; then # Wine has these files on a drive, and no accessibility bus
    program=(wine "${program[@]}")
    drive=Z:
fi
folder=$(realpath "${2:-$(mktemp --directory)}")
open_screen 1280x800
open_accessibility_bus
cd "$folder"
mkdir home
printf '[Colors:%s]\nBackgroundNormal=35,38,41\nForegroundNormal=252,252,252\n' \
    Window Button View Tooltip >home/kdeglobals
env HOME="$folder/home" XDG_CONFIG_HOME="$folder/home" XDG_CURRENT_DESKTOP=KDE \
    KDE_SESSION_VERSION=5 "${program[@]}" &
program_id=$!
started+=("$program_id")
in_window "Cirrava PAL"
window=$(xdotool getactivewindow)
see "${swatch[@]}" 000000
see "${ground[@]}" f0f0f0
picture 1-start

click "${apply[@]}"
in_window CirravaPal
picture 2-no-range
xdotool key Return
in_window "Cirrava PAL"

# By keys alone: back to the start box, cells 220 to 259, the red slider, Apply, the generate button.
keys 8*shift+Tab ctrl+End 10*Page_Down Up Tab 4*Page_Up Down 3*Tab End
see "${swatch[@]}" ff0000
keys 4*Tab space
thermal_cell 220 see ff0000
picture 3-thermal
[[ -n $drive ]] || PYTHONPATH="$top/scripts" /usr/bin/python3 -B "$top/tests/accessible_test.py" ||
    fail "the window does not read as it must"
keys 5*Tab Return
save_as "Create Thermal" thermal.bmp
picture 4-write-prompt
xdotool key Return
expect_file thermal.bmp 1014 22b7ecd5c421775023428863f71be12aaa13bf6386a5b0ff56b3160607a01b68

click "${sea_butt[@]}"
sea_cell 0 click
sea_cell 49 click 3
click "${preset_12[@]}"
click "${blue_left_arrow[@]}"
see "${swatch[@]}" ffe0bf
click "${apply[@]}"
cp thermal.bmp older.bmp
click "${sea_command[@]}"
save_as "Create Sea Surface Palette" older.bmp
picture 5-overwrite-prompt
xdotool key Return
in_window "Cirrava PAL"
expect_file older.bmp 1014 eaecf0ee2b5f31db5ec845b3766458c27b46826bf23aadc15841bb6e3938e74c

click "${hvc_butt[@]}"
hvc_cell 20 click
hvc_cell 39 click 3
click "${preset_9[@]}"
click "${apply[@]}"
see "${preview_of_cell_30[@]}" ff0000
click "${darker[@]}"
see "${preview_of_cell_30[@]}" fa0000
picture 6-hvc
click "${hvc_command[@]}"
save_as "Create HVC Palette" hvc.bmp
xdotool key Return
expect_file hvc.bmp 76854 49d111629a81a3cf18cfb2c92bce854c664efc10bbd6f700ace3f719521ed7b3

click "${load[@]}"
choose_file "Read and Load palette" "$drive$folder/hvc.bmp"
in_window "Cirrava PAL"
hvc_cell 20 see f80000
keys 2*ctrl+z
see "${preview_of_cell_30[@]}" ff0000
keys ctrl+z
hvc_cell 20 see 000000
keys ctrl+shift+z ctrl+y
hvc_cell 20 see fa0000
picture 7-undone

click "${quit[@]}"
wait "$program_id" || fail "the program ended with status $?"
[[ $(ls home) == kdeglobals ]] || fail "the program has left something behind: $(ls home)"
rm -r home
[[ -n ${2:-} ]] || rm -r "$folder"
echo "The tour is complete."
