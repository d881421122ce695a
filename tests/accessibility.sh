#!/usr/bin/env bash
# Reads the program's tree of controls as a screen reader does, on a private screen and bus.
# accessibility.sh PROGRAM FOLDER: leaves a picture in FOLDER when it fails.
set -euo pipefail
program=$(realpath "$1")
folder=$(realpath "$2")
tests=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$tests/screen.sh"

on_private_bus "$@"
open_screen
open_accessibility_bus
"$program" &
started+=($!)
/usr/bin/python3 "$tests/accessible_tree.py" || fail "the tree is not as it must be"
