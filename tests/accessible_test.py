# Reads the running program's window over the accessibility bus, as a screen reader does.
#
# The Thermal cells 221 to 260, counted from 1, must be red.

from accessible import Atspi, children, window

place = lambda node: node.get_extents(Atspi.CoordType.SCREEN)
can_focus = lambda node: node.get_state_set().contains(Atspi.StateType.FOCUSABLE)
controls = children(window())
names = [control.get_name() for control in controls if can_focus(control)]
assert len(names) == len(set(names)) == 72, names
scales = {control.get_name(): children(control) for control in controls}
cell = scales["Thermal scale"][220]
assert cell.get_name() == "cell 221, 0.0 C, 32 F", cell.get_name()
assert (place(cell).x - place(window()).x, place(cell).y - place(window()).y) == (168, 201)
colours = [cell.get_description() for cell in scales["Thermal scale"]]
assert colours == ["0, 0, 0"] * 220 + ["255, 0, 0"] * 40 + ["0, 0, 0"] * 60, colours
Atspi.Action.do_action(cell, 1)  # mark as end
boxes = {control.get_name(): control for control in controls}
assert Atspi.Text.get_text(boxes["End, degrees Celsius"], 0, -1) == "0.0"
