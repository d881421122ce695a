#!/usr/bin/env bash
# Takes the pictures of the README from the built program, and that of the palettes. pictures.sh PROGRAM
set -euo pipefail
program=$(realpath "$1")
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$top/scripts/screen.sh"
. "$top/scripts/points.sh"

load_palette() {
    click "${load[@]}"
    choose_file "Read and Load palette" "$top/palettes/weather-map/$1"
    in_window "Cirrava PAL"
}

# Opens the window and loads the three palettes.
start() {
    start_program "$program"
    load_palette thermal.bmp
    thermal_cell 319 see 7a2c30
    load_palette sea.bmp
    sea_cell 249 see 5e1b36
    load_palette hvc.bmp
    hvc_cell 99 see be7646
    # A double click and Apply give a cell the colour it has, and bring the preview up to date.
    hvc_cell 44 double_click
    hvc_cell 44 click 3
    click "${apply[@]}"
}

# take NAME LEFT TOP WIDTH HEIGHT: that part of the window, in twips, and what lies over it, with the
# pointer away.
take() {
    point_at 9000 6900
    local x y
    read -r x y < <(xwininfo -id "$window" | awk '/Absolute upper-left/ { printf "%s ", $4 } END { print "" }')
    import -window root -strip +repage -crop \
        "$(pixels "$4")x$(pixels "$5")+$((x + $(pixels "$2")))+$((y + $(pixels "$3")))" "$top/docs/$1.png"
}

# strip FILE SIZE PIXELS-A-CELL COLDEST PIXELS-A-DEGREE TEMPERATURE...: a palette, its name above and
# temperatures below it.
strip() {
    local file=$1 size=$2 width=$((${2%x*} * $3)) coldest=$4 degree=$5 temperature x marks=()
    for temperature in "${@:6}"; do
        x=$(((temperature - coldest) * degree))
        marks+=(-draw "rectangle $((x + 14)),88 $((x + 14)),92"
            -annotate "$(printf %+d $((x - width / 2)))+95" "$temperature")
    done
    # As bare pixels: a palette does not tell its length, and without it the image reader complains.
    tail --bytes=+55 "$top/palettes/$file" | convert -size "$size" -depth 8 bgr:- -flip \
        -sample "${width}x64!" -background '#f0f0f0' -gravity north -splice 0x24 \
        -extent "$((width + 28))x116" -fill '#202020' -font Liberation-Sans -pointsize 12 \
        "${marks[@]}" -font Liberation-Sans-Bold -pointsize 13 -gravity northwest \
        -annotate +14+5 "$file" miff:-
}

# Its name is seen on a picture. A link, since what a failed run has left must not be in the way, and
# nobody's own folder lost.
folder=/tmp/palettes
ln --symbolic --force --no-target-directory "$(mktemp --directory)" "$folder"
cd "$folder"

open_screen 2048x1400
start
thermal_cell 220 click
thermal_cell 259 click 3
take step-2-range 0 1440 12540 2520
click "${preset_9[@]}"
see "${swatch[@]}" ff0000
take step-3-colour 0 7110 14415 1560
click "${apply[@]}"
thermal_cell 259 see ff0000
take main-window 0 0 14415 9405
click "${thermal_command[@]}"
choose_file "Create Thermal" "$folder/my palette.bmp"
in_window "Ready to create"
take step-5-write 4890 3550 4590 1440
xdotool key Escape
in_window "Cirrava PAL"
hvc_cell 60 click
hvc_cell 74 click 3
click "${apply[@]}"
hvc_cell 70 see ff0000
click "${darker[@]}"
hvc_cell 70 see fa0000
take hvc-range 0 5640 14415 1260
take hvc-table 12500 1440 1915 5040
click "${quit[@]}"
program_has_ended

for set in weather-map storms clear-to-all greys; do
    {
        strip $set/thermal.bmp 320x1 1 -110 2 -100 -80 -60 -40 -20 0 20 40
        strip $set/sea.bmp 250x1 1 -10 5 -10 0 10 20 30
        strip $set/hvc.bmp 100x256 3 -60 3 -60 -40 -20 0 20
    } | convert miff:- +append miff:-
done | convert miff:- -append -strip "$top/docs/palettes.png"

rm -r "$(realpath "$folder")" "$folder"
