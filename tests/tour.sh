#!/usr/bin/env bash
# The typical use of the built program, by real clicks and keys on a private screen.
# tour.sh PROGRAM FOLDER: leaves pictures and palette files in FOLDER.
set -euo pipefail
program=$(realpath "$1")
folder=$(realpath "$2")
tests=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$tests/screen.sh"
. "$tests/places.sh"
. "$tests/expected_files.sh"

# save_as BUTTON DIALOG-TITLE FILE: up to the prompt.
save_as() {
    click $1
    in_window "$2"
    xdotool type --delay 0 "$3"
    xdotool key Return
    in_window "Ready to create"
}

answer_message() {
    in_window "CirravaPal"
    picture "$1"
    xdotool key Return
    in_window "Cirrava PAL"
}

open_screen
cd "$folder"
mkdir -p home
env --unset=XDG_CONFIG_HOME HOME="$folder/home" "$program" &
program_id=$!
started+=("$program_id")
in_window "Cirrava PAL"
window=$(xdotool getactivewindow)
see $swatch 000000
picture 1-start

click $apply
answer_message 2-no-range

click $(thermal_cell 220)
click $(thermal_cell 259) 3
click $preset_9
see $swatch ff0000
click $apply
see $(thermal_cell 220) ff0000
see $(thermal_cell 259) ff0000
see $(thermal_cell 260) 000000
picture 3-thermal

save_as "$thermal_command" "Create Thermal" "$folder/thermal.bmp"
picture 4-write-prompt
xdotool key Return
{ headers 320 1 && pixels_of 220 0 0 0 && pixels_of 40 255 0 0 && pixels_of 60 0 0 0; } >expected
expect_file thermal.bmp expected

click $sea_butt
click $(sea_cell 0)
click $(sea_cell 49) 3
click $preset_12
see $swatch ffe0c0
click $blue_left_arrow
see $swatch ffe0bf
click $apply
see $(sea_cell 49) ffe0bf
save_as "$sea_command" "Create Sea Surface Palette" "$folder/sea.bmp"
xdotool key Return
{ headers 250 1 && pixels_of 50 255 224 191 && pixels_of 200 0 0 0 && little_endian 0 2; } >expected
expect_file sea.bmp expected

cp thermal.bmp older.bmp
tail --bytes=208 older.bmp >>expected
save_as "$sea_command" "Create Sea Surface Palette" "$folder/older.bmp"
picture 5-overwrite-prompt
xdotool key Return
wait_until cmp --silent --bytes=806 older.bmp sea.bmp
expect_file older.bmp expected

click $sea_command
in_window "Create Sea Surface Palette"
picture 6-save-dialog
xdotool key Escape
answer_message 7-cancelled

click $hvc_butt
click $(hvc_cell 20)
click $(hvc_cell 39) 3
click $apply
see $(hvc_cell 39) ffe0bf
see $preview_of_cell_30 ffe0bf
click $darker
see $preview_of_cell_30 fadbba
click $darker
see $preview_of_cell_30 f5d6b5
click $lighter
see $preview_of_cell_30 fadbba
see $(hvc_cell 20) fadbba
picture 8-hvc
save_as "$hvc_command" "Create HVC Palette" "$folder/hvc.bmp"
xdotool key Return
{ headers 100 256 && hvc_rows 20 20 250 219 186; } >expected
expect_file hvc.bmp expected

click $load
in_window "Read and Load palette"
picture 9-open-dialog
xdotool type --delay 0 "$folder/hvc.bmp"
xdotool key Return
in_window "Cirrava PAL"
see $(hvc_cell 20) f8d9b8
see $preview_of_cell_30 fadbba

click $pickcolor
in_window "Select Color"
picture 10-colour-dialog
xdotool key Escape
in_window "Cirrava PAL"

# look_into BUTTON TITLE PICTURE KEYS: opens a window, takes its picture, closes it with the keys.
look_into() {
    click $1
    in_window "$2"
    picture "$3"
    xdotool key $4
    in_window "Cirrava PAL"
}
look_into "$how_to_use" "Cirrava PAL How To" 11-how-to-use "Tab space"
look_into "$hvc_help" "About HVC Palette" 12-about-hvc "Tab space"
look_into "$about" "About CirravaPal" 13-about "Escape"
picture 14-end

click $quit
wait "$program_id" || fail "the program ended with status $?"
[[ ! -e home/.config ]] || fail "the program has left settings behind"
rm -r expected home
echo "The tour is complete."
