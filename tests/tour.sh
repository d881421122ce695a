#!/usr/bin/env bash
# The typical use of the built program, by real clicks and keys on a private screen of a dark desktop.
# A program for Windows runs under Wine.
# tour.sh PROGRAM [FOLDER]: leaves pictures and palette files in FOLDER, an empty one; in one of its
# own without, which it keeps only when it fails.
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$top/scripts/screen.sh"
. "$top/scripts/points.sh"

# save_as DIALOG-TITLE FILE: answers the file dialog and the question after it, and compares the file.
save_as() {
    choose_file "$1" "$drive$folder/$2"
    in_window "Ready to create"
    xdotool key Return
    wait_until cmp --silent "$2" "$top/tests/golden/$2"
    echo "$2: $(stat --format=%s "$2") bytes, each as it must be"
}

start() {
    start_program env HOME="$folder/home" XDG_CONFIG_HOME="$folder/home" XDG_CURRENT_DESKTOP=KDE \
        KDE_SESSION_VERSION=5 "${program[@]}" -platform offscreen # no argument is read
    see "${ground[@]}" f0f0f0 # on a dark desktop, too
}

# After another window, the current colour is still red, and cells take it and give theirs.
expect_cells_to_work() {
    in_window "Cirrava PAL"
    sea_cell 1 click
    sea_cell 1 click 3
    click "${apply[@]}"
    sea_cell 1 see ff0000
    sea_cell 240 double_click
    see "${swatch[@]}" 000000
    click "${preset_9[@]}"
    xdotool key ctrl+z
    sea_cell 1 see 000000
}

# look_into TITLE KEY LEFT TOP: opens the window of that title by the button there, and closes it by the key.
look_into() {
    click "$3" "$4"
    in_window "$1"
    xdotool key "$2"
    expect_cells_to_work
}

on_private_bus "$@"
case $1 in
    *.exe) program=(wine "$(realpath "$1")") drive=Z: ;; # on which Wine has these files
    *) program=("$(realpath "$1")") drive= ;;
esac
folder=$(realpath "${2:-$(mktemp --directory)}")
open_screen 1280x800
cd "$folder"
mkdir home
printf '[Colors:%s]\nBackgroundNormal=35,38,41\n' Window Button View Tooltip >home/kdeglobals
start
picture 1-start

# By keys alone: cells 220 to 259, the red slider, Apply, the generate button.
xdotool key ctrl+End key --repeat 10 Page_Down key Up Tab key --repeat 5 Page_Up key Down
xdotool key Tab Tab Tab End
see "${swatch[@]}" ff0000
xdotool key --repeat 4 Tab key space
thermal_cell 220 see ff0000
picture 2-thermal
xdotool key --repeat 5 Tab key Return
save_as "Create Thermal" thermal.bmp
look_into "Cirrava PAL How To" alt+F4 "${how_to_use[@]}" # as by its close box
look_into "About HVC Palette" alt+F4 "${hvc_help[@]}"
look_into "About CirravaPal" Escape "${about[@]}"
look_into "Select Color" Escape "${pick_colour[@]}"
click "${load[@]}"
in_window "Read and Load palette"
xdotool key Escape
in_window "CirravaPal"
xdotool key Return
expect_cells_to_work
# A range that starts behind its end, which is cell 1 now, is refused. The message takes the release of a
# press on a cell, which must not count later, with another press between two rows.
sea_cell 30 click
sea_cell 35 point_at
xdotool mousedown 1 key ctrl+Return
in_window "CirravaPal"
xdotool mouseup 1 key Return
in_window "Cirrava PAL"
point_at 4800 4800
xdotool mousedown 3
sea_cell 40 point_at
xdotool mouseup 3 key ctrl+Return
in_window "CirravaPal" # which would not come if the end were cell 40 now
# Its OK lies over cells, which do not get the second half of a double click.
eval "$(xdotool getactivewindow getwindowgeometry --shell)"
xdotool getactivewindow mousemove --window %1 $((WIDTH - 50)) $((HEIGHT - 20)) click --repeat 2 --delay 80 1
expect_cells_to_work
xdotool key alt+F4
expect_end

start
click "${hvc_butt[@]}"
hvc_cell 20 click
hvc_cell 39 click 3
click "${red_slider[@]}" 3 # which opens nothing
click "${preset_9[@]}"
click "${apply[@]}"
see "${preview_of_cell_30[@]}" ff0000
click "${darker[@]}"
see "${preview_of_cell_30[@]}" fa0000
picture 3-hvc
cp thermal.bmp hvc.bmp # to be overwritten
click "${hvc_command[@]}"
save_as "Create HVC Palette" hvc.bmp

click "${load[@]}"
choose_file "Read and Load palette" "$drive$folder/hvc.bmp"
in_window "Cirrava PAL"
hvc_cell 20 see f80000
xdotool key ctrl+z ctrl+z
see "${preview_of_cell_30[@]}" ff0000
picture 4-undone

click "${quit[@]}"
expect_end

if [[ -z $drive ]]; then # screen readers, which Wine has none for
    open_accessibility_bus
    start
    /usr/bin/python3 "$top/scripts/accessible.py"
    expect_end
fi
[[ $(ls -A home) == kdeglobals ]] || fail "the program has left something behind: $(ls -A home)"
rm -r home
[[ -n ${2:-} ]] || rm -r "$folder"
echo "The tour is complete."
