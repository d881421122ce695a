# Points of the main window's controls, in twips. To be sourced.

# SCALE_cell NUMBER ACTION [ARGUMENT...]: hands the middle of that cell to the action, before its arguments,
# as in: thermal_cell 259 click 3
thermal_cell() { cell 2040 "$@"; }
sea_cell() { cell 4440 "$@"; }
hvc_cell() { cell 6360 "$@"; }
cell() { "$3" $((120 + 120 * ($2 % 100) + 60)) $(($1 + 480 * ($2 / 100) + 120)) "${@:4}"; }

preset_9=(4080 7320) # 255, 0, 0
swatch=(12000 8000)
red_slider=(7200 7680)
ground=(13900 500) # of the window
apply=(13700 8050)
thermal_command=(5900 1860)
hvc_butt=(1200 6200)
hvc_help=(5300 6060)
hvc_command=(7800 6060)
darker=(9920 6120)
preview_of_cell_30=(13080 4335) # in row 127
pick_colour=(11000 8050)
about=(900 9000)
how_to_use=(3100 9000)
load=(5500 9000)
quit=(12800 9000)
