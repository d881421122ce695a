"""Reads the running program's window over the accessibility bus, as a screen reader does.

The Thermal cells 221 to 260, counted from 1, must be red.
"""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi


def children(node):
    return [node.get_child_at_index(i) for i in range(node.get_child_count())]


def place(node):
    box = node.get_extents(Atspi.CoordType.SCREEN)
    return box.x, box.y, box.width, box.height


[program] = [p for p in children(Atspi.get_desktop(0)) if p.get_name() == "cirrava-pal"]
[window] = children(program)
focusable = [c for c in children(window) if c.get_state_set().contains(Atspi.StateType.FOCUSABLE)]
assert len({control.get_name() for control in focusable}) == 72, [c.get_name() for c in focusable]
scales = {node.get_name(): children(node) for node in children(window) if node.get_child_count()}
sizes = {name: len(cells) for name, cells in scales.items()}
assert sizes == {"Thermal scale": 320, "Sea Surface scale": 250, "HVC scale": 100}, sizes
cell = scales["Thermal scale"][220]
assert cell.get_name() == "cell 221, 0.0 C, 32 F", cell.get_name()
left, top, _, _ = place(window)
assert place(cell) == (left + 168, top + 201, 8, 15), place(cell)
colours = [cell.get_description() for cell in scales["Thermal scale"]]
assert colours == ["0, 0, 0"] * 220 + ["255, 0, 0"] * 40 + ["0, 0, 0"] * 60, colours
