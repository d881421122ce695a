# The places of the main window's controls, in twips. To be sourced.

cell() { echo $((120 + 120 * ($2 % 100) + 60)) $(($1 + 480 * ($2 / 100) + 120)); }
thermal_cell() { cell 2040 "$1"; }
sea_cell() { cell 4440 "$1"; }
preset_9="4080 7320"   # 255, 0, 0
preset_12="5040 7320"  # 255, 224, 192
swatch="12000 8000"
ground="13900 500" # of the window
apply="13700 8050"
blue_left_arrow="4530 8400"
sea_butt="1000 4200"
thermal_command="5900 1860"
sea_command="6100 4260"
hvc_butt="1200 6200"
hvc_cell() { cell 6360 "$1"; }
hvc_command="7800 6060"
darker="9920 6120"
lighter="11440 6120"
preview_of_cell_30="13080 4335" # in row 127
pickcolor="10980 8050"
load="5500 9000"
about="900 9000"
how_to_use="3100 9000"
hvc_help="5300 6060"
quit="12800 9000"
