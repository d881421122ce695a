#!/usr/bin/env bash
# The typical use of the built program, by real clicks and keys on a private screen of a dark desktop.
# A program for Windows runs under Wine.
# tour.sh PROGRAM [FOLDER]: leaves pictures and palette files in FOLDER, an empty one; in one of its
# own without, which it keeps only when it fails.
set -euo pipefail
tests=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$tests/../scripts/screen.sh"
. "$tests/../scripts/places.sh"

# save_as BUTTON DIALOG-TITLE FILE: up to the prompt.
save_as() {
    click $1
    choose_file "$2" "$drive$folder/$3"
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

# expect_file FILE ROWS CELLS...: waits for the length, then compares every byte.
expect_file() {
    /usr/bin/python3 "$tests/expected_file.py" "${@:2}" >expected
    wait_until has_size "$1" "$(stat --format=%s expected)"
    cmp "$1" expected || fail "$1 differs from what it must be"
    echo "$1: $(stat --format=%s "$1") bytes, each as it must be"
}

# leave_by KEYS TITLE PICTURE: takes the picture of the window that has opened, and closes it.
leave_by() {
    in_window "$2"
    picture "$3"
    xdotool key $1
    in_window "Cirrava PAL"
}

on_private_bus "$@"
program=("$(realpath "$1")")
drive=
if [[ $1 == *.exe ]]; then # Wine has these files on a drive, and no accessibility bus
    program=(wine "${program[@]}")
    drive=Z:
fi
folder=$(realpath "${2:-$(mktemp --directory)}")
open_screen
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
see $swatch 000000
see $ground f0f0f0
picture 1-start

click $apply
leave_by Return CirravaPal 2-no-range

# By keys alone: back to the start box, cells 220 to 259, the red slider, Apply, the generate button.
keys 8*shift+Tab ctrl+End 10*Page_Down Up Tab 4*Page_Up Down 3*Tab End
see $swatch ff0000
keys 4*Tab space
see $(thermal_cell 220) ff0000
picture 3-thermal
[[ -n $drive ]] || PYTHONPATH="$tests/../scripts" /usr/bin/python3 -B "$tests/accessible_test.py" ||
    fail "the window does not read as it must"
keys 5*Tab Return
choose_file "Create Thermal" "$drive$folder/thermal.bmp"
in_window "Ready to create"
picture 4-write-prompt
xdotool key Return
expect_file thermal.bmp 1 220x000000 40xff0000 60x000000

click $sea_butt
click $(sea_cell 0)
click $(sea_cell 49) 3
click $preset_12
click $blue_left_arrow
see $swatch ffe0bf
click $apply
cp thermal.bmp older.bmp
save_as "$sea_command" "Create Sea Surface Palette" older.bmp
picture 5-overwrite-prompt
xdotool key Return
in_window "Cirrava PAL"
tail --bytes=208 older.bmp | cmp - <(tail --bytes=208 thermal.bmp) || fail "an older end is lost"
head --bytes=806 older.bmp >sea.bmp
expect_file sea.bmp 1 50xffe0bf 200x000000

click $hvc_butt
click $(hvc_cell 20)
click $(hvc_cell 39) 3
click $preset_9
click $apply
see $preview_of_cell_30 ff0000
click $darker
see $preview_of_cell_30 fa0000
picture 6-hvc
save_as "$hvc_command" "Create HVC Palette" hvc.bmp
xdotool key Return
expect_file hvc.bmp 256 20x000000 20xfa0000 60x000000

click $load
choose_file "Read and Load palette" "$drive$folder/hvc.bmp"
in_window "Cirrava PAL"
see $(hvc_cell 20) f80000
keys 2*ctrl+z
see $preview_of_cell_30 ff0000
keys ctrl+z
see $(hvc_cell 20) 000000
keys ctrl+shift+z ctrl+y
see $(hvc_cell 20) fa0000
picture 7-undone

click $pickcolor
leave_by Escape "Select Color" 8-colour-dialog
click $how_to_use
leave_by "Tab space" "Cirrava PAL How To" 9-how-to-use
click $hvc_help
leave_by "Tab space" "About HVC Palette" 10-about-hvc
click $about
leave_by Escape "About CirravaPal" 11-about

click $quit
wait "$program_id" || fail "the program ended with status $?"
[[ $(ls home) == kdeglobals ]] || fail "the program has left something behind: $(ls home)"
rm -r expected home
[[ -n ${2:-} ]] || rm -r "$folder"
echo "The tour is complete."
