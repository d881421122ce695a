# A private screen with a window manager, used as a person would: mouse, keys, and a look at the
# screen. To be sourced, with `folder` set before anything is opened or started.
# Everything waits for a state of the screen or of a file and gives up after a minute.

patience=60 # seconds

# Ends what was started here and still runs.
trap 'jobs -rp | xargs --no-run-if-empty kill 2>/dev/null || true' EXIT

fail() {
    echo "FAILED: $*" >&2
    import -window root "$folder/failed.png" 2>/dev/null || true
    exit 1
}

# wait_until COMMAND...: returns as soon as the command succeeds.
wait_until() {
    local end=$((SECONDS + patience))
    until "$@" 2>/dev/null; do
        ((SECONDS < end)) || fail "waited in vain for: $*"
        sleep 0.05 # between two looks
    done
}

# Openbox announces itself while it still starts, and may leave a window that is shown meanwhile until
# the next event. Ready is what does as it is asked: have a number of desktops that nobody else sets.
window_manager_answers() {
    xdotool set_num_desktops 7
    [[ $(xdotool get_num_desktops) == 7 ]]
}

# open_screen SIZE: also shuts out what the desktop says of its own screen.
open_screen() {
    unset WAYLAND_DISPLAY XDG_SESSION_TYPE QT_QPA_PLATFORM QT_SCALE_FACTOR QT_FONT_DPI
    local number="$folder/.display"
    : >"$number"
    # Without -noreset it starts anew when its last client leaves, and turns others away meanwhile.
    Xvfb -noreset -displayfd 3 -screen 0 "$1x24" -nolisten tcp 3>"$number" 2>/dev/null &
    wait_until test -s "$number"
    DISPLAY=:$(<"$number")
    export DISPLAY
    rm "$number"
    openbox 2>/dev/null &
    wait_until window_manager_answers
}

# Starts this script anew, with its arguments, on a session bus of its own.
on_private_bus() {
    [[ -n ${ON_PRIVATE_BUS:-} ]] || ON_PRIVATE_BUS=yes exec dbus-run-session -- "$0" "$@"
}

open_accessibility_bus() {
    /usr/libexec/at-spi-bus-launcher --launch-immediately &
    export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
}

is_active() { [[ $(xdotool getactivewindow getwindowname) == "$1" ]]; }

# in_window TITLE: waits until the window of that title has the keyboard.
in_window() { wait_until is_active "$1"; }

# start_program COMMAND...: starts the program and waits for its window.
start_program() {
    "$@" &
    program_id=$!
    in_window "Cirrava PAL"
    window=$(xdotool getactivewindow)
}

is_gone() { ! kill -0 "$program_id"; }

expect_end() {
    wait_until is_gone
    wait "$program_id" || fail "the program ended with status $?"
}

# pixels TWIPS: on a screen of 96 dots per inch.
pixels() { echo $(($1 / 15)); }

point_at() { xdotool mousemove --window "$window" "$(pixels "$1")" "$(pixels "$2")"; }

# click LEFT TOP [BUTTON]: in twips of the main window.
click() {
    point_at "$1" "$2"
    xdotool click "${3:-1}"
}

double_click() {
    point_at "$1" "$2"
    xdotool click --repeat 2 --delay 80 1
}

# colour_at LEFT TOP: six hexadecimal digits, in twips of the main window.
colour_at() {
    import -window "$window" -crop "1x1+$(pixels "$1")+$(pixels "$2")" -depth 8 rgb:- |
        od -An -tx1 | tr -d ' \n'
}

shows() { [[ $(colour_at "$1" "$2") == "$3" ]]; }

# see LEFT TOP COLOUR: waits until that point of the main window has that colour.
see() { wait_until shows "$@"; }

picture() { import -window root "$folder/$1.png"; }

# choose_file TITLE PATH: types the path into the file dialog of that title, and confirms.
choose_file() {
    in_window "$1"
    xdotool type --delay 0 "$2"
    xdotool key Return
}
