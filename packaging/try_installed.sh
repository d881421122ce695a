#!/usr/bin/env bash
# Starts the installed program as a desktop would, on a private screen, loads a palette that came with it,
# and leaves it by its button.
# try_installed.sh FOLDER: keeps a picture of the window in FOLDER.
set -euo pipefail
folder=$(realpath "$1")
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$top/scripts/screen.sh"
. "$top/scripts/points.sh"

value_of() { sed -n "s/^$1=//p" /usr/share/applications/org.cirrava.CirravaPal.desktop; }

open_screen 1280x800
mkdir "$folder/home"
cd "$folder/home"
env --unset=XDG_CONFIG_HOME HOME="$folder/home" "$(value_of Exec)" &
program_id=$!
in_window "$(value_of Name)"
window=$(xdotool getactivewindow)
see "${swatch[@]}" 000000
click "${load[@]}"
in_window "Read and Load palette"
xdotool mousemove --window "$(xdotool getactivewindow)" 60 56 click 1 key alt+n # the side bar's first folder
choose_file "Read and Load palette" weather-map/thermal.bmp
in_window "$(value_of Name)"
thermal_cell 319 see 7a2c30
picture installed

class=$(xprop -id "$window" WM_CLASS)
[[ $class == *"\"$(value_of StartupWMClass)\""* ]] || fail "the desktop entry does not name $class"

click "${quit[@]}"
expect_end
rmdir "$folder/home" || fail "the program has left something behind"
echo "The installed program starts, shows its window and quits."
